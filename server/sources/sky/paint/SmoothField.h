// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/paint/Frame.h"

#include <functional>

namespace moravel::server::sky {

/// Light that varies slowly over the picture (sky glow, nebulae): computed on a coarse grid, then
/// spread over the samples with cubic B-splines.
class SmoothField
{
public:
    /// @p light gives the colour at a place in units of the frame's cover width from the middle, y
    /// down.
    SmoothField(const Frame &frame, int threads,
                const std::function<Colour(float x, float y)> &light);

    void addTo(Band &band) const;

private:
    void addRow(Colour *row, int y, std::vector<Colour> &columns) const;

    const Frame &m_frame;
    float m_cell; ///< Samples a grid cell.
    int m_columns;
    int m_rows;
    std::vector<Colour> m_grid;
};

} // namespace moravel::server::sky
