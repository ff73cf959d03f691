// SPDX-License-Identifier: MIT
// The application as a guest of the session: started by it, quiet where it would disturb, and not too large.
#include "App.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QScreen>

namespace {

struct SessionTest : ::testing::Test
{
    QStringList pictures() const
    {
        return QDir(home.path(u"Pictures/Moravel"_s)).entryList(QDir::Files);
    }

    const QStringList both{u"A.jpg"_s, u"B.jpg"_s};
    TempHome home;
};

TEST_F(SessionTest, startsInTheTrayElseMinimised)
{
    for (const bool tray : {true, false}) {
        App app(home, allSources(true), true);
        app.hasTray = tray;
        app.run(10);
        EXPECT_FALSE(app.delegate.window().isVisible());
        EXPECT_EQ(app.cell(0).captionField(), u"Caption A"_s);
        app.run(10);
        EXPECT_EQ(app.delegate.window().isVisible(), !tray);
        EXPECT_EQ(app.delegate.window().isMinimized(), !tray);
    }
}

TEST_F(SessionTest, windowsComeBackOnTheScreens)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();

    bool sideBar = true; // it changes each time
    for (const auto &[put, stays] :
         Table<QRect, bool>{{{40, 50, 700, 650}, true},
                            {{40, 50, 20000, 650}, false}, // of a screen that is not there any more
                            {{9000, -4000, 700, 650}, false}}) {
        {
            App app(home, allSources());
            app.delegate.window().setGeometry(put);
            app.find<QAction>("sideBarMenuItem")->trigger();
            app.run(2); // and then the machine stops
        }
        App app(home, allSources());
        app.run(1);
        const MainWindow &window = app.delegate.window();
        EXPECT_TRUE(!stays || window.geometry() == put);
        EXPECT_TRUE(screen.contains(window.geometry()));
        EXPECT_EQ(window.sideBar().isHidden(), sideBar);
        sideBar = !sideBar;
    }
}

TEST_F(SessionTest, whatWasOpenComesBackUnlessTheUserEndsIt)
{
    const struct
    {
        void (*end)(App &);
        bool comesBack;
    } cases[] = {{[](App &app) { app.run(2); }, true}, // the machine stops
                 {[](App &) {
                      QEvent quit(QEvent::Quit);
                      QCoreApplication::sendEvent(QCoreApplication::instance(), &quit);
                  },
                  true},
                 {[](App &app) { app.delegate.window().close(); }, false}};

    const auto isBrowserOpen = [](const App &app) {
        Browser &browser = app.delegate.browser()->browser();
        return browser.isWindowBuilt() && browser.browserWindow().isVisible();
    };

    for (const auto &c : cases) {
        App before(home, allSources());
        before.run(20);
        before.delegate.cells().at(1).showThumbLarge();
        before.delegate.browser()->browser().picBrowser();
        c.end(before);
        App app(home, allSources(true), true);
        app.hasTray = true;
        app.run(20);
        EXPECT_FALSE(isBrowserOpen(app) || app.delegate.largePic().isVisible());
        app.delegate.window().show();
        app.run(0.5);
        EXPECT_EQ(isBrowserOpen(app), c.comesBack);
        EXPECT_EQ(app.delegate.largePic().currentLargePicPath().endsWith(u"/B.jpg"), c.comesBack);
    }
}

TEST_F(SessionTest, staysQuietAndMakesUp)
{
    App app(home, allSources(true), true);
    app.hasTray = true;
    app.surroundings.set({.metered = true});
    app.run(60);
    EXPECT_EQ(app.cell(0).captionField(), QString()) << "nobody has asked";
    EXPECT_TRUE(pictures().isEmpty());
    app.find<QAction>("quietMenuItem")->trigger();
    app.run(30);
    EXPECT_EQ(pictures(), both) << "the user does not want it so";
}

TEST_F(SessionTest, fetchesWhatTheUserWantsAsDesktop)
{
    App app(home, allSources(), true);
    app.surroundings.set({.lowBattery = true});
    app.run(30);
    ThumbView &cell = app.cell(0);
    EXPECT_EQ(cell.captionField(), u"Caption A"_s);
    EXPECT_TRUE(pictures().isEmpty());
    cell.commands().setAsDesktop(cell);
    app.run(5);
    EXPECT_EQ(pictures(), both.first(1));
    EXPECT_TRUE(app.pictures.shown[u"A"_s].endsWith(u"/A.jpg"));
}

TEST_F(SessionTest, keepsTheLimitAndBringsBackWhatIsWanted)
{
    App app(home, allSources(), true);
    app.run(20);
    ThumbView &chosen = app.cell(1);
    chosen.commands().setAsDesktop(chosen);
    app.run(1);
    const auto show = [&app](const QString &url) {
        return std::exchange(app.pictures.shown[u"A"_s], url);
    };
    const QString before = show(u"file://localhost/other.jpg"_s);
    for (const QString &name : both) // sparse
        QFile::resize(home.path(u"Pictures/Moravel/"_s + name), 700LL << 20);
    app.find<QAction>("diskSpaceMenuItem")->trigger();
    auto *sheet = app.find<QDialog>("diskSpaceSheet");
    ASSERT_TRUE(sheet);
    auto *limit = sheet->findChild<QComboBox *>();
    limit->setCurrentText(u"1 GB"_s);
    sheet->accept();
    MORAVEL_WAIT((app.run(0.1), pictures() == both.mid(1)));
    EXPECT_TRUE(QFile::exists(home.path(u"Trash/files/A.jpg"_s)));

    show(before);
    app.run(3700); // the next pass
    EXPECT_EQ(pictures(), both.mid(1));
    ThumbView &gone = app.cell(0);
    EXPECT_EQ(gone.captionField(), u"Caption A"_s);
    gone.commands().setAsDesktop(gone);
    app.run(5);
    EXPECT_EQ(pictures(), both);
    EXPECT_TRUE(show({}).endsWith(u"/A.jpg"));
}

} // namespace
