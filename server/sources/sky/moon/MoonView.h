// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/Vector.h"
#include "server/sources/sky/astro/LunarAspect.h"

namespace moravel::server::sky {

/// Unit vector of a selenographic place: x towards the mean middle of the disc, z north, y east.
Vec3f selenographic(float latitude, float longitude);

/// Turns between the Moon and the picture of it: x right, y up (celestial north), z to the viewer;
/// the disc has radius 1.
struct MoonView
{
    explicit MoonView(const LunarAspect &aspect);

    Vec3f toMoon(const Vec3f &view) const;

    Vec3f toView(const Vec3f &moon) const
    {
        return {dot(moon, right), dot(moon, up), dot(moon, front)};
    }

    Vec3f right, up, front; ///< The axes of the picture, selenographic.
    Vec3f light; ///< Unit vector to the Sun, in the picture.
};

} // namespace moravel::server::sky
