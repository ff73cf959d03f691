// SPDX-License-Identifier: MIT
// The whole application offscreen: real window, disk and images, a virtual clock, a played service.
#include "App.h"

#include "support/Wait.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/LargePicWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QTest>

#include <gtest/gtest.h>

namespace moravel {
namespace {

using namespace testing;

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

TEST_F(AppTest, aButtonDeletesAPictureAndADoubleClickBringsItBack)
{
    Options options;
    options.sources = QStringList{QStringLiteral("all")};
    App app(home, options);
    app.run(20);
    const ThumbView &cell = app.delegate.cells().at(0);
    for (const char *restoring : {"captionField", "clicker"}) {
        const QString field = QString::fromLatin1(restoring);
        QAbstractButton *button = nullptr;
        for (auto *each :
             app.delegate.window().findChildren<QAbstractButton *>(QStringLiteral("deleteBtn")))
            button = each->property("tag") == cell.tag() ? each : button;
        ASSERT_TRUE(button);
        EXPECT_FALSE(button->isHidden());
        button->click();
        app.run(1);
        EXPECT_EQ(cell.captionField(), QStringLiteral("Deleted.\n\nDouble-click to un-delete."));
        EXPECT_TRUE(button->isHidden());
        EXPECT_FALSE(QFile::exists(home.path(QStringLiteral("Pictures/Moravel/A.jpg"))));
        QWidget *card = button->parentWidget();
        while (!card->findChild<QWidget *>(QStringLiteral("captionField")))
            card = card->parentWidget();
        QTest::mouseDClick(card->findChild<QWidget *>(field), Qt::LeftButton);
        app.run(5);
        EXPECT_EQ(cell.captionField(), QStringLiteral("Caption A"));
        EXPECT_TRUE(QFile::exists(home.path(QStringLiteral("Pictures/Moravel/A.jpg"))));
    }
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

TEST_F(AppTest, largePictureFollowsItsDownloadAndHoldsTheSequenceForItsPage)
{
    Options options;
    options.sources = QStringList{QStringLiteral("all")};
    App app(home, options);
    bool slow = true;
    app.http.answer = [&](const HttpRequest &request) -> std::optional<FakeHttp::Answer> {
        return slow && request.url.fileName() == u"A.jpg" ? std::nullopt : app.serve(request);
    };
    app.run(20);
    ThumbView &cell = app.delegate.cells().at(0);
    cell.showThumbLarge();
    LargePic &large = app.delegate.largePic();
    ASSERT_TRUE(large.isVisible());
    const auto part = [&large](const char *name) {
        return large.pic()->findChild<QWidget *>(QLatin1String(name));
    };
    EXPECT_TRUE(part("progress")->isVisible());
    EXPECT_EQ(large.pic()->picDetails().toPlainText(), QStringLiteral("Info"));
    slow = false;
    app.delegate.applicationShouldTerminate(); // ends the download that hangs
    cell.showThumbLarge();
    app.run(2);
    EXPECT_FALSE(part("progress")->isVisible());
    EXPECT_FALSE(large.pic()->largeImage().image().isNull());

    cell.setParentPath({});
    large.showParent();
    EXPECT_TRUE(app.loop.isHeld());
    EXPECT_FALSE(part("parentButton")->isEnabled());
    app.run(1);
    EXPECT_FALSE(app.loop.isHeld());
    EXPECT_TRUE(part("parentButton")->isEnabled());
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
    EXPECT_TRUE(parse("--hidden")->hidden);
    EXPECT_EQ(parse("hold")->action, Options::Action::Command);
    EXPECT_TRUE(parse("current|--json")->json);
    EXPECT_EQ(parse("set|--|-a.jpg")->arguments, QStringList{QStringLiteral("-a.jpg")});
    for (const char *wrong : {"--sources", "--frobnicate", "file.jpg", "next|--json", "--json",
                              "set", "set|a|b", "next|now", "quit|--sources|all", "-"})
        EXPECT_FALSE(parse(wrong)) << wrong;
}

} // namespace
} // namespace moravel
