// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

namespace moravel::server::art {

/// What is iterated: z → z^power + c.
struct EscapeRule
{
    int power = 2; ///< 2, 3 or 4.
    bool julia =
        true; ///< c is fixed and z starts at the point; else c is the point and z starts at 0.
    double cRe = 0; ///< c of a Julia set.
    double cIm = 0;
    int limit = 300; ///< Steps after which a point counts as inside.
    bool deep =
        false; ///< Follow in double precision, for views narrower than about 0.03; power 2 only.
};

/// What the orbits of a run of points tell, one entry a point.
struct Orbits
{
    std::vector<float> steps; ///< Steps to leave, continuous; negative inside the set.
    std::vector<float> stripe; ///< Mean of ½ + ½ sin 4θ along the orbit, continuous: 0 … 1.
    std::vector<float> normalX; ///< Direction away from the set.
    std::vector<float> normalY;
    std::vector<float> distance; ///< Estimated distance to the set in the plane's units.

    void resize(std::size_t count);
};

/// Follows the orbits of @p count points. The arrays must have room for a multiple of 8 points; the
/// padding is computed too. The same results bit by bit on every processor.
void followOrbits(const EscapeRule &rule, const double *re, const double *im, std::size_t count,
                  Orbits &orbits);

/// The radius at which an orbit counts as having left.
inline constexpr double kEscapeRadius = 1000;

} // namespace moravel::server::art
