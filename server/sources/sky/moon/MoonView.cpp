// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MoonView.h"

#include "server/sources/sky/astro/Angles.h"

namespace moravel::server::sky {

Vec3f selenographic(float latitude, float longitude)
{
    return {static_cast<float>(cosDeg(latitude) * cosDeg(longitude)),
            static_cast<float>(cosDeg(latitude) * sinDeg(longitude)),
            static_cast<float>(sinDeg(latitude))};
}

MoonView::MoonView(const LunarAspect &aspect)
{
    const auto longitude = static_cast<float>(aspect.subEarthLongitude);
    front = selenographic(static_cast<float>(aspect.subEarthLatitude), longitude);
    const Vec3f east = selenographic(0, longitude + 90);
    const Vec3f north = cross(front, east);
    const auto cosine = static_cast<float>(cosDeg(aspect.axis));
    const auto sine = static_cast<float>(sinDeg(aspect.axis));
    right = east * cosine + north * sine; // the pole leans anticlockwise by the axis angle
    up = north * cosine - east * sine;
    light = {static_cast<float>(-sinDeg(aspect.brightLimb) * sinDeg(aspect.phaseAngle)),
             static_cast<float>(cosDeg(aspect.brightLimb) * sinDeg(aspect.phaseAngle)),
             static_cast<float>(cosDeg(aspect.phaseAngle))};
}

Vec3f MoonView::toMoon(const Vec3f &view) const
{
    return right * view.x + up * view.y + front * view.z;
}

} // namespace moravel::server::sky
