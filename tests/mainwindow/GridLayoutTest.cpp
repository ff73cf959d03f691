// SPDX-License-Identifier: MIT
#include "mainwindow/GridLayout.h"

#include "mainwindow/GridPanel.h"

#include <gtest/gtest.h>

namespace moravel {

TEST(GridLayout, FitsAtLeastOneCellInARow)
{
    const std::pair<int, int> cases[] = {{1, 1},   {219, 1}, {220, 1}, {439, 1},
                                         {440, 2}, {659, 2}, {660, 3}, {2000, 9}};
    for (const auto &[width, perRow] : cases)
        EXPECT_EQ(grid::thumbsPerRow(width), perRow) << width;
}

TEST(GridLayout, HeightsFollowTheRowsOrTheWindow)
{
    struct
    {
        int visible, perRow, mainHeight, rows, afterLayout, afterResize;
    } const cases[] = {
        {5, 2, 700, 3, 929, 959}, // rows * 313, less 10 or plus 20
        {5, 2, 1200, 3, 1170, 1170}, // the window is taller
        {5, 2, 970, 3, 940, 959}, // between the two rules
        {0, 4, 700, 0, 670, 670},    {4, 4, 300, 1, 303, 333}, {5, 4, 300, 2, 616, 646},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(c.visible);
        EXPECT_EQ(grid::numberOfRows(c.visible, c.perRow), c.rows);
        EXPECT_EQ(grid::heightAfterLayout(c.mainHeight, c.rows), c.afterLayout);
        EXPECT_EQ(grid::heightAfterResize(c.mainHeight, c.rows), c.afterResize);
    }
}

TEST(GridLayout, PlacesVisibleCellsRowByRow)
{
    const grid::Plan plan = grid::plan(2, 500, {true, false, true, true, false, true, true});
    EXPECT_EQ(plan.rows, 3);
    ASSERT_EQ(plan.documentHeight, 929);
    const std::optional<QPoint> expected[] = {QPoint(20, 626), std::nullopt, QPoint(240, 626),
                                              QPoint(20, 313), std::nullopt, QPoint(240, 313),
                                              QPoint(20, 0)};
    for (std::size_t i = 0; i < plan.origins.size(); ++i)
        EXPECT_EQ(plan.origins[i], expected[i]) << i;
    EXPECT_EQ(grid::topOf(626, 929), 0); // the first row touches the upper edge
    EXPECT_EQ(grid::topOf(313, 929), 313);
}

TEST(GridLayout, MovesTheFirstCellEvenWhenHidden)
{
    const grid::Plan plan = grid::plan(3, 700, {false, false, true});
    EXPECT_EQ(plan.origins[0], QPoint(20, plan.documentHeight + 10));
    EXPECT_FALSE(plan.origins[1]);
    EXPECT_EQ(plan.origins[2], QPoint(20, plan.documentHeight - 303));

    const grid::Plan none = grid::plan(3, 700, {false});
    EXPECT_EQ(none.rows, 0);
    EXPECT_EQ(none.documentHeight, 670);
    EXPECT_TRUE(grid::plan(1, 700, {}).origins.empty());
}

TEST(GridState, TellsWhatTheGridShows)
{
    struct
    {
        bool built;
        int sources;
        bool saved;
        int visible;
        GridState state;
    } const cases[] = {
        {false, 0, false, 0, GridState::Loading},       {true, 0, false, 0, GridState::NoService},
        {true, 0, true, 0, GridState::NoService},       {true, 3, false, 0, GridState::Welcome},
        {true, 3, true, 0, GridState::NothingSelected}, {true, 3, true, 1, GridState::Cells},
    };

    for (const auto &c : cases)
        EXPECT_EQ(gridState(c.built, c.sources, c.saved, c.visible), c.state);
}

} // namespace moravel
