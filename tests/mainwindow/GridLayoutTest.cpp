// SPDX-License-Identifier: MIT
#include "mainwindow/GridLayout.h"

#include "support/Test.h"

#include "mainwindow/GridPanel.h"

namespace {

TEST(GridLayout, CountsRowsAndTheirHeights)
{
    for (const auto &[width, perRow] : Table<int, int>{{1, 1}, {439, 1}, {440, 2}, {660, 3}})
        EXPECT_EQ(grid::thumbsPerRow(width), perRow) << width;
    // visible cells, cells in a row, the window's height: rows, heights after a layout and a new size
    const Table<int, int, int, int, int, int> cases{
        {5, 2, 700, 3, 929, 959}, // rows * 313, less 10 or plus 20
        {5, 2, 1200, 3, 1170, 1170}, // the window is taller
        {5, 2, 970, 3, 940, 959}, // between the two rules
        {0, 4, 700, 0, 670, 670},    {4, 4, 300, 1, 303, 333}, {5, 4, 300, 2, 616, 646},
    };
    for (const auto &[visible, perRow, mainHeight, rows, afterLayout, afterResize] : cases) {
        SCOPED_TRACE(::testing::Message() << visible << ' ' << perRow << ' ' << mainHeight);
        EXPECT_EQ(grid::numberOfRows(visible, perRow), rows);
        EXPECT_EQ(grid::heightAfterLayout(mainHeight, rows), afterLayout);
        EXPECT_EQ(grid::heightAfterResize(mainHeight, rows), afterResize);
    }
}

TEST(GridLayout, PlacesVisibleCellsAndTheFirstEvenWhenHidden)
{
    using Origins = std::vector<std::optional<QPoint>>;
    const Origins seven{QPoint(20, 626), std::nullopt,     QPoint(240, 626), QPoint(20, 313),
                        std::nullopt,    QPoint(240, 313), QPoint(20, 0)};
    const Table<std::vector<bool>, int, Origins> cases{
        {{true, false, true, true, false, true, true}, 929, seven},
        {{false, false, true}, 470, {QPoint(20, 480), std::nullopt, QPoint(20, 167)}},
        {{false}, 470, {QPoint(20, 480)}},
        {std::vector<bool>(), 470, Origins()},
    };
    for (const auto &[shown, height, origins] : cases) {
        const grid::Plan plan = grid::plan(2, 500, shown);
        EXPECT_EQ(plan.documentHeight, height) << shown.size();
        EXPECT_EQ(plan.origins, origins) << shown.size();
    }
    EXPECT_EQ(grid::topOf(626, 929), 0); // the first row touches the upper edge
    EXPECT_EQ(grid::topOf(313, 929), 313);
}

TEST(GridState, TellsWhatTheGridShows)
{
    using enum GridState;
    // built, sources, a choice was saved, visible cells
    const Table<bool, int, bool, int, GridState> cases{
        {false, 0, false, 0, Loading},       {true, 0, false, 0, NoService},
        {true, 0, true, 0, NoService},       {true, 3, false, 0, Welcome},
        {true, 3, true, 0, NothingSelected}, {true, 3, true, 1, Cells},
    };
    for (const auto &[built, sources, saved, visible, state] : cases)
        EXPECT_EQ(gridState(built, sources, saved, visible), state);
}

} // namespace
