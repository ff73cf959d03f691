// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/PlanetLooks.h"

#include "server/sources/sky/astro/Angles.h"

namespace moravel::server::sky {

namespace {

// clang-format off
constexpr PlanetLooks looks[planetCount] = {
    {0.0080f, {0.66f, 0.57f, 0.49f}, 281.01f, 61.41f, 58.646f, 0.00f, {0.6f, 0.6f, 0.6f}},
    {0.0132f, {0.98f, 0.78f, 0.45f}, 272.76f, 67.16f, -243.02f, 0.35f, {1.0f, 0.86f, 0.58f}},
    {0.0140f, {0.28f, 0.58f, 1.00f}, 0.00f, 90.00f, 0.99727f, 0.90f, {0.30f, 0.60f, 1.0f}},
    {0.0100f, {1.00f, 0.38f, 0.18f}, 317.68f, 52.89f, 1.02596f, 0.22f, {1.0f, 0.60f, 0.40f}},
    {0.0400f, {0.92f, 0.70f, 0.48f}, 268.06f, 64.50f, 0.41354f, 0.22f, {1.0f, 0.82f, 0.62f}},
    {0.0320f, {0.95f, 0.80f, 0.50f}, 40.59f, 83.54f, 0.44401f, 0.20f, {1.0f, 0.88f, 0.62f}},
    {0.0215f, {0.45f, 0.88f, 0.92f}, 257.31f, -15.18f, -0.71833f, 0.45f, {0.55f, 0.95f, 1.0f}},
    {0.0205f, {0.24f, 0.42f, 1.00f}, 299.36f, 43.46f, 0.67125f, 0.55f, {0.30f, 0.52f, 1.0f}},
};
// clang-format on

} // namespace

const PlanetLooks &looksOf(Planet planet)
{
    return looks[static_cast<int>(planet)];
}

Vec3f poleOf(Planet planet)
{
    const PlanetLooks &look = looksOf(planet);
    constexpr double tilt = 23.4392911;
    const double x = cosDeg(look.poleDeclination) * cosDeg(look.poleAscension);
    const double y = cosDeg(look.poleDeclination) * sinDeg(look.poleAscension);
    const double z = sinDeg(look.poleDeclination);
    return {static_cast<float>(x), static_cast<float>(y * cosDeg(tilt) + z * sinDeg(tilt)),
            static_cast<float>(z * cosDeg(tilt) - y * sinDeg(tilt))};
}

} // namespace moravel::server::sky
