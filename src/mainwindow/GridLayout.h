// SPDX-License-Identifier: MIT
// Where the cells of the grid stand: pure arithmetic in points.
#pragma once

#include <QPoint>

#include <optional>
#include <vector>

namespace moravel::grid {

constexpr int CellWidth = 200;
constexpr int CellHeight = 303;
constexpr int ColumnPitch = 220;
constexpr int RowPitch = 313;
constexpr int LeftMargin = 20;
constexpr int StatusHeight = 30; ///< The status line below the grid, inside the main view.

/// Returns how many cells stand side by side in a document of that width; at least one.
int thumbsPerRow(int documentWidth);

int numberOfRows(int visibleThumbs, int perRow);

/// Height of the document right after a layout.
int heightAfterLayout(int mainViewHeight, int rows);

/// Height of the document after a change of the window's size; it leaves room below the last row.
int heightAfterResize(int mainViewHeight, int rows);

/// Converts the bottom edge of a cell, measured upwards from the document's lower edge, to its top edge
/// measured downwards from the document's upper edge.
int topOf(int bottomUpY, int documentHeight);

struct Plan
{
    int rows = 0;
    int documentHeight = 0;
    /// Origin of each cell (lower left corner, y upwards); nothing for a cell that keeps its place.
    std::vector<std::optional<QPoint>> origins;
};

/// Lays out the cells, @p shown telling in grid order which are visible. Only visible cells get a place,
/// except that the first cell is always moved: hidden, it waits above the first row.
Plan plan(int perRow, int mainViewHeight, const std::vector<bool> &shown);

} // namespace moravel::grid
