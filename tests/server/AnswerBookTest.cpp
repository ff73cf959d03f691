// SPDX-License-Identifier: MIT
// When a source is asked, and what its askers are told.
#include "server/network/AnswerBook.h"

#include "server/ScriptedUpstream.h"
#include "server/network/CurlHttp.h"
#include "server/network/PoliteHttp.h"
#include "server/network/SqliteStore.h"
#include "support/ExpectWarning.h"
#include "support/TempHome.h"

#include <future>
#include <gtest/gtest.h>
#include <latch>

namespace moravel::server {

namespace {

const QDate day(2024, 1, 14);

struct FakeAdapter : Adapter
{
    mutable std::atomic<int> asked{0};
    std::function<Outcome(QDate)> says = [](QDate) { return somePicture(); };

    static Picture somePicture(const char *caption = "Star")
    {
        Picture picture;
        picture.caption = QString::fromLatin1(caption);
        picture.normal = QStringLiteral("https://a.org/p.jpg");
        return picture;
    }

    Outcome ask(QDate date, Asking &) const override
    {
        ++asked;
        return says(date);
    }
};

/// Books over one store, at a time that the test sets.
struct Library
{
    testing::TempHome home;
    std::unique_ptr<AnswerStore> store =
        SqliteStore::open(home.path(QStringLiteral("a.sqlite"))).value();
    CurlHttp http{QStringLiteral("test")};
    Lane lookUps{2, 1000};
    Alarms alarms;
    Metrics metrics;
    std::atomic<qint64> seconds{0};

    BookSetup setup(std::chrono::milliseconds deadline = std::chrono::seconds(20))
    {
        return {*store,
                http,
                lookUps,
                alarms,
                metrics,
                [this] { return QDateTime::fromSecsSinceEpoch(1'700'000'000 + seconds, Qt::UTC); },
                [] { return 1.0; },
                deadline};
    }

    ~Library() { lookUps.end(); }
};

struct BookFixture : ::testing::Test
{
    Library library;
    FakeAdapter adapter;
    std::unique_ptr<AnswerBook> book = open();

    std::unique_ptr<AnswerBook> open(std::chrono::milliseconds deadline = std::chrono::seconds(20))
    {
        return std::make_unique<AnswerBook>(QStringLiteral("Fake"), adapter, true,
                                            library.setup(deadline));
    }

    std::string ask(QDate date = day, bool refresh = false)
    {
        std::promise<Outcome> told;
        book->ask(date, refresh, [&](const Outcome &outcome) { told.set_value(outcome); });
        const Outcome outcome = told.get_future().get();
        const auto *picture = std::get_if<Picture>(&outcome);
        return picture ? picture->caption.toStdString() : kindName(outcome);
    }

    ~BookFixture() override
    {
        book->stop();
        library.lookUps.end(); // Lest it looks something up for a book that is gone.
    }
};

} // namespace

TEST_F(BookFixture, ManyAskersCauseOneQuestion)
{
    std::latch go(1);
    adapter.says = [&](QDate) {
        go.wait();
        return FakeAdapter::somePicture();
    };
    constexpr int askers = 200;
    std::latch told(askers);
    for (int i = 0; i < askers; ++i)
        book->ask(day, false, [&](const Outcome &) { told.count_down(); });
    go.count_down();
    told.wait();
    EXPECT_EQ(adapter.asked, 1);
}

TEST_F(BookFixture, PicturesAreFinalAlsoAfterARestart)
{
    EXPECT_EQ(ask(), "Star");
    library.seconds = 365 * 86'400;
    book = nullptr;
    book = open();
    EXPECT_EQ(ask(), "Star");
    EXPECT_EQ(adapter.asked, 1);
}

TEST_F(BookFixture, RefreshAsksOnceAMinuteAndNeverLosesAPicture)
{
    ask();
    adapter.says = [](QDate) { return FakeAdapter::somePicture("Planet"); };
    EXPECT_EQ(ask(day, true), "Star"); // Too soon.
    library.seconds = 60;
    EXPECT_EQ(ask(day, true), "Planet");
    EXPECT_EQ(ask(), "Planet");
    library.seconds = 120;
    adapter.says = [](QDate) -> Outcome { throw std::runtime_error("x"); };
    EXPECT_EQ(ask(day, true), "Planet");
    EXPECT_EQ(adapter.asked, 3);
    EXPECT_EQ(ask(day.addDays(1)), "down");
}

TEST_F(BookFixture, ASilentSourceIsLeftAloneForAllDays)
{
    const struct
    {
        Outcome outcome;
        int silence; ///< Seconds.
    } cases[] = {{SourceDown{}, 60},
                 {RateLimited{QDateTime::fromSecsSinceEpoch(1'700'000'000 + 500, Qt::UTC)}, 500}};

    for (const auto &[outcome, silence] : cases) {
        library.seconds = 0;
        book = nullptr;
        library.store =
            SqliteStore::open(library.home.path(QStringLiteral("%1.sqlite").arg(silence))).value();
        book = open();
        adapter.asked = 0;
        adapter.says = [&](QDate) { return outcome; };
        EXPECT_EQ(ask(), kindName(outcome));
        adapter.says = [](QDate) { return FakeAdapter::somePicture(); };
        library.seconds = silence - 1;
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(ask(day.addDays(-i)), kindName(outcome));
        EXPECT_EQ(adapter.asked, 1);
        library.seconds = silence;
        EXPECT_EQ(ask(day.addDays(-3)), "Star");
    }
    // One picture out of reach says nothing of other days.
    adapter.says = [&](QDate it) -> Outcome {
        return it == day.addDays(-20) ? Outcome(SourceDown{{}, true}) : FakeAdapter::somePicture();
    };
    EXPECT_EQ(ask(day.addDays(-20)), "down");
    EXPECT_EQ(ask(day.addDays(-21)), "Star");
}

TEST_F(BookFixture, WhoWaitedTooLongIsToldAndTheNextGetsTheAnswer)
{
    book = open(std::chrono::milliseconds(50));
    FakeAdapter other;
    AnswerBook quick(QStringLiteral("Other"), other, true, library.setup());
    std::latch go(1);
    adapter.says = [&](QDate) {
        go.wait();
        return FakeAdapter::somePicture();
    };
    EXPECT_EQ(ask(), "down");
    std::promise<void> told; // Another source does not wait for this one.
    quick.ask(day, false, [&](const Outcome &) { told.set_value(); });
    told.get_future().wait();
    go.count_down();
    book = nullptr; // Waits for what is being asked.
    book = open();
    EXPECT_EQ(ask(), "Star");
    EXPECT_EQ(adapter.asked, 1);
}

TEST(Outcomes, ExpireInTheirOwnWays)
{
    const QDateTime now = QDateTime::fromSecsSinceEpoch(1'700'000'000, Qt::UTC);
    const auto after = [&](const Outcome &outcome, int failures, double chance) {
        const QDateTime expiry = expiryOf(outcome, now, failures, chance);
        return expiry.isValid() ? now.secsTo(expiry) : -1;
    };
    EXPECT_EQ(after(Picture{}, 0, 0), -1);
    EXPECT_EQ(after(NotYetPublished{}, 0, 1), 600);
    EXPECT_EQ(after(SourceDown{}, 1, 0), 30);
    EXPECT_EQ(after(SourceDown{}, 1, 1), 60);
    EXPECT_EQ(after(SourceDown{}, 3, 1), 240);
    EXPECT_EQ(after(SourceDown{}, 1000, 1), 3600);
    EXPECT_EQ(after(RateLimited{now.addSecs(77)}, 0, 0.5), 77);
    EXPECT_EQ(after(RateLimited{now.addSecs(-77)}, 0, 0.5), 1);
    for (const char *damaged : {"", "[]", "{}", R"({"kind":5})", R"({"kind":"picture","page":1})"})
        EXPECT_FALSE(outcomeFrom(damaged)) << damaged;
    Picture local = FakeAdapter::somePicture();
    local.full = QStringLiteral("file:///etc/passwd");
    EXPECT_EQ(std::get<Picture>(checked(local)).full, local.normal);
    local.normal = QStringLiteral("javascript:x");
    EXPECT_STREQ(kindName(checked(local)), "not_a_picture");
}

TEST(SqliteStore, PutsADamagedFileAside)
{
    const testing::TempHome home;
    const QString path = home.write(QStringLiteral("a.sqlite"), QByteArray(5000, 'x'));
    testing::expectWarning(QStringLiteral("damaged answer store"));
    EXPECT_TRUE(SqliteStore::open(path));
    EXPECT_TRUE(QFile::exists(path + QLatin1StringView(".damaged")));
    EXPECT_FALSE(SqliteStore::open(QStringLiteral("/proc/nowhere/a.sqlite")));
}

TEST(CurlHttp, RefusesWhatItShouldNotFetch)
{
    ScriptedUpstream upstream({{"/ok", "fine"},
                               {"/moved", "", 302, "Location: @/ok"},
                               {"/loop", "", 302, "Location: @/loop"},
                               {"/local", "", 302, "Location: file:///etc/passwd"},
                               {"/long", QByteArray(3000, 'x')},
                               {"/soon", "", 503, "Retry-After: 7"}});
    CurlHttp http(QStringLiteral("test"));
    const auto get = [&](const QUrl &url, bool mayBePrivate = true, bool beginning = false) {
        FetchRequest request;
        request.url = url;
        request.mostBytes = 1000;
        request.mayBePrivate = mayBePrivate;
        request.beginningOnly = beginning;
        request.deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        return http.get(request);
    };
    EXPECT_EQ(get(upstream.url("/ok"))->body, "fine");
    EXPECT_EQ(get(upstream.url("/moved"))->url, upstream.url("/ok"));
    EXPECT_EQ(get(upstream.url("/soon"))->retryAfter, 7);
    EXPECT_EQ(get(upstream.url("/long"), true, true)->body.size(), 1000);
    EXPECT_FALSE(get(upstream.url("/long")));
    EXPECT_FALSE(get(upstream.url("/loop")));
    EXPECT_FALSE(get(upstream.url("/local")));
    EXPECT_TRUE(get(upstream.url("/ok"), false).error().contains(QLatin1StringView("private")));
    EXPECT_FALSE(get(QUrl(QStringLiteral("file:///etc/passwd"))));
    http.stop();
    EXPECT_FALSE(get(upstream.url("/ok")));
}

TEST(PoliteHttp, AsksAHostOneThingAtATimeAndReusesAnswers)
{
    ScriptedUpstream upstream({{"/tagged", "fine", 200, "ETag: \"1\""}});
    CurlHttp http(QStringLiteral("test"));
    PoliteHttp polite(http);
    const auto get = [&](int reuseSeconds, int patienceMs = 20'000) {
        FetchRequest request;
        request.url = upstream.url("/tagged");
        request.mayBePrivate = true;
        request.reuseSeconds = reuseSeconds;
        request.deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(patienceMs);
        return polite.get(request);
    };
    EXPECT_EQ(get(0)->body, "fine");
    EXPECT_EQ(get(100)->body, "fine");
    EXPECT_EQ(upstream.count("/tagged"), 1);
    upstream.set({"/tagged", "", 304});
    EXPECT_EQ(get(0)->body, "fine");
    upstream.hold();
    auto slow = std::async(std::launch::async, [&] { return get(0); });
    while (upstream.count("/tagged") < 3)
        std::this_thread::yield();
    EXPECT_FALSE(get(0, 50));
    upstream.letGo();
    EXPECT_EQ(slow.get()->body, "fine");
}

} // namespace moravel::server
