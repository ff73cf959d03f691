// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/Vector.h"

#include <vector>

namespace moravel::server::sky {

/// The bright streaks and halos around young craters.
class MoonRays
{
public:
    MoonRays();

    /// Extra brightness at a selenographic unit vector, 0 to about 1.
    float at(const Vec3f &place) const;

private:
    struct System
    {
        Vec3f centre, east, north;
        float radius; ///< Of the crater, lunar radii.
        float reach; ///< Lunar radii.
        float nearest;
        float bright;
        float seed;
    };

    static float streaks(const System &system, const Vec3f &place, float distance);

    std::vector<System> m_systems;
};

} // namespace moravel::server::sky
