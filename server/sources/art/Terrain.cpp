// SPDX-License-Identifier: MIT
#include "server/sources/art/Terrain.h"

#include "server/sources/art/Noise.h"
#include "server/sources/art/Sky.h"

namespace moravel::server::art {

namespace {

/// Height of the land above the ridge's feet, 0 … 1 and a little more.
float profileAt(const Ridge &ridge, float u)
{
    const float x = u * ridge.frequency + ridge.offset;
    const float jagged = ridged(x, 0.37F, 8, ridge.seed) * 1.15F;
    const float soft = 0.5F + 0.8F * cloudy(x, 0.37F, 4, ridge.seed);
    const float sides = ridge.valley * u * u;
    return mix(soft, jagged, ridge.rocky) + sides;
}

/// Height of the tree tops above the land: small spires on a jittered lattice.
float treesAt(const Ridge &ridge, float u)
{
    const float pitch = ridge.trees * 0.34F;
    const auto cell = static_cast<int>(std::floor(u / pitch));
    float tallest = 0;
    for (int i = cell - 1; i <= cell + 1; ++i) {
        const float middle = (static_cast<float>(i) + 0.15F + 0.7F * unitHash(i, 1, ridge.seed)) * pitch;
        const float tall = ridge.trees * (0.45F + 0.55F * unitHash(i, 2, ridge.seed));
        const float away = std::abs(u - middle) / (tall * 0.24F);
        const float notch = 0.10F * std::abs(noiseAt(u / ridge.trees * 9, static_cast<float>(i), ridge.seed));
        tallest = std::max(tallest, tall * (1.0F - std::sqrt(away) * 0.35F - away * 0.65F - notch));
    }
    // Thinner and thicker stands.
    return tallest * smoothstep(-0.55F, 0.05F, noiseAt(u * 5, 0.7F, ridge.seed + 3));
}

/// Lit from the side of the sun, 0 … 1: the field of the crest line continues down the slope, so
/// the faces hang from the peaks.
float facingLight(const LandscapeScene &scene, const Ridge &ridge, float u, float depth)
{
    const float x = u * ridge.frequency + ridge.offset;
    const float y = 0.37F + depth * ridge.frequency * 0.55F;
    const float bend = 0.12F * noiseAt(x * 2, y * 2, ridge.seed + 9);
    const float side = scene.lightU > u ? 1.0F : -1.0F;
    constexpr float kStep = 0.035F;
    const float here = ridged(x + bend, y, 5, ridge.seed);
    const float there = ridged(x + bend + side * kStep, y - 0.4F * kStep, 5, ridge.seed);
    return smoothstep(-0.10F, 0.12F, here - there);
}

/// Snow lies above a ragged line, longest in the gullies.
float snowAt(const Ridge &ridge, float u, float v, float facing)
{
    if (ridge.snow <= 0)
        return 0;
    const float ragged = 0.22F * noiseAt(u * ridge.frequency * 7, v * 16, ridge.seed + 21)
        + 0.16F * noiseAt(u * ridge.frequency * 23, v * 48, ridge.seed + 22);
    const float above = (ridge.base - v) / ridge.height - (1.0F - ridge.snow) + ragged * 0.8F - 0.08F * facing;
    return smoothstep(-0.04F, 0.08F, above);
}

/// Woods on a slope: upright dabs of colour, darker in between.
Rgb woodsAt(const Ridge &ridge, const Rgb &land, float u, float depth)
{
    const float grain = ridge.trees * 0.55F;
    const auto row = static_cast<int>(std::floor(depth / grain));
    const float within = depth / grain - static_cast<float>(row);
    const float shift = unitHash(row, 5, ridge.seed);
    const float place = u / (grain * 0.62F) + shift;
    const auto column = static_cast<int>(std::floor(place));
    const float across = std::abs(place - static_cast<float>(column) - 0.5F) * 2;
    const float crown = clamp01(1.25F - across * across * 0.55F - 0.65F * within);
    const bool special = unitHash(column, row, ridge.seed + 11) < ridge.accents
        * (0.6F + 1.2F * clamp01(noiseAt(u * 4, depth * 9, ridge.seed + 12) + 0.4F));
    const float vary = 0.86F + 0.28F * unitHash(column, row, ridge.seed + 13);
    return (special ? ridge.accent : land) * (vary * (0.72F + 0.34F * crown));
}

} // namespace

Crest crestOf(const Ridge &ridge, int width, int height)
{
    Crest crest;
    const auto count = static_cast<std::size_t>(width);
    crest.v.resize(count);
    crest.top.resize(count);
    crest.softness.resize(count);
    const float pixel = 1.0F / static_cast<float>(height);
    for (std::size_t x = 0; x < count; ++x) {
        const float u = (static_cast<float>(x) + 0.5F - 0.5F * static_cast<float>(width)) * pixel;
        crest.v[x] = ridge.base - ridge.height * profileAt(ridge, u);
        crest.top[x] = crest.v[x] - (ridge.trees > 0 ? treesAt(ridge, u) : 0.0F);
    }
    for (std::size_t x = 0; x < count; ++x) {
        const std::size_t before = x > 0 ? x - 1 : x;
        const std::size_t after = x + 1 < count ? x + 1 : x;
        const float slope = std::abs(crest.top[after] - crest.top[before]) * 0.5F / pixel;
        crest.softness[x] = 1.0F + slope;
    }
    return crest;
}

Rgb landAt(const LandscapeScene &scene, const Ridge &ridge, float u, float v, float depth, float pixel)
{
    const Mood &mood = scene.mood;
    Rgb land = ridge.land;
    if (ridge.trees > 0) {
        const float fine = clamp01(ridge.trees / (6.0F * pixel)); // too small to be seen: no grain
        land = mix(land, woodsAt(ridge, land, u, depth), fine);
    }
    float facing = 0.4F;
    if (ridge.relief > 0)
        facing = mix(0.4F, facingLight(scene, ridge, u, depth), ridge.relief);
    land = mix(land, Rgb{0.86F, 0.90F, 0.96F}, snowAt(ridge, u, v, facing));
    Rgb colour = land * mix(mood.shade, mood.light, facing);
    // Against the light, what is near goes dark.
    const float dark = (1.0F - ridge.distance) * (scene.hour == Hour::Day ? 0.35F : 0.72F);
    colour = mix(colour, mood.near, dark * dark + 0.15F * dark);
    const Rgb glow = glowAt(scene, u, v);
    const Rgb air = mood.haze * (1.0F - 0.35F * luminance(glow)) + glow * 0.55F;
    const float deeper = 0.25F * smoothstep(0, 0.3F, depth);
    colour = mix(colour, air, clamp01(ridge.distance * (0.82F + deeper)));
    const float wisps = 0.75F + 0.6F * cloudy(u * 2.2F + ridge.offset, v * 9, 3, scene.seed + 60);
    const float rise = smoothstep(ridge.base - 0.62F * ridge.height, ridge.base + 0.05F, v);
    const float mist = clamp01(ridge.mist * wisps * rise);
    return mix(colour, mood.mist * (0.85F + 0.3F * luminance(glow)), mist);
}

} // namespace moravel::server::art
