// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/Vector.h"

#include <vector>

namespace moravel::server::sky {

class MareField;

/// A crater on the unit sphere, ready to be pressed into a height map.
struct Crater
{
    Vec3f centre; ///< Selenographic unit vector.
    float radius; ///< Of the rim, in lunar radii.
    float rim; ///< Height of the rim over the surroundings, lunar radii.
    float depth; ///< From the rim to the floor.
    float floor; ///< Part of the radius that is flat.
    float peak; ///< Height of the central peak over the floor.
    float base; ///< Mean height of the ground before the impact.
    float freshness; ///< 1 young and crisp, 0 worn.
};

/// The named craters and thousands of small ones in natural proportions (ten times smaller, a
/// hundred times as many), fewer on the younger maria; largest first. The same list always.
std::vector<Crater> lunarCraters(const MareField &maria);

/// Height of a crater's own relief at @p x radii from its middle.
float craterHeight(const Crater &crater, float x);

/// Distance in radii beyond which a crater changes nothing.
inline constexpr float craterReach = 2.4f;

} // namespace moravel::server::sky
