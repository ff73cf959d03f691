// SPDX-License-Identifier: MIT
// What the planets' faces look like: invented, in the manner of the real ones.
#include "server/sources/sky/paint/Noise.h"
#include "server/sources/sky/planets/PlanetLooks.h"

#include <algorithm>

namespace moravel::server::sky {

namespace {

Colour mercury(const Vec3f &p)
{
    const float shade =
        0.42f + 0.16f * fractalNoise(p * 3.0f, 5) + 0.12f * ridgedNoise(p * 6.0f, 3);
    return Colour{1.0f, 0.92f, 0.84f} * std::max(shade, 0.1f);
}

Colour venus(const Vec3f &p)
{
    const Vec3f streak{p.x * 1.6f, p.y * 1.6f, p.z * 4.5f + 0.6f * noise(p * 2.0f)};
    const float cloud = fractalNoise(streak, 4);
    return mix(Colour{0.78f, 0.58f, 0.32f}, Colour{1.0f, 0.90f, 0.68f},
               smoothstep(-0.6f, 0.6f, cloud));
}

Colour earth(const Vec3f &p)
{
    const float height = fractalNoise(p * 1.7f + Vec3f{2.3f, 0.4f, 7.1f}, 6);
    const float land = smoothstep(0.02f, 0.07f, height);
    const float dry =
        smoothstep(-0.2f, 0.3f, noise(p * 2.4f) + 0.5f - 1.6f * std::fabs(std::fabs(p.z) - 0.35f));
    const Colour ground = mix(Colour{0.10f, 0.24f, 0.07f}, Colour{0.52f, 0.38f, 0.20f}, dry);
    Colour colour = mix(Colour{0.015f, 0.10f, 0.34f}, ground, land);
    const float ice = smoothstep(0.86f, 0.92f, std::fabs(p.z) + 0.05f * noise(p * 7.0f));
    colour = mix(colour, Colour{0.9f, 0.94f, 1.0f}, ice);
    const Vec3f swirl = Vec3f{p.x + 0.5f * p.y, p.y - 0.4f * p.z, p.z * 1.5f + 0.3f * p.x} * 2.2f
        + Vec3f{noise(p * 3.0f), noise(p * 3.0f + Vec3f{9, 0, 0}), 0} * 1.1f;
    const float cloud = smoothstep(-0.05f, 0.75f, fractalNoise(swirl, 6));
    return mix(colour, Colour{0.95f, 0.97f, 1.0f}, 0.9f * cloud);
}

Colour mars(const Vec3f &p)
{
    const float plains = fractalNoise(p * 2.0f + Vec3f{5, 1, 3}, 6);
    const Colour ground = mix(Colour{0.40f, 0.14f, 0.06f}, Colour{0.92f, 0.44f, 0.20f},
                              smoothstep(-0.45f, 0.30f, plains));
    const float cap = smoothstep(0.90f, 0.94f, std::fabs(p.z) + 0.03f * noise(p * 8.0f));
    return mix(ground, Colour{0.95f, 0.92f, 0.90f}, cap);
}

/// Belts and zones of a giant: noise along the latitude, frayed by eddies.
float bands(const Vec3f &p, float count, float fray, float seed)
{
    const float eddies = fractalNoise({p.x * 4, p.y * 4, p.z * 11}, 4);
    const float latitude = p.z + fray * eddies;
    return 0.65f * noise({seed, 0.5f, latitude * count})
        + 0.35f * noise({seed + 7, 2.5f, latitude * count * 2.7f});
}

Colour jupiter(const Vec3f &p)
{
    const float belt = bands(p, 5.6f, 0.022f, 3.3f);
    Colour colour = mix(Colour{0.50f, 0.29f, 0.16f}, Colour{0.90f, 0.79f, 0.63f},
                        smoothstep(-0.32f, 0.22f, belt));
    const Vec3f spot{0.10f, 0.92f, -0.375f}; // the great red one
    const Vec3f away = p - spot;
    const float size = (away.x * away.x + away.y * away.y) / 0.045f + away.z * away.z / 0.0095f;
    const float fresh = p.y > 0 ? 1 - smoothstep(0.6f, 1.2f, size + 0.3f * noise(p * 14.0f)) : 0;
    colour = mix(colour, Colour{0.78f, 0.26f, 0.12f}, 0.9f * fresh);
    const float polar = smoothstep(0.72f, 0.98f, std::fabs(p.z));
    return mix(colour, Colour{0.45f, 0.38f, 0.34f}, 0.6f * polar);
}

Colour saturn(const Vec3f &p)
{
    const float belt = bands(p, 6.5f, 0.006f, 8.1f);
    const Colour colour = mix(Colour{0.68f, 0.50f, 0.28f}, Colour{0.98f, 0.88f, 0.64f},
                              smoothstep(-0.5f, 0.4f, belt));
    return mix(colour, Colour{0.55f, 0.52f, 0.42f}, 0.6f * smoothstep(0.75f, 1.0f, std::fabs(p.z)));
}

Colour uranus(const Vec3f &p)
{
    const float belt = bands(p, 2.5f, 0.004f, 1.7f);
    return mix(Colour{0.38f, 0.76f, 0.82f}, Colour{0.66f, 0.94f, 0.96f},
               0.5f + 0.4f * belt + 0.25f * p.z);
}

Colour neptune(const Vec3f &p)
{
    const float belt = bands(p, 4.0f, 0.02f, 5.9f);
    const Colour colour = mix(Colour{0.06f, 0.14f, 0.58f}, Colour{0.22f, 0.44f, 0.98f},
                              smoothstep(-0.5f, 0.5f, belt));
    const float cirrus =
        smoothstep(0.35f, 0.75f, fractalNoise({p.x * 2.5f, p.y * 2.5f, p.z * 16}, 3));
    return mix(colour, Colour{0.9f, 0.95f, 1.0f}, 0.6f * cirrus);
}

} // namespace

Colour planetSurface(Planet planet, const Vec3f &place)
{
    switch (planet) {
    case Planet::Mercury:
        return mercury(place);
    case Planet::Venus:
        return venus(place);
    case Planet::Earth:
        return earth(place);
    case Planet::Mars:
        return mars(place);
    case Planet::Jupiter:
        return jupiter(place);
    case Planet::Saturn:
        return saturn(place);
    case Planet::Uranus:
        return uranus(place);
    case Planet::Neptune:
        return neptune(place);
    }
    return {};
}

} // namespace moravel::server::sky
