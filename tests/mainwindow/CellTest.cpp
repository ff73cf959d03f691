// SPDX-License-Identifier: MIT
#include "WindowFixture.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/CellMenu.h"
#include "mainwindow/PictureView.h"
#include "mainwindow/Spinner.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QBitmap>
#include <QMenu>

namespace {

QStringList g_calls;

std::function<void(ThumbView &)> note(const char *what)
{
    return
        [what](ThumbView &cell) { g_calls += u"%1 %2"_s.arg(QLatin1String(what)).arg(cell.tag()); };
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
            w.cells.at(i).showThumbImage(image(), u"http://x/%1"_s.arg(i));
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

const QStringList InfoAndRefresh{u"infoButton"_s, u"refreshButton"_s};

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
    EXPECT_EQ(g_calls, QStringList{u"large 1002"_s});

    w.cells.at(2).showThumbImage(image(), ThumbView::deletedMark()); // the focused button goes
    EXPECT_TRUE(buttons(w.cell(2)).isEmpty());
    EXPECT_EQ(QApplication::focusWidget(), clicker(2));
}

TEST_F(CellTest, DesktopCellHasItsOwnButtons)
{
    QWidget *desktop = w.find("desktopThumb");
    w.cells.desktopThumb().showThumbImage(image(), u"http://x/d"_s);
    QTest::mouseMove(desktop, {100, 250});
    EXPECT_EQ(buttons(desktop), QStringList({u"infoButton"_s, u"newDesktopBtn"_s}));
    QTest::mouseClick(w.find("newDesktopBtn", desktop), Qt::LeftButton);
    QTest::mouseDClick(w.find("clicker", desktop), Qt::LeftButton);
    EXPECT_EQ(g_calls, QStringList({u"new 99"_s, u"large 99"_s}));
    EXPECT_EQ(desktop->geometry(), QRect(10, 9, 190, 303)); // lower edge 312 below the upper edge
}

TEST_F(CellTest, ActsOnDoubleClicksAndKeysOnly)
{
    QWidget *caption = w.find("captionField", w.cell(1));
    w.cells.at(1).showCaption(u"A harbour."_s);
    QTest::mouseClick(clicker(1), Qt::LeftButton);
    QTest::mouseClick(caption, Qt::LeftButton);
    QTest::mouseDClick(clicker(1), Qt::RightButton);
    EXPECT_TRUE(g_calls.isEmpty());
    QTest::mouseDClick(clicker(1), Qt::LeftButton);
    QTest::mouseDClick(caption, Qt::LeftButton);
    QTest::keyClick(clicker(1), Qt::Key_Return);
    QTest::keyClick(clicker(1), Qt::Key_Space);
    EXPECT_EQ(
        g_calls,
        QStringList({u"desktop 1001"_s, u"caption 1001"_s, u"desktop 1001"_s, u"large 1001"_s}));
    g_calls.clear();
    w.cells.at(1).setCaptionField(u"Looking for new pic..."_s);
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
              QStringList({u"Set as Desktop"_s, u"Show Large Picture"_s, u"Look Up Caption Again"_s,
                           u"Refresh"_s}));
    EXPECT_EQ(titles(1), QStringList{u"Restore Picture"_s});
    EXPECT_TRUE(titles(2).isEmpty());
}

TEST_F(CellTest, FollowsTheModelAndTellsAssistiveTools)
{
    ThumbView &cell = w.cells.at(0);
    cell.showDate(u"July 4, 2011"_s);
    cell.showCaption(u"A <b>bold</b> harbour"_s);
    EXPECT_EQ(clicker(0)->accessibleName(), u"Source 0, July 4, 2011, A <b>bold</b> harbour"_s);
    auto *spinner = w.find<Spinner>("spinner", w.cell(0));
    EXPECT_FALSE(spinner->isVisible());
    cell.blankImage();
    EXPECT_TRUE(spinner->isVisible());
    cell.setHidden(true);
    EXPECT_FALSE(spinner->isTicking()); // a hidden cell costs nothing
    for (auto *button : w.window->findChildren<QAbstractButton *>()) {
        if (button->focusPolicy() & Qt::TabFocus) {
            const auto *interface = QAccessible::queryAccessibleInterface(button);
            EXPECT_NE(interface->text(QAccessible::Name), QString())
                << qPrintable(button->objectName());
        }
    }
}

TEST(CaptionLabel, ElidesAndNeverTakesMarkup)
{
    CaptionLabel label(3);
    label.resize(150, 3 * label.fontMetrics().lineSpacing());

    const Table<QString, bool> cases{
        {QString(), false},
        {u"one\n\nthree"_s, false},
        {u"one\ntwo\nthree\nfour"_s, true},
        {QString(1000000, u'w'), true},
        {u"word "_s.repeated(60), true},
    };
    for (const auto &[text, elided] : cases) {
        label.setText(text);
        EXPECT_EQ(label.isElided(), elided) << qPrintable(text.left(30));
        EXPECT_LE(label.heightForWidth(150), label.height());
        label.grab();
    }
    EXPECT_EQ(plainToolTip(u"<img src=x>"_s),
              u"<span style=\"white-space: pre-wrap\">&lt;img src=x&gt;</span>"_s);
    EXPECT_LT(plainToolTip(QString(100000, u'w')).size(), 2000);
}

TEST(PictureView, ScalesProportionally)
{
    const Table<QSize, QSize> cases{{{400, 300}, {200, 150}},
                                    {{800, 200}, {200, 50}},
                                    {{100, 200}, {75, 150}},
                                    {{8, 8}, {24, 24}},
                                    {{1, 5000}, {1, 150}}};
    for (const auto &[size, shown] : cases) {
        SCOPED_TRACE(::testing::Message() << size.width() << 'x' << size.height());
        PictureView view;
        view.resize(200, 150);
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        view.setImage(image);
        const QImage mask =
            view.grab().toImage().createMaskFromColor(qRgb(255, 0, 0), Qt::MaskOutColor);
        const QRect red = QRegion(QBitmap::fromImage(mask)).boundingRect();
        EXPECT_EQ(red.width(), shown.width());
        EXPECT_NEAR(red.height(), shown.height(), 1); // a hair line ends the area
    }
}
