// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/art/Maths.h"

#include <cstdint>

namespace moravel::server::art {

/// Scrambles lattice coordinates (the finaliser of MurmurHash3, Austin Appleby, public domain).
inline std::uint32_t hashOf(int x, int y, std::uint32_t seed)
{
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x8da6b343U
        ^ static_cast<std::uint32_t>(y) * 0xd8163841U ^ seed;
    h = (h ^ (h >> 16)) * 0x85ebca6bU;
    h = (h ^ (h >> 13)) * 0xc2b2ae35U;
    return h ^ (h >> 16);
}

/// 0 … 1 from a lattice point.
inline float unitHash(int x, int y, std::uint32_t seed)
{
    return static_cast<float>(static_cast<int>(hashOf(x, y, seed) >> 8)) * 0x1p-24F;
}

/// The dot product of a lattice point's gradient with (dx, dy).
inline float slopeAt(int x, int y, std::uint32_t seed, float dx, float dy)
{
    const std::uint32_t h = hashOf(x, y, seed);
    const auto gx = static_cast<float>(static_cast<int>(h & 0xffffU) - 0x8000);
    const auto gy = static_cast<float>(static_cast<int>(h >> 16) - 0x8000);
    return (gx * dx + gy * dy) * (1.0F / 0x8000);
}

/// Gradient noise after Ken Perlin ("Improving noise", 2002): smooth, mean 0, about −1 … 1.
inline float noiseAt(float x, float y, std::uint32_t seed)
{
    const float fx = std::floor(x);
    const float fy = std::floor(y);
    const auto ix = static_cast<int>(fx);
    const auto iy = static_cast<int>(fy);
    const float dx = x - fx;
    const float dy = y - fy;
    const float u = dx * dx * dx * (dx * (dx * 6.0F - 15.0F) + 10.0F);
    const float v = dy * dy * dy * (dy * (dy * 6.0F - 15.0F) + 10.0F);
    const float top = mix(slopeAt(ix, iy, seed, dx, dy), slopeAt(ix + 1, iy, seed, dx - 1, dy), u);
    const float bottom = mix(slopeAt(ix, iy + 1, seed, dx, dy - 1),
                             slopeAt(ix + 1, iy + 1, seed, dx - 1, dy - 1), u);
    return 1.6F * mix(top, bottom, v);
}

/// Octaves of noise, each half as strong and about twice as fine: clouds, soft hills. About −1 … 1.
inline float cloudy(float x, float y, int octaves, std::uint32_t seed)
{
    float sum = 0;
    float strength = 0.5F;
    for (int i = 0; i < octaves; ++i) {
        sum += strength * noiseAt(x, y, seed + static_cast<std::uint32_t>(i) * 0x9e37U);
        strength *= 0.5F;
        const float turned = 1.62F * x + 1.2F * y; // ×2.02, turned by 37° to hide the lattice
        y = 1.62F * y - 1.2F * x;
        x = turned;
    }
    return sum;
}

/// Octaves of folded noise, finer ones stronger where the coarse ones are high (after F. K.
/// Musgrave's ridged multifractal, "Texturing and Modeling", 1994): crests and gullies. About 0
/// … 1.
inline float ridged(float x, float y, int octaves, std::uint32_t seed)
{
    float sum = 0;
    float strength = 0.52F;
    float weight = 1;
    for (int i = 0; i < octaves; ++i) {
        const float fold =
            1.0F - std::abs(noiseAt(x, y, seed + static_cast<std::uint32_t>(i) * 0x51edU));
        const float crest = fold * fold * weight;
        sum += strength * crest;
        weight = clamp01(crest * 1.6F);
        strength *= 0.48F;
        x = 2.07F * x + 3.1F;
        y = 2.07F * y + 1.7F;
    }
    return sum;
}

} // namespace moravel::server::art
