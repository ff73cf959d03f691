// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MoonSky.h"

#include "server/sources/sky/paint/Noise.h"

namespace moravel::server::sky {

namespace {

struct BandPlace
{
    float along;
    float across;
};

/// The band climbs from the lower left to the upper right.
BandPlace bandPlace(float x, float y)
{
    constexpr float cosine = 0.829f, sine = 0.559f; // 34 degrees
    const float u = x + 0.16f, v = -y + 0.02f;
    return {u * cosine + v * sine, v * cosine - u * sine};
}

/// Dark clouds of dust before the stars, 0 to 1.
float dust(const BandPlace &place)
{
    const Vec3f p{place.along * 5.0f, place.across * 9.0f, 2.7f};
    const float lane = 1 - smoothstep(0.0f, 0.075f, std::fabs(place.across + 0.012f));
    return smoothstep(-0.15f, 0.55f, fractalNoise(p, 5)) * (0.35f + 0.65f * lane);
}

float bandBrightness(const BandPlace &place)
{
    const Vec3f p{place.along * 3.0f, place.across * 5.0f, 9.1f};
    const float width = 0.105f + 0.03f * noise(Vec3f{place.along * 3.0f, 0, 4.4f});
    const float t = place.across / width;
    return std::exp(-t * t) * (0.75f + 0.5f * fractalNoise(p, 5));
}

} // namespace

float milkyWayDensity(float x, float y)
{
    const BandPlace place = bandPlace(x, y);
    return 0.22f + 0.9f * bandBrightness(place) * (1 - 0.85f * dust(place));
}

Colour skyLight(float x, float y, float strength)
{
    const BandPlace place = bandPlace(x, y);
    const float bright = std::max(0.0f, bandBrightness(place));
    const float dark = dust(place);
    const float low = smoothstep(-0.30f, 0.34f, y);
    const Colour ground =
        mix(Colour{0.0016f, 0.0026f, 0.0068f}, Colour{0.0034f, 0.0056f, 0.0125f}, low);
    const Colour glow = mix(Colour{0.021f, 0.024f, 0.036f}, Colour{0.031f, 0.026f, 0.025f},
                            smoothstep(0.5f, 1.0f, bright));
    const float wisps = fractalNoise({x * 4.0f, y * 4.0f, 0.5f}, 4);
    const Colour haze = Colour{0.0016f, 0.0030f, 0.0060f} * (0.6f + wisps);
    return ground + haze * strength + glow * (bright * (1 - 0.86f * dark) * strength);
}

} // namespace moravel::server::sky
