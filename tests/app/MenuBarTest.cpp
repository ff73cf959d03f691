// SPDX-License-Identifier: MIT
// Every item of the menu bar, found and chosen as a user does it.
#include "App.h"

#include <QDialog>
#include <QMenuBar>
#include <QPushButton>

// Outside of any namespace, as the macro wants it.
static void initResources()
{
    Q_INIT_RESOURCE(moravel);
}

namespace {

struct MenuBarTest : ::testing::Test
{
    MenuBarTest()
    {
        initResources();
        window.activateWindow();
        app.run(20);
    }

    static QString plain(const QAction &item) { return item.text().remove(u'&'); }

    /// Chooses "Menu/Item" by moving down to it with the keyboard.
    bool choose(const QString &path)
    {
        for (QAction *top : window.menuBar()->actions()) {
            if (plain(*top) != path.section(u'/', 0, 0))
                continue;
            window.menuBar()->setActiveAction(top);
            for (qsizetype i = top->menu()->actions().size(); i >= 0; --i) {
                const QAction *active = top->menu()->activeAction();
                if (active && plain(*active) == path.section(u'/', 1)) {
                    QTest::keyClick(top->menu(), Qt::Key_Return);
                    app.run(20);
                    return true;
                }
                QTest::keyClick(top->menu(), Qt::Key_Down);
            }
        }
        return false;
    }

    bool closes(const char *name) const
    {
        auto *dialog = window.findChild<QDialog *>(QLatin1String(name));
        if (!dialog || !dialog->isVisible())
            return false;
        QTest::keyClick(dialog, Qt::Key_Return);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return !window.findChild<QDialog *>(QLatin1String(name));
    }

    TempHome home;
    App app{home, allSources(), true};
    MainWindow &window = app.delegate.window();
};

TEST_F(MenuBarTest, itemsDoWhatTheyName)
{
    const auto shown = [this] { return app.pictures.shown[u"A"_s]; };
    const auto day = [this] { return app.cell(0).dateString(); };
    const auto stored = [this](const char *key) {
        return app.defaults.boolean(QLatin1String(key)).value_or(false);
    };
    const QString base = u"http://service/potd"_s;
    QString before;
    const std::pair<const char *, std::function<bool()>> table[] = {
        {"Help/Service Home Page", [&] { return app.urls.opened.takeLast() == base; }},
        {"Help/Release Notes",
         [&] { return app.urls.opened.takeLast() == base + u"/release.html"_s; }},
        {"Help/About Moravel", [&] { return closes("aboutBox"); }},
        {"Help/News", [&] { return closes("sheet"); }},
        {"Help/News", [&] { return closes("sheet"); }}, // once more
        {"Desktop/Change Desktop Now", [&] { return !(before = shown()).isEmpty(); }},
        {"Desktop/Change Desktop Now", [&] { return shown() != before; }},
        {"Desktop/Back to Previous Desktop", [&] { return shown() == before; }},
        {"Desktop/Keep This Desktop for 1 Hour", [&] { return shown() == before; }},
        {"Desktop/All Screens", [&] { return stored("SetAllScreens"); }},
        {"Desktop/All Virtual Desktops", [&] { return stored("SetAllSpaces"); }},
        {"Desktop/System Desktop Settings…",
         [&] { return app.others == QStringList{u"settings"_s}; }},
        {"File/Start at Login", [&] { return app.autostart.on; }},
        {"File/Stay Quiet When Needed",
         [&] { return !app.defaults.boolean(u"Quiet"_s).value_or(true); }},
        {"View/Disk Space…", [&] { return closes("diskSpaceSheet"); }},
        {"View/Show Side Bar", [&] { return stored("HideSideBar"); }},
        {"View/Previous Day", [&] { return day() == u"July 3, 2011"; }},
        {"View/Next Day", [&] { return day() == u"July 4, 2011"; }},
        {"View/Show Tool Tips", [&] { return stored("HideTooltips"); }},
        {"View/Full Screen", [&] { return window.isFullScreen(); }},
        {"Sources/Astronomy", [&] { return app.cell(1).isHidden(); }},
        {"Sources/Switch All On", [&] { return !app.cell(1).isHidden(); }},
    };
    for (const auto &[path, isDone] : table)
        EXPECT_TRUE(choose(QString::fromUtf8(path)) && isDone()) << path;
}

TEST_F(MenuBarTest, newsButtonAndBugReport)
{
    auto *button = window.findChild<QPushButton *>(u"newsButton"_s);
    ASSERT_TRUE(button && button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(closes("sheet"));
    EXPECT_FALSE(button->isVisible());
    EXPECT_TRUE(choose(u"Help/Report a Bug…"_s));
    const QUrl mail(app.urls.opened.value(0));
    EXPECT_TRUE(mail.toString().startsWith("mailto:help@makers?subject=Moravel"_L1));
    const QString body = QUrlQuery(mail).queryItemValue(u"body"_s, QUrl::FullyDecoded);
    EXPECT_TRUE(body.contains(u"\t1440 x 900 (main)\n\t800 x 600\n\n\nPictures:\n\n"
                              "Sea & Land - July 4, 2011\n"_s));
    EXPECT_TRUE(body.contains(u"\nAstronomy - July 4, 2011\n"_s));
}

} // namespace
