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
    const float rough = 0.035F * ridge.rocky * cloudy(x * 11, 0.9F, 4, ridge.seed + 17);
    return mix(soft, jagged, ridge.rocky) + rough + ridge.valley * u * u + ridge.tilt * u;
}

/// Height of the tree tops above the land: small spires on a jittered lattice.
float treesAt(const Ridge &ridge, float u)
{
    const float pitch = ridge.trees * 0.34F;
    const auto cell = static_cast<int>(std::floor(u / pitch));
    float tallest = 0;
    for (int i = cell - 1; i <= cell + 1; ++i) {
        const float middle =
            (static_cast<float>(i) + 0.15F + 0.7F * unitHash(i, 1, ridge.seed)) * pitch;
        const float tall = ridge.trees * (0.45F + 0.55F * unitHash(i, 2, ridge.seed));
        const float away = std::abs(u - middle) / (tall * 0.24F);
        const float notch =
            0.10F * std::abs(noiseAt(u / ridge.trees * 9, static_cast<float>(i), ridge.seed));
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
    const float y = 0.37F + depth * ridge.frequency * 0.8F;
    // The ridge lines wander the more the farther they descend.
    const float loose = std::min(1.0F, 6.0F * depth * ridge.frequency);
    const float bend = 0.30F * loose * cloudy(x * 1.7F, y * 1.7F, 3, ridge.seed + 9);
    const float side = scene.lightU > 0 ? 1.0F : -1.0F;
    constexpr float kStep = 0.03F;
    const float here = ridged(x + bend, y, 4, ridge.seed);
    const float there = ridged(x + bend + side * kStep, y - 0.5F * kStep, 4, ridge.seed);
    const float rock = 0.11F * cloudy(x * 22 + bend * 9, y * 17, 4, ridge.seed + 33);
    return 0.5F + 0.5F * std::clamp((here - there) * 9.0F + rock * 6.0F, -1.0F, 1.0F);
}

/// Snow lies above a ragged line, longest in the gullies.
float snowAt(const Ridge &ridge, float u, float v, float facing)
{
    if (ridge.snow <= 0)
        return 0;
    const float ragged = 0.42F * cloudy(u * ridge.frequency * 8, v * 20, 5, ridge.seed + 21);
    const float above =
        (ridge.base - v) / ridge.height - (1.0F - ridge.snow) + ragged - 0.16F * facing;
    return smoothstep(-0.02F, 0.05F, above);
}

/// One conifer of the woods, seen at @p x from its trunk and @p fall below its tip.
Rgb spireColour(const Ridge &ridge, int row, int column, float x, float fall, float tall, float u,
                float depth)
{
    const float patch = 0.6F + 1.2F * clamp01(noiseAt(u * 4, depth * 9, ridge.seed + 12) + 0.4F);
    const bool special = unitHash(column, row, ridge.seed + 11) < ridge.accents * patch;
    const float vary = 0.84F + 0.32F * unitHash(column, row, ridge.seed + 13);
    const float down = fall / tall; // bright tips, dark feet, one side in the light
    const float light = 1.22F - 0.62F * down + 0.9F * x / tall;
    return (special ? ridge.accent : ridge.land) * (vary * light);
}

/// Woods on a slope: rows of conifers, each before the one above it.
Rgb woodsAt(const LandscapeScene &scene, const Ridge &ridge, float u, float depth, float pixel)
{
    const float spacing = ridge.trees * 0.46F;
    const float pitch = ridge.trees * 0.36F;
    const float side = scene.lightU > 0 ? 1.0F : -1.0F;
    const auto first = static_cast<int>(std::floor(depth / spacing));
    Rgb colour;
    float open = 1;
    for (int row = first + 2; row >= first && open > 0.03F; --row) {
        const float shift = unitHash(row, 5, ridge.seed);
        const auto column = static_cast<int>(std::floor(u / pitch + shift - 0.5F));
        for (int c = column; c <= column + 1; ++c) {
            const float jitter = unitHash(c, row, ridge.seed + 31);
            const float middle = (static_cast<float>(c) + 0.25F + 0.5F * jitter - shift) * pitch;
            const float tall = ridge.trees * (0.62F + 0.5F * unitHash(c, row, ridge.seed + 32));
            const float fall = depth - (static_cast<float>(row + 1) * spacing - tall);
            if (fall <= 0)
                continue;
            const float jag = fall / tall * 7.0F; // boughs step outwards on the way down
            const float half = fall * 0.25F * (1.06F - 0.30F * (std::floor(jag) + 1.0F - jag));
            const float cover = clamp01((half - std::abs(u - middle)) / pixel + 0.5F) * open;
            colour = colour
                + spireColour(ridge, row, c, side * (u - middle), fall, tall, u, depth) * cover;
            open -= cover;
        }
    }
    return colour + ridge.land * (0.55F * open);
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

Rgb landAt(const LandscapeScene &scene, const Ridge &ridge, float u, float v, float depth,
           float pixel)
{
    const Mood &mood = scene.mood;
    Rgb land = ridge.land;
    if (ridge.trees > 0) {
        const float fine =
            clamp01(ridge.trees / (5.0F * pixel) - 0.6F); // too small to be seen: no grain
        const Rgb plain = mix(land, ridge.accent, 0.6F * ridge.accents) * 0.8F;
        land = fine > 0 ? mix(plain, woodsAt(scene, ridge, u, depth, pixel), fine) : plain;
    }
    const float facing = ridge.relief > 0
        ? mix(0.4F, facingLight(scene, ridge, u, depth), ridge.relief)
        : 0.42F + 0.3F * noiseAt(u * 3 + ridge.offset, depth * 6, ridge.seed + 8);
    land = mix(land, Rgb{0.86F, 0.90F, 0.96F}, snowAt(ridge, u, v, facing));
    Rgb colour = land * mix(mood.shade, mood.light, facing);
    // Against the light, what is near goes dark.
    const float dark = (1.0F - ridge.distance) * (scene.hour == Hour::Day ? 0.55F : 0.86F);
    colour = mix(colour, mood.near, powOf(dark, 1.3F));
    const Rgb glow = glowAt(scene, u, v);
    const Rgb air = mood.haze * (1.0F - 0.35F * luminance(glow)) + glow * 0.55F;
    const float deeper = 0.25F * smoothstep(0, 0.3F, depth);
    colour = mix(colour, air, clamp01(powOf(ridge.distance, 1.45F) * (0.85F + deeper)));
    const float wisps = 0.75F + 0.6F * cloudy(u * 2.2F + ridge.offset, v * 9, 3, scene.seed + 60);
    const float rise = smoothstep(ridge.base - 0.62F * ridge.height, ridge.base + 0.05F, v);
    const float mist = clamp01(ridge.mist * wisps * rise);
    return mix(colour, mood.mist * (0.85F + 0.3F * luminance(glow)), mist);
}

} // namespace moravel::server::art
