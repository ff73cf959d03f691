// SPDX-License-Identifier: MIT
#include "WindowFixture.h"

#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>

namespace {

const QString SourcesKey = u"sources"_s;

struct SourceGridTest : ::testing::Test
{
    void show(int count, const QStringList &saved)
    {
        w.defaults.values[SourcesKey] = saved;
        w.window->show();
        w.build(count);
    }

    QStringList saved() const { return w.defaults.values.value(SourcesKey).toStringList(); }

    /// Makes the window so wide that the document has that width.
    void setDocumentWidth(int width)
    {
        w.window->resize(w.window->width() + width - w.window->grid().documentWidth(),
                         w.window->height());
        QTest::qWait(0);
        ASSERT_EQ(w.window->grid().documentWidth(), width);
    }

    WindowFixture w;
};

QString name(int i)
{
    return u"Source %1"_s.arg(i);
}

} // namespace

TEST_F(SourceGridTest, OrdersByCodeUnitAndTakesTheSavedSelection)
{
    w.defaults.values[SourcesKey] = QStringList{u"Gone"_s, u"Alpha"_s};
    w.window->show();
    w.sources->drawCheckboxesAndThumbs(
        {{u"b"_s, u"Alpha"_s}, {u"a"_s, u"Beta & Son"_s}, {u"Z"_s, u"Gamma"_s}});
    EXPECT_EQ(w.sources->allSources(), QStringList({u"Gamma"_s, u"Beta & Son"_s, u"Alpha"_s}));
    EXPECT_EQ(w.sources->selectedSources(), QStringList{u"Alpha"_s});
    EXPECT_EQ(w.cells.visibleThumbs(), 1);
    EXPECT_EQ(w.cells.at(1).tag(), 1001);
    EXPECT_EQ(w.sources->sourceChecks().at(1)->text(), u"Beta && Son"_s);
    EXPECT_FALSE(w.cell(0)); // a hidden cell costs no widget
    EXPECT_TRUE(w.cell(2)->isVisible());
    EXPECT_EQ(w.passes, QList<double>{0.5});
    EXPECT_TRUE(w.rotations.isEmpty());
    EXPECT_EQ(saved().size(), 2); // building saves nothing
}

TEST_F(SourceGridTest, SwitchesSourcesAndSavesTheSelection)
{
    show(3, {name(1)});
    w.sources->sourceChecks().at(0)->trigger();
    EXPECT_EQ(saved(), QStringList({name(0), name(1)}));
    EXPECT_TRUE(w.sources->sourceChecks().at(0)->isChecked());
    EXPECT_EQ(w.cell(0)->pos(), QPoint(20, 0));
    EXPECT_EQ(w.cell(1)->pos(), QPoint(240, 0));
    EXPECT_TRUE(w.cells.at(0).isSpinning());
    EXPECT_FALSE(w.cells.at(2).isSpinning());

    w.sources->changedSource(1000);
    w.sources->changedSource(1001);
    w.sources->changedSource(4711); // no such source
    EXPECT_EQ(saved(), QStringList{QString()}); // nothing selected is one empty string
    EXPECT_EQ(w.sources->numberOfRows(), 0);
    EXPECT_EQ(w.window->grid().documentHeight(), w.window->mainView().height() - 30);
    EXPECT_EQ(w.window->grid().panel()->objectName(), u"nothingSelectedPanel"_s);
    EXPECT_EQ(w.cell(0)->pos(), QPoint(20, -313)); // the first cell waits above, hidden
    EXPECT_FALSE(w.cell(0)->isVisible());
    EXPECT_EQ(w.passes.size(), 1); // switching on fetches nothing by itself
}

TEST_F(SourceGridTest, ReadsTheListOfOneEmptyStringAsNothingAndStartsARotation)
{
    w.preferences.setRotateFrequency(1);
    show(2, {QString()});
    EXPECT_EQ(w.rotations, QList<double>{30});
    EXPECT_EQ(w.cells.visibleThumbs(), 0);
    EXPECT_FALSE(w.cells.at(0).isSpinning()) << "placed, but hidden";
    EXPECT_EQ(w.window->grid().panel()->objectName(), u"nothingSelectedPanel"_s);
}

TEST_F(SourceGridTest, LaysOutAgainOnlyWhenTheNumberPerRowChanges)
{
    show(5, {name(0), name(1), name(2), name(3), name(4)});
    setDocumentWidth(440);
    EXPECT_EQ(w.sources->thumbsPerRow(), 2);
    EXPECT_EQ(w.sources->numberOfRows(), 3);
    EXPECT_EQ(w.window->grid().documentHeight(), 3 * 313 + 20); // resized
    w.sources->changedSource(1004);
    w.sources->changedSource(1004);
    EXPECT_EQ(w.window->grid().documentHeight(), 929); // laid out
    EXPECT_EQ(w.cell(4)->pos(), QPoint(20, 626));

    w.cell(4)->move(7, 7);
    setDocumentWidth(640);
    EXPECT_EQ(w.cell(4)->pos(), QPoint(7, 7));
    EXPECT_EQ(w.window->grid().documentHeight(), 959);
    setDocumentWidth(439);
    EXPECT_EQ(w.sources->thumbsPerRow(), 1);
    EXPECT_EQ(w.cell(4)->pos(), QPoint(20, 4 * 313));
}

TEST_F(SourceGridTest, MakesTheWindowTallEnough)
{
    w.window->setMinimumHeight(0);
    w.window->resize(900, 300);
    const int minimumWidth = w.window->minimumWidth();
    show(1, {});
    EXPECT_EQ(w.window->minimumSize(), QSize(minimumWidth, 625));
    EXPECT_EQ(w.window->size(), QSize(900, 625));
}

TEST_F(SourceGridTest, WelcomesOnlyWhileNothingWasEverSaved)
{
    w.window->show();
    EXPECT_EQ(w.window->grid().panel()->objectName(), u"loadingPanel"_s);
    w.build(9);
    QWidget *panel = w.window->grid().panel();
    ASSERT_EQ(panel->objectName(), u"welcomePanel"_s);
    const auto checks = panel->findChildren<QCheckBox *>();
    ASSERT_EQ(checks.size(), 9);
    auto *button = w.find<QPushButton>("showPicturesButton");
    for (QCheckBox *check : checks) {
        EXPECT_TRUE(check->isChecked());
        if (check->accessibleName() != name(2))
            QTest::keyClick(check, Qt::Key_Space);
    }
    QTest::keyClick(checks.at(2), Qt::Key_Space);
    EXPECT_FALSE(button->isEnabled()); // nothing ticked
    QTest::keyClick(checks.at(2), Qt::Key_Space);
    EXPECT_FALSE(w.defaults.values.contains(SourcesKey));
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(saved(), QStringList{name(2)});
    EXPECT_FALSE(w.window->grid().panel());
    EXPECT_TRUE(w.cell(2)->isVisible());
    w.sources->switchAll(false);
    EXPECT_EQ(w.window->grid().panel()->objectName(), u"nothingSelectedPanel"_s);
}

TEST_F(SourceGridTest, SwitchesOnWhatTheCommandLineNames)
{
    w.window->show();
    w.build(3);
    EXPECT_EQ(w.sources->switchOn({name(2), u"Nobody"_s}), QStringList{u"Nobody"_s});
    EXPECT_EQ(saved(), QStringList{name(2)});
    EXPECT_TRUE(w.sources->switchOn({u"all"_s}).isEmpty());
    EXPECT_EQ(saved(), w.sources->allSources());
}

TEST_F(SourceGridTest, SaysThatTheServiceDoesNotAnswerAndTriesAgain)
{
    w.window->show();
    w.build(0);
    QWidget *panel = w.window->grid().panel();
    ASSERT_EQ(panel->objectName(), u"noServicePanel"_s);
    QTest::mouseClick(panel->findChild<QPushButton *>(), Qt::LeftButton);
    EXPECT_EQ(w.retries, 1);
    w.build(2);
    EXPECT_EQ(w.window->grid().panel()->objectName(), u"welcomePanel"_s);
    w.build(3); // built once
    EXPECT_EQ(w.cells.count(), 2);
}

TEST_F(SourceGridTest, MenuStaysOpenWhileSourcesAreSwitched)
{
    show(3, {name(0)});
    QMenu &menu = w.window->sourcesMenu();
    EXPECT_TRUE(menu.menuAction()->isVisible());
    menu.popup(w.window->pos());
    const QAction *item = w.sources->sourceChecks().at(1);
    QTest::mouseClick(&menu, Qt::LeftButton, {},
                      menu.actionGeometry(w.sources->sourceChecks().at(1)).center());
    EXPECT_TRUE(item->isChecked());
    EXPECT_TRUE(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Space);
    EXPECT_FALSE(item->isChecked());
    EXPECT_EQ(saved(), QStringList{name(0)});
    menu.close();
}
