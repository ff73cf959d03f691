// SPDX-License-Identifier: MIT
// The application as a guest of the session: started by it, quiet where it would disturb, and not too large.
#include "App.h"
#include "support/Wait.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QGuiApplication>
#include <QScreen>

#include <gtest/gtest.h>

namespace moravel {
namespace {

using namespace testing;

class SessionTest : public ::testing::Test
{
protected:
    static Options all(bool hidden = false)
    {
        Options options;
        options.sources = QStringList{QStringLiteral("all")};
        options.hidden = hidden;
        return options;
    }

    QStringList pictures() const
    {
        return QDir(home.path(QStringLiteral("Pictures/Moravel"))).entryList(QDir::Files);
    }

    const QStringList both{QStringLiteral("A.jpg"), QStringLiteral("B.jpg")};
    TempHome home;
};

TEST_F(SessionTest, startsInTheTrayElseMinimised)
{
    for (const bool tray : {true, false}) {
        App app(home, all(true), true);
        app.hasTray = tray;
        app.run(10);
        EXPECT_FALSE(app.delegate.window().isVisible());
        EXPECT_EQ(app.delegate.cells().at(0).captionField(), QStringLiteral("Caption A"));
        app.run(10);
        EXPECT_EQ(app.delegate.window().isVisible(), !tray);
        EXPECT_EQ(app.delegate.window().isMinimized(), !tray);
    }
}

TEST_F(SessionTest, windowsComeBackOnTheScreens)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();

    const struct
    {
        QRect put, found;
    } cases[] = {{{40, 50, 700, 650}, {40, 50, 700, 650}},
                 {{40, 50, 20000, 650}, screen}, // of a screen that is not there any more
                 {{9000, -4000, 700, 650}, screen}};

    for (const auto &c : cases) {
        {
            App app(home, all());
            app.delegate.window().setGeometry(c.put);
            app.delegate.window()
                .findChild<QAction *>(QStringLiteral("sideBarMenuItem"))
                ->trigger();
            app.run(2); // and then the machine stops
        }
        App app(home, all());
        app.run(1);
        const MainWindow &window = app.delegate.window();
        EXPECT_TRUE(c.found != c.put || window.geometry() == c.put);
        EXPECT_TRUE(screen.contains(window.geometry()));
        EXPECT_EQ(window.sideBar().isHidden(), &c != &cases[1]); // each time the other way
    }
}

TEST_F(SessionTest, staysQuietAndMakesUp)
{
    App app(home, all(true), true);
    app.hasTray = true;
    app.surroundings.set({.metered = true});
    app.run(60);
    EXPECT_EQ(app.delegate.cells().at(0).captionField(), QString()) << "nobody has asked";
    EXPECT_TRUE(pictures().isEmpty());
    app.delegate.window().findChild<QAction *>(QStringLiteral("quietMenuItem"))->trigger();
    app.run(30);
    EXPECT_EQ(pictures(), both) << "the user does not want it so";
}

TEST_F(SessionTest, fetchesWhatTheUserWantsAsDesktop)
{
    App app(home, all(), true);
    app.surroundings.set({.lowBattery = true});
    app.run(30);
    ThumbView &cell = app.delegate.cells().at(0);
    EXPECT_EQ(cell.captionField(), QStringLiteral("Caption A"));
    EXPECT_TRUE(pictures().isEmpty());
    cell.commands().setAsDesktop(cell);
    app.run(5);
    EXPECT_EQ(pictures(), both.first(1));
    EXPECT_TRUE(app.pictures.shown[QStringLiteral("A")].endsWith(u"/A.jpg"));
}

TEST_F(SessionTest, keepsTheLimitAndBringsBackWhatIsWanted)
{
    App app(home, all(), true);
    app.run(20);
    ThumbView &chosen = app.delegate.cells().at(1);
    chosen.commands().setAsDesktop(chosen);
    app.run(1);
    const auto show = [&app](const QString &url) {
        return std::exchange(app.pictures.shown[QStringLiteral("A")], url);
    };
    const QString before = show(QStringLiteral("file://localhost/other.jpg"));
    for (const QString &name : both) // sparse
        QFile::resize(home.path(QStringLiteral("Pictures/Moravel/") + name), 700LL << 20);
    app.delegate.window().findChild<QAction *>(QStringLiteral("diskSpaceMenuItem"))->trigger();
    auto *sheet = app.delegate.window().findChild<QDialog *>(QStringLiteral("diskSpaceSheet"));
    ASSERT_TRUE(sheet);
    auto *limit = sheet->findChild<QComboBox *>();
    limit->setCurrentText(QStringLiteral("1 GB"));
    sheet->accept();
    MORAVEL_WAIT((app.run(0.1), pictures() == both.mid(1)));
    EXPECT_TRUE(QFile::exists(home.path(QStringLiteral("Trash/files/A.jpg"))));

    show(before);
    app.run(3700); // the next pass
    EXPECT_EQ(pictures(), both.mid(1));
    ThumbView &gone = app.delegate.cells().at(0);
    EXPECT_EQ(gone.captionField(), QStringLiteral("Caption A"));
    gone.commands().setAsDesktop(gone);
    app.run(5);
    EXPECT_EQ(pictures(), both);
    EXPECT_TRUE(show({}).endsWith(u"/A.jpg"));
}

} // namespace
} // namespace moravel
