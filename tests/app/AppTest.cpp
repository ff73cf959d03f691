// SPDX-License-Identifier: MIT
// The whole application offscreen: real window, disk and images, a virtual clock, a played service.
#include "support/FakeHttp.h"
#include "support/FakeImages.h"
#include "support/FakeMainLoop.h"
#include "support/FakePlatform.h"
#include "support/FakeThumbnails.h"
#include "support/HomeFiles.h"
#include "support/TempHome.h"
#include "support/Wait.h"

#include "app/MoravelAppDelegate.h"
#include "mainwindow/CaptionLabel.h"
#include "platform/linux/PosixFiles.h"
#include "platform/qt/QtDefaults.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QTest>
#include <QUrlQuery>

#include <gtest/gtest.h>

namespace moravel {
namespace {

using namespace testing;

class App
{
public:
    explicit App(const TempHome &home, Options options = {})
        : files(home)
        , defaults(home.path(QStringLiteral("prefs.ini")))
        , delegate({loop, http, defaults, files, alerts, images, random}, std::nullopt,
                   QStringLiteral("http://service/potd"), std::move(options), &thumbnails)
    {
        http.answer = [this](const HttpRequest &request) { return serve(request); };
        delegate.applicationWillFinishLaunching();
        delegate.window().show();
        loop.schedule(0, [this] { delegate.applicationDidFinishLaunching(); });
    }

    void run(double seconds)
    {
        for (int step = 0; step < qRound(seconds / 0.05); ++step) {
            loop.advance(0.05);
            while (http.deliver() || images.deliver()) { }
        }
        QCoreApplication::processEvents();
    }

    std::optional<FakeHttp::Answer> serve(const HttpRequest &request)
    {
        const QString url = request.url.toString();
        if (down)
            return FakeHttp::Answer{{}, 500};
        if (url.endsWith(QLatin1String("getSources.irev")))
            return FakeHttp::Answer{"Astronomy\tB\nSea & Land\tA"};
        if (request.method != "POST")
            return FakeHttp::Answer{"IMG"};
        const QString id =
            QUrlQuery(QString::fromUtf8(request.body)).queryItemValue(QStringLiteral("source"));
        return FakeHttp::Answer{
            QStringLiteral("http://p\nCaption %1\nhttp://p/t%1.jpg\nhttp://p/%1.jpg\n\n\nInfo")
                .arg(id)
                .toUtf8()};
    }

    bool down = false;
    FakeMainLoop loop;
    FakeHttp http;
    HomeFiles files;
    QtDefaults defaults;
    FakeAlerts alerts;
    FakeImages images;
    FakeRandom random;
    FakeThumbnails thumbnails;
    MoravelAppDelegate delegate;
};

class AppTest : public ::testing::Test
{
protected:
    TempHome home;
};

TEST_F(AppTest, firstStartWelcomesAndRemembersTheChoice)
{
    {
        App app(home);
        app.run(5);
        EXPECT_EQ(app.delegate.cells().visibleThumbs(), 0);
        QList<QAbstractButton *> checked;
        for (auto *button : app.delegate.window().findChildren<QAbstractButton *>()) {
            if (button->isVisible() && button->isCheckable() && button->isChecked())
                checked.append(button);
        }
        auto *go = app.delegate.window().findChild<QAbstractButton *>(
            QStringLiteral("showPicturesButton"));
        ASSERT_EQ(checked.size(), 2);
        ASSERT_TRUE(go);
        QTest::keyClick(checked[1], Qt::Key_Space);
        QTest::keyClick(go, Qt::Key_Space);
        EXPECT_EQ(app.delegate.cells().visibleThumbs(), 1);
    }
    App again(home);
    again.run(5);
    EXPECT_EQ(again.delegate.cells().visibleThumbs(), 1);
    EXPECT_FALSE(again.delegate.cells().at(0).isHidden());
    EXPECT_EQ(again.delegate.cells().at(0).longSourceName(), QStringLiteral("Sea & Land"));
}

TEST_F(AppTest, sourcesFromTheCommandLineFillTheWindow)
{
    Options options;
    options.sources = QStringList{QStringLiteral("all")};
    App app(home, options);
    app.run(20);
    EXPECT_EQ(app.delegate.cells().visibleThumbs(), 2);
    EXPECT_EQ(app.delegate.cells().at(1).captionField(), QStringLiteral("Caption B"));
    EXPECT_EQ(QDir(home.path(QStringLiteral("Pictures/Moravel"))).entryList(QDir::Files),
              (QStringList{QStringLiteral("A.jpg"), QStringLiteral("B.jpg")}));
    EXPECT_TRUE(app.alerts.shown.isEmpty());
}

TEST_F(AppTest, asksAgainWhileTheServiceIsSilent)
{
    App app(home);
    app.down = true;
    app.run(61);
    const auto asked =
        std::count_if(app.http.requests.begin(), app.http.requests.end(), [](const HttpRequest &r) {
            return r.url.path().endsWith(QLatin1String("getSources.irev"));
        });
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(app.delegate.cells().count(), 0);
    const auto *status =
        app.delegate.window().findChild<CaptionLabel *>(QStringLiteral("statusBar"));
    ASSERT_TRUE(status);
    EXPECT_EQ(status->text(), QString()); // nothing of thumbnails that are not there
    app.down = false;
    app.run(60);
    EXPECT_EQ(app.delegate.cells().count(), 2);
    app.run(300);
    EXPECT_EQ(app.delegate.cells().count(), 2);
}

TEST_F(AppTest, aFileInPlaceOfTheFolderIsToldAndSurvived)
{
    home.write(QStringLiteral("Pictures/Moravel"), "in the way");
    Options options;
    options.sources = QStringList{QStringLiteral("all")};
    App app(home, options);
    app.run(20);
    ASSERT_FALSE(app.alerts.shown.isEmpty());
    EXPECT_EQ(app.alerts.shown.first().title, QStringLiteral("Error creating Moravel folder."));
    EXPECT_EQ(app.delegate.cells().at(0).captionField(), QStringLiteral("Caption A"));
    EXPECT_EQ(TempHome::read(home.path(QStringLiteral("Pictures/Moravel"))), "in the way");
}

TEST_F(AppTest, leftOversGoAtTheStartAndHalfDownloadsAtTheEnd)
{
    const QString old = home.write(QStringLiteral("Pictures/Moravel/.x.jpg.abcdef.part"), "IM");
    Options options;
    options.sources = QStringList{QStringLiteral("all")};
    App app(home, options);
    app.http.answer = [&](const HttpRequest &request) -> std::optional<FakeHttp::Answer> {
        const QString file = request.url.fileName();
        if (file == u"A.jpg" || file == u"B.jpg")
            return std::nullopt;
        return app.serve(request);
    };
    app.run(20);
    EXPECT_FALSE(QFile::exists(old));
    const QDir folder(home.path(QStringLiteral("Pictures/Moravel")));
    EXPECT_FALSE(
        folder.entryList({QStringLiteral(".*.part")}, QDir::Files | QDir::Hidden).isEmpty());
    app.delegate.applicationShouldTerminate();
    EXPECT_TRUE(folder.entryList(QDir::Files | QDir::Hidden).isEmpty());
}

TEST_F(AppTest, theBrowserShowsWhatWasGathered)
{
    Options options;
    options.sources = QStringList{QStringLiteral("all")};
    App app(home, options);
    app.run(20);
    app.delegate.window().findChild<QAction *>(QStringLiteral("picBrowser"))->trigger();
    Browser &browser = app.delegate.browser()->browser();
    EXPECT_EQ(browser.browserWindow().findChild<QComboBox *>()->count(), 3);
    MORAVEL_WAIT(browser.images().rowCount() == 2);
    browser.browserWindow().close();
    EXPECT_TRUE(app.delegate.window().isVisible());
    Q_EMIT app.delegate.window().windowDidExitFullScreen();
    EXPECT_EQ(browser.images().rowCount(), 2);
}

TEST(Options, commandLine)
{
    const auto parse = [](const char *line) {
        return parseOptions(QString::fromUtf8(line).split(u'|', Qt::SkipEmptyParts));
    };
    EXPECT_EQ(parse("--version")->action, Options::Action::PrintVersion);
    EXPECT_EQ(parse("-h")->action, Options::Action::PrintHelp);
    EXPECT_FALSE(parse("")->sources);
    EXPECT_EQ(*parse("--sources|all")->sources, QStringList{QStringLiteral("all")});
    EXPECT_EQ(*parse("--sources=One, Two words")->sources,
              (QStringList{QStringLiteral("One"), QStringLiteral("Two words")}));
    EXPECT_FALSE(parse("--sources"));
    EXPECT_FALSE(parse("--frobnicate"));
    EXPECT_FALSE(parse("file.jpg"));
}

} // namespace
} // namespace moravel
