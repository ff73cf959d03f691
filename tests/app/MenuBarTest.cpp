// SPDX-License-Identifier: MIT
// Every item of the menu bar, found and chosen as a user does it.
#include "App.h"

#include <QApplication>
#include <QDialog>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

// Outside of any namespace, as the macro wants it.
static void initResources()
{
    Q_INIT_RESOURCE(moravel);
}

namespace moravel {
namespace {

using namespace testing;

class MenuBarTest : public ::testing::Test
{
protected:
    MenuBarTest()
    {
        initResources();
        window.activateWindow();
        app.run(20);
    }

    static Options allSources()
    {
        Options options;
        options.sources = QStringList{QStringLiteral("all")};
        return options;
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

void expectNew(const QKeySequence &keys, QStringList &known)
{
    EXPECT_FALSE(known.contains(keys.toString())) << qPrintable(keys.toString());
    if (!keys.isEmpty())
        known.append(keys.toString());
}

void expectDistinct(const QList<QAction *> &items, QStringList mnemonics, QStringList &shortcuts)
{
    for (const QAction *item : items) {
        SCOPED_TRACE(qPrintable(item->text()));
        EXPECT_NE(item->isSeparator(), !item->text().isEmpty());
        expectNew(QKeySequence::mnemonic(item->text()), mnemonics);
        expectNew(item->shortcut(), shortcuts);
        if (item->menu())
            expectDistinct(item->menu()->actions(), {}, shortcuts);
    }
}

TEST_F(MenuBarTest, keysLeadToOneItemOnly)
{
    QStringList mnemonics;
    for (const auto *button : window.findChildren<QPushButton *>())
        expectNew(QKeySequence::mnemonic(button->text()), mnemonics);
    QStringList shortcuts;
    expectDistinct(window.menuBar()->actions(), mnemonics, shortcuts);
    EXPECT_GT(shortcuts.size(), 6);
}

TEST_F(MenuBarTest, itemsDoWhatTheyName)
{
    const auto shown = [this] { return app.pictures.shown[QStringLiteral("A")]; };
    const auto day = [this] { return app.delegate.cells().at(0).dateString(); };
    const auto stored = [this](const char *key) {
        return app.defaults.boolean(QLatin1String(key)).value_or(false);
    };
    const QString base = QStringLiteral("http://service/potd");
    QString before;
    const std::pair<const char *, std::function<bool()>> table[] = {
        {"Help/Service Home Page", [&] { return app.urls.opened.takeLast() == base; }},
        {"Help/Release Notes",
         [&] { return app.urls.opened.takeLast() == base + QStringLiteral("/release.html"); }},
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
         [&] { return app.others == QStringList{QStringLiteral("settings")}; }},
        {"File/Start at Login", [&] { return app.autostart.on; }},
        {"File/Stay Quiet When Needed",
         [&] { return !app.defaults.boolean(QStringLiteral("Quiet")).value_or(true); }},
        {"View/Disk Space…", [&] { return closes("diskSpaceSheet"); }},
        {"View/Show Side Bar", [&] { return stored("HideSideBar"); }},
        {"View/Previous Day", [&] { return day() == u"July 3, 2011"; }},
        {"View/Next Day", [&] { return day() == u"July 4, 2011"; }},
        {"View/Show Tool Tips", [&] { return stored("HideTooltips"); }},
        {"View/Full Screen", [&] { return window.isFullScreen(); }},
        {"Sources/Astronomy", [&] { return app.delegate.cells().at(1).isHidden(); }},
        {"Sources/Switch All On", [&] { return !app.delegate.cells().at(1).isHidden(); }},
    };
    for (const auto &[path, isDone] : table)
        EXPECT_TRUE(choose(QString::fromUtf8(path)) && isDone()) << path;
}

TEST_F(MenuBarTest, newsButtonAndBugReport)
{
    auto *button = window.findChild<QPushButton *>(QStringLiteral("newsButton"));
    ASSERT_TRUE(button && button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(closes("sheet"));
    EXPECT_FALSE(button->isVisible());
    EXPECT_TRUE(choose(QStringLiteral("Help/Report a Bug…")));
    const QUrl mail(app.urls.opened.value(0));
    EXPECT_TRUE(mail.toString().startsWith(QLatin1String("mailto:help@makers?subject=Moravel")));
    const QString body = QUrlQuery(mail).queryItemValue(QStringLiteral("body"), QUrl::FullyDecoded);
    EXPECT_TRUE(body.contains(QStringLiteral("\t1440 x 900 (main)\n\t800 x 600\n\n\nPictures:\n\n"
                                             "Sea & Land - July 4, 2011\n")));
    EXPECT_TRUE(body.contains(QStringLiteral("\nAstronomy - July 4, 2011\n")));
}

} // namespace
} // namespace moravel
