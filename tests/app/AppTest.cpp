// SPDX-License-Identifier: MIT
// The whole application offscreen: real window, disk and images, a virtual clock, a played service.
#include "App.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/LargePicWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>

namespace {

struct AppTest : ::testing::Test
{
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
        auto *go = app.find<QAbstractButton>("showPicturesButton");
        ASSERT_EQ(checked.size(), 2);
        ASSERT_TRUE(go);
        QTest::keyClick(checked[1], Qt::Key_Space);
        QTest::keyClick(go, Qt::Key_Space);
        EXPECT_EQ(app.delegate.cells().visibleThumbs(), 1);
    }
    App again(home);
    again.run(5);
    EXPECT_EQ(again.delegate.cells().visibleThumbs(), 1);
    EXPECT_FALSE(again.cell(0).isHidden());
    EXPECT_EQ(again.cell(0).longSourceName(), u"Sea & Land"_s);
}

TEST_F(AppTest, sourcesFromTheCommandLineFillTheWindow)
{
    App app(home, allSources());
    app.run(20);
    EXPECT_EQ(app.delegate.cells().visibleThumbs(), 2);
    EXPECT_EQ(app.cell(1).captionField(), u"Caption B"_s);
    EXPECT_EQ(QDir(home.path(u"Pictures/Moravel"_s)).entryList(QDir::Files),
              (QStringList{u"A.jpg"_s, u"B.jpg"_s}));
    EXPECT_TRUE(app.alerts.shown.isEmpty());
}

TEST_F(AppTest, aButtonDeletesAPictureAndADoubleClickBringsItBack)
{
    App app(home, allSources());
    app.run(20);
    const ThumbView &cell = app.cell(0);
    for (const char *restoring : {"captionField", "clicker"}) {
        const QString field = QString::fromLatin1(restoring);
        QAbstractButton *button = nullptr;
        for (auto *each : app.delegate.window().findChildren<QAbstractButton *>(u"deleteBtn"_s))
            button = each->property("tag") == cell.tag() ? each : button;
        ASSERT_TRUE(button);
        EXPECT_FALSE(button->isHidden());
        button->click();
        app.run(1);
        EXPECT_EQ(cell.captionField(), u"Deleted.\n\nDouble-click to un-delete."_s);
        EXPECT_TRUE(button->isHidden());
        EXPECT_FALSE(QFile::exists(home.path(u"Pictures/Moravel/A.jpg"_s)));
        QWidget *card = button->parentWidget();
        while (!card->findChild<QWidget *>(u"captionField"_s))
            card = card->parentWidget();
        QTest::mouseDClick(card->findChild<QWidget *>(field), Qt::LeftButton);
        app.run(5);
        EXPECT_EQ(cell.captionField(), u"Caption A"_s);
        EXPECT_TRUE(QFile::exists(home.path(u"Pictures/Moravel/A.jpg"_s)));
    }
}

TEST_F(AppTest, asksAgainWhileTheServiceIsSilent)
{
    App app(home);
    app.down = true;
    app.run(61);
    const auto asked =
        std::count_if(app.http.requests.begin(), app.http.requests.end(), [](const HttpRequest &r) {
            return r.url.path().endsWith("getSources.irev"_L1);
        });
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(app.delegate.cells().count(), 0);
    const auto *status = app.find<CaptionLabel>("statusBar");
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
    home.write(u"Pictures/Moravel"_s, "in the way");
    App app(home, allSources());
    app.run(20);
    ASSERT_FALSE(app.alerts.shown.isEmpty());
    EXPECT_EQ(app.alerts.shown.first().title, u"Error creating Moravel folder."_s);
    EXPECT_EQ(app.cell(0).captionField(), u"Caption A"_s);
    EXPECT_EQ(TempHome::read(home.path(u"Pictures/Moravel"_s)), "in the way");
}

TEST_F(AppTest, leftOversGoAtTheStartAndHalfDownloadsAtTheEnd)
{
    const QString old = home.write(u"Pictures/Moravel/.x.jpg.abcdef.part"_s, "IM");
    App app(home, allSources());
    app.http.answer = [&](const HttpRequest &request) -> std::optional<FakeHttp::Answer> {
        const QString file = request.url.fileName();
        if (file == u"A.jpg" || file == u"B.jpg")
            return std::nullopt;
        return app.serve(request);
    };
    app.run(20);
    EXPECT_FALSE(QFile::exists(old));
    const QDir folder(home.path(u"Pictures/Moravel"_s));
    EXPECT_FALSE(folder.entryList({u".*.part"_s}, QDir::Files | QDir::Hidden).isEmpty());
    app.delegate.applicationShouldTerminate();
    EXPECT_TRUE(folder.entryList(QDir::Files | QDir::Hidden).isEmpty());
}

TEST_F(AppTest, largePictureFollowsItsDownloadAndHoldsTheSequenceForItsPage)
{
    App app(home, allSources());
    bool slow = true;
    app.http.answer = [&](const HttpRequest &request) -> std::optional<FakeHttp::Answer> {
        return slow && request.url.fileName() == u"A.jpg" ? std::nullopt : app.serve(request);
    };
    app.run(20);
    ThumbView &cell = app.cell(0);
    cell.showThumbLarge();
    LargePic &large = app.delegate.largePic();
    ASSERT_TRUE(large.isVisible());
    const auto part = [&large](const char *name) {
        return large.pic()->findChild<QWidget *>(QLatin1String(name));
    };
    EXPECT_TRUE(part("progress")->isVisible());
    EXPECT_EQ(large.pic()->picDetails().toPlainText(), u"Info"_s);
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
    App app(home, allSources());
    app.run(20);
    app.find<QAction>("picBrowser")->trigger();
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
    EXPECT_EQ(*parse("--sources|all")->sources, QStringList{u"all"_s});
    EXPECT_EQ(*parse("--sources=One, Two words")->sources, (QStringList{u"One"_s, u"Two words"_s}));
    EXPECT_TRUE(parse("--hidden")->hidden);
    EXPECT_EQ(parse("hold")->action, Options::Action::Command);
    EXPECT_TRUE(parse("current|--json")->json);
    EXPECT_EQ(parse("set|--|-a.jpg")->arguments, QStringList{u"-a.jpg"_s});
    for (const char *wrong : {"--sources", "--frobnicate", "file.jpg", "next|--json", "--json",
                              "set", "set|a|b", "next|now", "quit|--sources|all", "-"})
        EXPECT_FALSE(parse(wrong)) << wrong;
}

} // namespace
