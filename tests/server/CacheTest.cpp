// SPDX-License-Identifier: MIT
#include "server/core/Jpeg.h"
#include "server/core/RenderCache.h"
#include "support/ExpectWarning.h"
#include "support/TempHome.h"

#include <QDir>

#include <future>
#include <gtest/gtest.h>
#include <latch>
#include <thread>

namespace moravel::server {

namespace {

const QDate day(2020, 5, 1);

QByteArray jpeg(int side = 16)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::blue);
    return encodedJpeg(image, PictureKind::Normal);
}

QString nameOf(int index)
{
    return cacheName(QStringLiteral("Moon"), day.addDays(index), PictureKind::Thumb,
                     QStringLiteral("1"));
}

QByteArray bytesOf(const tl::expected<Content, Unavailable> &content)
{
    if (!content)
        return {};
    return content->file ? content->file->readAll() : content->bytes;
}

} // namespace

TEST(CacheFolder, StaysWithinItsBytesAndDropsTheLeastUsed)
{
    const testing::TempHome home;
    const QByteArray bytes = jpeg();
    home.write(QStringLiteral("foreign.jpg"), QByteArray(100'000, 'x'));
    CacheFolder cache(home.path(), 10 * bytes.size());
    for (int i = 0; i < 10; ++i)
        ASSERT_TRUE(cache.store(nameOf(i), bytes));
    EXPECT_TRUE(cache.open(nameOf(0))); // Now the most recently used.
    ASSERT_TRUE(cache.store(nameOf(10), bytes));
    EXPECT_TRUE(cache.open(nameOf(0)));
    EXPECT_TRUE(cache.open(nameOf(10)));
    EXPECT_FALSE(cache.open(nameOf(1)));
    EXPECT_TRUE(QFile::exists(home.path(QStringLiteral("foreign.jpg"))));
    EXPECT_FALSE(cache.store(nameOf(11), QByteArray(11 * bytes.size(), 'x')));
    EXPECT_FALSE(cache.store(QStringLiteral("../escape.jpg"), bytes));
    // A smaller limit at the next start is kept at once.
    const CacheFolder smaller(home.path(), 3 * bytes.size());
    EXPECT_LE(QDir(home.path()).entryList({QStringLiteral("moon-*")}).size(), 3);
}

TEST(CacheFolder, DamagedFilesCountAsMissing)
{
    const testing::TempHome home;
    CacheFolder cache(home.path(), 1 << 20);
    const QByteArray good = jpeg(64);
    testing::expectWarning(QStringLiteral("Corrupt JPEG data"));
    testing::expectWarning(QStringLiteral("JPEG datastream contains no image"));
    for (const QByteArray &bad :
         {QByteArray(), good.chopped(1), QByteArray(1000, 'x'), good.left(3) + good.right(2),
          good.left(3) + QByteArray(500, '\0') + good.right(2)}) {
        home.write(nameOf(0), bad);
        EXPECT_FALSE(cache.open(nameOf(0))) << bad.size();
        EXPECT_FALSE(QFile::exists(home.path(nameOf(0))));
    }
    home.write(QStringLiteral("elsewhere.jpg"), good);
    QFile::link(home.path(QStringLiteral("elsewhere.jpg")), home.path(nameOf(0)));
    EXPECT_FALSE(cache.open(nameOf(0)));
}

TEST(RenderCache, ManyAskersOfOnePictureRenderItOnce)
{
    const testing::TempHome home;
    RenderCache cache(home.path(), 1 << 20);
    std::atomic<int> renders = 0;
    constexpr int askers = 16;
    std::latch allAsk(askers);
    std::vector<std::future<QByteArray>> answers;
    for (int i = 0; i < askers; ++i) {
        answers.push_back(std::async(std::launch::async, [&] {
            allAsk.arrive_and_wait();
            return bytesOf(cache.picture(nameOf(0), [&] {
                ++renders;
                return jpeg();
            }));
        }));
    }
    for (auto &answer : answers)
        EXPECT_EQ(answer.get(), jpeg());
    EXPECT_EQ(renders, 1);
}

TEST(RenderCache, FewRenderAtOnceFewWaitAndStopSendsThemAway)
{
    const testing::TempHome home;
    RenderCache cache(home.path(), 1 << 20, {.renders = 1, .waiting = 1});
    std::latch started(1);
    std::latch release(1);
    auto first = std::async(std::launch::async, [&] {
        return cache.picture(nameOf(0), [&] {
            started.count_down();
            release.wait();
            return jpeg();
        });
    });
    started.wait();
    // Of two more askers one may wait; the other is sent away at once, and that one tells which it
    // is.
    const auto ask = [&](int index) { return cache.picture(nameOf(index), [] { return jpeg(); }); };
    std::promise<void> oneIsBack;
    std::atomic<int> back = 0;
    const auto askAndTell = [&](int index) {
        auto answer = ask(index);
        if (back++ == 0)
            oneIsBack.set_value();
        return answer;
    };
    auto second = std::async(std::launch::async, askAndTell, 1);
    auto third = std::async(std::launch::async, askAndTell, 2);
    oneIsBack.get_future().wait();
    EXPECT_EQ(back, 1);
    cache.stop();
    for (auto *answer : {&second, &third}) {
        const auto got = answer->get();
        ASSERT_FALSE(got);
        EXPECT_EQ(got.error().reason, Reason::Busy);
    }
    release.count_down();
    EXPECT_EQ(bytesOf(first.get()), jpeg()); // What was being made is still given.
}

TEST(RenderCache, FailedRendersAreToldAndTriedAgain)
{
    const testing::TempHome home;
    RenderCache cache(home.path(), 1 << 20);
    EXPECT_FALSE(cache.picture(nameOf(0), []() -> QByteArray { throw std::bad_alloc(); }));
    EXPECT_FALSE(cache.picture(nameOf(0), [] { return QByteArray(); }));
    EXPECT_EQ(bytesOf(cache.picture(nameOf(0), [] { return jpeg(); })), jpeg());
}

TEST(RenderCache, ServesWithoutAFolderToWriteTo)
{
    const testing::TempHome home;
    home.write(QStringLiteral("file"), "in the way");
    testing::expectWarning(QStringLiteral("cannot write to the cache"));
    RenderCache cache(home.path(QStringLiteral("file/cache")), 1 << 20);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(bytesOf(cache.picture(nameOf(0), [] { return jpeg(); })), jpeg());
}

} // namespace moravel::server
