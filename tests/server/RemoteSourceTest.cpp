// SPDX-License-Identifier: MIT
// A network source from its answer to what clients get.
#include "server/network/RemoteSource.h"

#include "server/Fakes.h"
#include "server/ScriptedUpstream.h"
#include "server/core/Links.h"
#include "server/network/CurlHttp.h"
#include "server/network/SqliteStore.h"

#include <QBuffer>

#include <future>
#include <gtest/gtest.h>

namespace moravel::server {

namespace {

struct Given : Adapter
{
    Outcome outcome;

    explicit Given(Outcome it) : outcome(std::move(it)) { }

    Outcome ask(QDate, Asking &) const override { return outcome; }
};

QByteArray largeJpeg(QSize size)
{
    QImage image(size, QImage::Format_Grayscale8);
    image.fill(99);
    return encodedJpeg(image, PictureKind::Full);
}

/// A service with one network source.
struct RemoteFixture : ::testing::Test
{
    ScriptedUpstream upstream{{{"/a_large_picture.jpg", "x", 200, "Content-Type: image/jpeg"},
                               {"/not_a_picture.jpg", "<html>"}}};
    testing::TempHome home;
    std::unique_ptr<AnswerStore> store =
        SqliteStore::open(home.path(QStringLiteral("a.sqlite"))).value();
    CurlHttp http{QStringLiteral("test")};
    Lane lookUps{2, 100};
    Alarms alarms;
    Metrics metrics;
    SourceList sources;
    Service service{sources, {{}, "h:1", [] { return now(); }, nullptr, nullptr, &metrics}};
    RemoteSource *remote = nullptr;

    static QDateTime now() { return {QDate(2024, 1, 15), QTime(12, 0), Qt::UTC}; }

    ~RemoteFixture() override
    {
        remote->stop();
        lookUps.end();
    }

    void serve(const char *file, bool proxy)
    {
        Picture picture;
        picture.caption = QStringLiteral("A <b>ship</b>");
        picture.page = QStringLiteral("https://c.org/wiki/File:A_ship.jpg");
        picture.credit = QStringLiteral("© Jane, CC BY 4.0.");
        picture.normal = QString::fromLatin1(upstream.base() + file);
        picture.thumb = QStringLiteral("https://i.org/full/400,/0/default.jpg");
        if (proxy)
            picture.thumb = picture.normal;
        picture.fullSize = {8000, 4000};
        auto source = std::make_unique<RemoteSource>(
            RemoteSetup{QStringLiteral("Far"), QStringLiteral("Far away"), true, proxy, {}},
            std::make_unique<Given>(picture),
            BookSetup{*store, http, lookUps, alarms, metrics, [] { return now(); },
                      [] { return 0.5; }},
            std::make_shared<CacheFolder>(home.path(QStringLiteral("cache")), 1 << 24));
        remote = source.get();
        sources.add(std::move(source));
    }

    Response get(const QByteArray &target, const QByteArray &range = {})
    {
        std::promise<Response> told;
        Request request{"GET", target, "h:1", {}, {}, {}};
        request.range = range;
        request.fromLoopback = true;
        service.handle(request, [&](Response response) { told.set_value(std::move(response)); });
        return told.get_future().get();
    }

    QByteArray day(const QByteArray &option)
    {
        return get("/potd/defs/moravel.irev?source=Far&date=1/14/2024&option=" + option)
            .content.bytes;
    }
};

} // namespace

TEST_F(RemoteFixture, AllOptionsAgreeAndTheTextEndsWithCreditAndPage)
{
    serve("/a_large_picture.jpg", false);
    const QList<QByteArray> lines = day("all").split('\n');
    ASSERT_EQ(lines.size(), 8);
    EXPECT_EQ(lines[0], "https://c.org/wiki/File:A_ship.jpg");
    EXPECT_EQ(lines[1], "A &lt;b&gt;ship&lt;/b&gt;");
    EXPECT_EQ(lines[2],
              "http://h:1/potd/pictures/far-20240114-thumb.jpg"); // "default.jpg" would clash.
    EXPECT_EQ(lines[3], upstream.base() + "/a_large_picture.jpg");
    EXPECT_EQ(lines[5], "8000,4000,8.00");
    EXPECT_EQ(lines[6],
              "© Jane, CC BY 4.0. <a href=\"https://c.org/wiki/File:A%5Fship.jpg\">Far away</a>");
    EXPECT_EQ(day("parent"), lines[0] + '\n');
    EXPECT_EQ(day("thumb"), lines[2] + '\n');
    EXPECT_EQ(day("captionPlusText"), lines[1] + '\n' + lines[6] + '\n');
    const Response thumb = get("/potd/pictures/far-20240114-thumb.jpg");
    EXPECT_EQ(thumb.status, 302);
    EXPECT_EQ(thumb.header("Location"), "https://i.org/full/400,/0/default.jpg");
    EXPECT_TRUE(get("/metrics").content.bytes.contains("outcome=\"picture\"} 1\n"));
}

TEST_F(RemoteFixture, ProxiedPicturesAreFittedKeptAndServedInRanges)
{
    serve("/a_large_picture.jpg", true);
    upstream.set(
        {"/a_large_picture.jpg", largeJpeg({12'000, 9'000}), 200, "Content-Type: image/jpeg"});
    EXPECT_FALSE(day("all").contains(upstream.base()));
    EXPECT_EQ(day("all").split('\n')[5], "3840,1920,1.84");
    const QByteArray target = "/potd/pictures/far-20240114-1920x1080.jpg";
    for (int i = 0; i < 2; ++i) {
        const Response response = get(target);
        ASSERT_TRUE(response.content.file) << response.content.bytes.toStdString();
        EXPECT_EQ(QImage::fromData(response.content.file->readAll()).size(), QSize(1440, 1080));
        EXPECT_FALSE(response.header("ETag").isEmpty());
        EXPECT_FALSE(response.header("Last-Modified").isEmpty());
    }
    EXPECT_EQ(upstream.count("/a_large_picture.jpg"), 1);

    const struct
    {
        const char *range;
        int status;
        qint64 from;
        qint64 length;
    } cases[] = {{"bytes=0-9", 206, 0, 10},      {"bytes=5-", 206, 5, -5},
                 {"bytes=-3", 206, -3, 3},       {"bytes=0-1,3-4", 200, 0, -1},
                 {"bytes=9-1", 200, 0, -1},      {"bytes=-", 200, 0, -1},
                 {"bytes=99999999-", 416, 0, -1}};

    for (const auto &[range, status, from, length] : cases) {
        SCOPED_TRACE(range);
        const Response response = get(target, range);
        const qint64 size = response.content.size();
        EXPECT_EQ(response.status, status);
        EXPECT_EQ(response.content.from, from < 0 ? size + from : from);
        EXPECT_EQ(response.content.length, length == -5 ? size - 5 : length);
    }
}

TEST_F(RemoteFixture, WhatIsNoPictureIsNotProxied)
{
    serve("/not_a_picture.jpg", true);
    EXPECT_EQ(get("/potd/pictures/far-20240114-thumb.jpg").status, 503);
}

TEST(Links, OnlyThoseThatClientsCanUseGoOut)
{
    const auto usable = [](const char *url) { return isUsableLink(QUrl(QString::fromUtf8(url))); };
    for (const char *good : {"https://a.org/heic0506a.jpg", "http://a.org/x/960px-Old_harbour.JPG"})
        EXPECT_TRUE(usable(good)) << good;
    for (const char *bad :
         {"https://a.org/default.jpg", "https://a.org/th?id=OHR.Harbour_UHD.jpg",
          "https://a.org/a.jpg", "https://a.org/http://b.org/harbour1.jpg",
          "https://a.org/harbour1", "file:///harbour1.jpg", "https://u:p@a.org/harbour1.jpg",
          "https://a.org/h%2F..%2Fharbour1.jpg", "//a.org/harbour1.jpg",
          "https://a.org/.harbour1.jpg", "https://a.org/", ""})
        EXPECT_FALSE(usable(bad)) << bad;
}

} // namespace moravel::server
