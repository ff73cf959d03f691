// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <numbers>

namespace moravel::server::sky {

inline constexpr double degree = std::numbers::pi / 180; ///< One degree in radians.

inline double sinDeg(double degrees)
{
    return std::sin(degrees * degree);
}

inline double cosDeg(double degrees)
{
    return std::cos(degrees * degree);
}

/// The same direction in [0, 360).
inline double wrapped360(double degrees)
{
    const double rest = std::fmod(degrees, 360.0);
    return rest < 0 ? rest + 360 : rest;
}

/// The same direction in [-180, 180).
inline double wrapped180(double degrees)
{
    return wrapped360(degrees + 180) - 180;
}

} // namespace moravel::server::sky
