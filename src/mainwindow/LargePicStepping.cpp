// SPDX-License-Identifier: MIT
#include "mainwindow/LargePicStepping.h"

namespace moravel {

namespace {

constexpr int Desktop = StepCells::DesktopPosition;

int countOf(const StepCells &cells)
{
    return static_cast<int>(cells.grid.size());
}

bool canShow(const StepCells &cells, int position)
{
    return position >= 0 && position < countOf(cells)
        && cells.grid[static_cast<std::size_t>(position)];
}

/// More steps than once around, from wherever the search begins.
int mostSteps(const StepCells &cells)
{
    return countOf(cells) + Desktop + 2;
}

} // namespace

std::optional<int> previousPosition(const StepCells &cells)
{
    int position = cells.position;
    for (int step = 0; step < mostSteps(cells); ++step) {
        --position;
        if (position < 0 && cells.desktop)
            return Desktop;
        if (position < 0 || position == Desktop - 1) // from the first cell, or from the desktop's
            position = countOf(cells) - 1;
        if (position == Desktop)
            return Desktop;
        if (canShow(cells, position))
            return position;
    }
    return std::nullopt;
}

std::optional<int> nextPosition(const StepCells &cells)
{
    int position = cells.position;
    for (int step = 0; step < mostSteps(cells); ++step) {
        ++position;
        const bool isAtEnd = position >= countOf(cells) && position != Desktop + 1;
        if ((isAtEnd && cells.desktop) || (!isAtEnd && position == Desktop))
            return Desktop;
        if (isAtEnd || position == Desktop + 1) // from the last cell, or from the desktop's
            position = 0;
        if (canShow(cells, position))
            return position;
    }
    return std::nullopt;
}

} // namespace moravel
