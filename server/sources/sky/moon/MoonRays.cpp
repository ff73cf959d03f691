// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MoonRays.h"

#include "server/sources/sky/astro/Angles.h"
#include "server/sources/sky/moon/MoonFeatures.h"
#include "server/sources/sky/moon/MoonView.h"
#include "server/sources/sky/paint/Noise.h"

namespace moravel::server::sky {

MoonRays::MoonRays()
{
    for (const RayCrater &crater : rayCraters()) {
        const Vec3f centre = selenographic(crater.latitude, crater.longitude);
        const Vec3f east = selenographic(0, crater.longitude + 90);
        m_systems.push_back({centre, east, cross(centre, east), crater.radiusKm / 1737.4f,
                             static_cast<float>(crater.reach * degree),
                             static_cast<float>(cosDeg(crater.reach)), crater.bright,
                             crater.longitude * 1.7f});
    }
}

float MoonRays::at(const Vec3f &place) const
{
    float sum = 0;
    for (const System &system : m_systems) {
        const float cosine = dot(place, system.centre);
        if (cosine < system.nearest)
            continue;
        const float distance = std::sqrt(2 - 2 * cosine);
        const float halo = 0.6f / (1 + 0.12f * std::pow(distance / system.radius, 3.0f));
        sum += system.bright * (halo + streaks(system, place, distance));
    }
    return sum;
}

/// Noise along the circle around the crater makes spokes; noise over the ground breaks them up.
float MoonRays::streaks(const System &system, const Vec3f &place, float distance)
{
    const float u = dot(place, system.east), v = dot(place, system.north);
    const float flat = 1 / std::sqrt(u * u + v * v + 1e-9f);
    const float bend = 0.10f * noise(place * 9.0f + Vec3f{system.seed, 0, 0});
    const Vec3f spoke{u * flat + bend, v * flat - bend, system.seed};
    const float wide = smoothstep(0.10f, 0.55f, noise(spoke * 3.1f));
    const float thin = smoothstep(0.12f, 0.55f, noise(spoke * 8.3f + Vec3f{0, 0, 4}));
    const float broken = 0.55f + 0.75f * fractalNoise(place * 26.0f, 2);
    const float t = distance / system.reach;
    const float fade =
        (1 - t) * std::sqrt(1 - t) * smoothstep(0.6f, 1.4f, distance / system.radius);
    return (1.05f * wide + 0.95f * thin) * (broken < 0 ? 0 : broken) * fade;
}

} // namespace moravel::server::sky
