// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/moon/MareField.h"
#include "server/sources/sky/moon/MoonCraters.h"
#include "server/sources/sky/moon/MoonView.h"

#include <vector>

namespace moravel::server::sky {

class MoonRays;

/// The visible side as a square map in picture directions (row 0 at the top): relief and
/// reflectance.
class MoonSurface
{
public:
    /// @p side is the diameter of the disc in cells.
    MoonSurface(const MoonView &view, int side, int threads);

    int side() const { return m_side; }

    float height(int column, int row) const { return m_height[index(column, row)]; }

    Colour reflectance(int column, int row) const { return m_reflectance[index(column, row)]; }

    /// The place on the sphere under a cell; just outside the disc the nearest one on the limb.
    Vec3f place(int column, int row) const;

    /// Whether a cell belongs to the disc or touches its edge.
    bool covers(int column, int row) const;

    /// Height under a place of the picture, interpolated; far below ground outside the disc.
    float heightAt(float x, float y) const;

private:
    std::size_t index(int column, int row) const
    {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_side)
            + static_cast<std::size_t>(column);
    }

    float coordinate(int cell) const
    {
        return (static_cast<float>(cell) + 0.5f) * 2 / static_cast<float>(m_side) - 1;
    }

    void layGround(int row, const MoonRays &rays);
    void pressCraters(int firstRow, int lastRow, const std::vector<Crater> &craters);
    void press(const Crater &crater, const Vec3f &middle, int firstRow, int lastRow);

    MoonView m_view;
    MareField m_maria;
    int m_side;
    std::vector<float> m_height; ///< Lunar radii.
    std::vector<Colour> m_reflectance;
};

} // namespace moravel::server::sky
