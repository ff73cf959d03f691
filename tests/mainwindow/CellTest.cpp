// SPDX-License-Identifier: MIT
#include "WindowFixture.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/CellMenu.h"
#include "mainwindow/PictureView.h"
#include "mainwindow/Spinner.h"

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

namespace moravel::testing {

namespace {

QStringList g_calls;

std::function<void(ThumbView &)> note(const char *what)
{
    return [what](ThumbView &cell) {
        g_calls += QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(cell.tag());
    };
}

ThumbCommands someCommands()
{
    ThumbCommands commands;
    commands.setAsDesktop = note("desktop");
    commands.showLargePic = note("large");
    commands.refreshDataForThumb = note("refresh");
    commands.refreshCaption = note("caption");
    commands.newDesktop = note("new");
    return commands; // nothing to delete with yet
}

struct CellTest : ::testing::Test
{
    CellTest()
    {
        g_calls.clear();
        w.window->show();
        w.build(3);
        w.sources->switchAll(true);
        QApplication::setActiveWindow(w.window.get());
        for (int i = 0; i < 3; ++i)
            w.cells.at(i).showThumbImage(image(), QStringLiteral("http://x/%1").arg(i));
        QTest::mouseMove(w.window.get(), {5, 5});
    }

    static QImage image()
    {
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    }

    /// Names of the buttons of a cell that can be seen.
    QStringList buttons(const QWidget *cell) const
    {
        QStringList names;
        for (const char *name :
             {"deleteBtn", "infoButton", "newDesktopBtn", "prevDesktopBtn", "refreshButton"}) {
            if (w.find(name, cell)->isVisible())
                names += QLatin1String(name);
        }
        return names;
    }

    QWidget *clicker(int index) const { return w.find("clicker", w.cell(index)); }

    WindowFixture w{someCommands()};
};

const QStringList InfoAndRefresh{QStringLiteral("infoButton"), QStringLiteral("refreshButton")};

} // namespace

TEST_F(CellTest, ShowsButtonsOnHoverAndByFocus)
{
    EXPECT_TRUE(buttons(w.cell(0)).isEmpty());
    QTest::mouseMove(w.cell(0), {100, 250});
    EXPECT_EQ(buttons(w.cell(0)), InfoAndRefresh); // deletion is not offered: there is no command
    QTest::mouseMove(w.cell(1), {100, 250});
    EXPECT_TRUE(buttons(w.cell(0)).isEmpty());

    QTest::mouseMove(w.window.get(), {5, 5});
    clicker(2)->setFocus();
    EXPECT_EQ(buttons(w.cell(2)), InfoAndRefresh);
    QTest::keyClick(clicker(2), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), w.find("infoButton", w.cell(2)));
    EXPECT_EQ(buttons(w.cell(2)), InfoAndRefresh);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(g_calls, QStringList{QStringLiteral("large 1002")});

    w.cells.at(2).showThumbImage(image(), ThumbView::deletedMark()); // the focused button goes
    EXPECT_TRUE(buttons(w.cell(2)).isEmpty());
    EXPECT_EQ(QApplication::focusWidget(), clicker(2));
}

TEST_F(CellTest, DesktopCellHasItsOwnButtons)
{
    QWidget *desktop = w.find("desktopThumb");
    w.cells.desktopThumb().showThumbImage(image(), QStringLiteral("http://x/d"));
    QTest::mouseMove(desktop, {100, 250});
    EXPECT_EQ(buttons(desktop),
              QStringList({QStringLiteral("infoButton"), QStringLiteral("newDesktopBtn")}));
    QTest::mouseClick(w.find("newDesktopBtn", desktop), Qt::LeftButton);
    QTest::mouseDClick(w.find("clicker", desktop), Qt::LeftButton);
    EXPECT_EQ(g_calls, QStringList({QStringLiteral("new 99"), QStringLiteral("large 99")}));
    EXPECT_EQ(desktop->geometry(), QRect(10, 9, 190, 303)); // lower edge 312 below the upper edge
}

TEST_F(CellTest, ActsOnDoubleClicksAndKeysOnly)
{
    QWidget *caption = w.find("captionField", w.cell(1));
    w.cells.at(1).showCaption(QStringLiteral("A harbour."));
    QTest::mouseClick(clicker(1), Qt::LeftButton);
    QTest::mouseClick(caption, Qt::LeftButton);
    QTest::mouseDClick(clicker(1), Qt::RightButton);
    EXPECT_TRUE(g_calls.isEmpty());
    QTest::mouseDClick(clicker(1), Qt::LeftButton);
    QTest::mouseDClick(caption, Qt::LeftButton);
    QTest::keyClick(clicker(1), Qt::Key_Return);
    QTest::keyClick(clicker(1), Qt::Key_Space);
    EXPECT_EQ(g_calls,
              QStringList({QStringLiteral("desktop 1001"), QStringLiteral("caption 1001"),
                           QStringLiteral("desktop 1001"), QStringLiteral("large 1001")}));
    g_calls.clear();
    w.cells.at(1).setCaptionField(QStringLiteral("Looking for new pic..."));
    QTest::mouseDClick(caption, Qt::LeftButton);
    EXPECT_TRUE(g_calls.isEmpty());
}

TEST_F(CellTest, ArrowsAndTabWalkThroughTheGrid)
{
    clicker(0)->setFocus();
    QTest::keyClick(clicker(0), Qt::Key_Right);
    EXPECT_EQ(QApplication::focusWidget(), clicker(1));
    QTest::keyClick(clicker(1), Qt::Key_Left);
    EXPECT_EQ(QApplication::focusWidget(), clicker(0));
    w.sources->changedSource(1001); // off and on again: the order stays that of the grid
    w.sources->changedSource(1001);
    for (int tabs = 0; tabs < 3; ++tabs) // over the two buttons
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), clicker(1));
}

TEST_F(CellTest, ContextMenuHoldsWhatCanBeDone)
{
    const auto titles = [this](int index) {
        const std::unique_ptr<QMenu> menu(makeCellMenu(w.cells.at(index), w.window.get()));
        QStringList texts;
        for (const QAction *action : menu ? menu->actions() : QList<QAction *>()) {
            if (!action->isSeparator())
                texts += action->text().remove(u'&');
        }
        return texts;
    };
    w.cells.at(1).showThumbImage(image(), ThumbView::deletedMark());
    w.cells.at(2).showThumbImage(image(), {});
    EXPECT_EQ(titles(0),
              QStringList({QStringLiteral("Set as Desktop"), QStringLiteral("Show Large Picture"),
                           QStringLiteral("Look Up Caption Again"), QStringLiteral("Refresh")}));
    EXPECT_EQ(titles(1), QStringList{QStringLiteral("Restore Picture")});
    EXPECT_TRUE(titles(2).isEmpty());
}

TEST_F(CellTest, FollowsTheModelAndTellsAssistiveTools)
{
    ThumbView &cell = w.cells.at(0);
    cell.showDate(QStringLiteral("July 4, 2011"));
    cell.showCaption(QStringLiteral("A <b>bold</b> harbour"));
    EXPECT_EQ(clicker(0)->accessibleName(),
              QStringLiteral("Source 0, July 4, 2011, A <b>bold</b> harbour"));
    auto *spinner = w.find<Spinner>("spinner", w.cell(0));
    EXPECT_FALSE(spinner->isVisible());
    cell.blankImage();
    EXPECT_TRUE(spinner->isVisible());
    cell.setHidden(true);
    EXPECT_FALSE(spinner->isTicking()); // a hidden cell costs nothing
    for (const QWidget *control : w.window->findChildren<QWidget *>()) {
        if (control->focusPolicy() & Qt::TabFocus && control->inherits("QAbstractButton")) {
            auto *interface = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(control));
            EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty())
                << qPrintable(control->objectName());
        }
    }
}

TEST(CaptionLabel, ElidesAndNeverTakesMarkup)
{
    CaptionLabel label(3);
    label.resize(150, 3 * label.fontMetrics().lineSpacing());

    struct
    {
        QString text;
        bool elided;
    } const cases[] = {
        {QString(), false},
        {QStringLiteral("short"), false},
        {QStringLiteral("one\n\nthree"), false},
        {QStringLiteral("one\ntwo\nthree\nfour"), true},
        {QString(400, u'w'), true},
        {QString(1000000, u'w'), true},
        {QStringLiteral("word ").repeated(60), true},
    };

    for (const auto &c : cases) {
        label.setText(c.text);
        EXPECT_EQ(label.isElided(), c.elided) << qPrintable(c.text.left(30));
        EXPECT_LE(label.heightForWidth(150), label.height());
        label.grab();
    }
    EXPECT_EQ(plainToolTip(QStringLiteral("<img src=x>")),
              QStringLiteral("<span style=\"white-space: pre-wrap\">&lt;img src=x&gt;</span>"));
    EXPECT_LT(plainToolTip(QString(100000, u'w')).size(), 2000);
}

TEST(PictureView, ScalesProportionally)
{
    struct
    {
        QSize image, shown;
    } const cases[] = {{{400, 300}, {200, 150}},
                       {{800, 200}, {200, 50}},
                       {{100, 200}, {75, 150}},
                       {{8, 8}, {24, 24}},
                       {{1, 5000}, {1, 150}}};

    for (const auto &c : cases) {
        PictureView view;
        view.resize(200, 150);
        QImage image(c.image, QImage::Format_RGB32);
        image.fill(Qt::red);
        view.setImage(image);
        const QImage grabbed = view.grab().toImage();
        QRegion red;
        for (int y = 0; y < grabbed.height(); ++y) {
            for (int x = 0; x < grabbed.width(); ++x) {
                if (grabbed.pixelColor(x, y) == QColor(Qt::red))
                    red += QRect(x, y, 1, 1);
            }
        }
        EXPECT_EQ(red.boundingRect().width(), c.shown.width());
        EXPECT_NEAR(red.boundingRect().height(), c.shown.height(), 1); // a hair line ends the area
    }
}

} // namespace moravel::testing
