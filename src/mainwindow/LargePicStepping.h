// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

namespace moravel {

/// The cells that the large picture window can step through. A position is an index into the grid's cells;
/// DesktopPosition stands for the current-desktop cell.
struct StepCells
{
    static constexpr int DesktopPosition = 99;

    std::vector<bool> grid; ///< For each cell in grid order: it is shown and has a picture.
    bool desktop = false; ///< The current-desktop cell takes part, between the last and the first.
    int position = DesktopPosition; ///< Where the window is; cells outside of the grid are at 99.
};

/// Returns the position of the cell before; nothing when there is none to step to.
std::optional<int> previousPosition(const StepCells &cells);

std::optional<int> nextPosition(const StepCells &cells);

} // namespace moravel
