// SPDX-License-Identifier: MIT
#include "server/sources/art/Sky.h"

#include "server/sources/art/Noise.h"

namespace moravel::server::art {

namespace {

float distanceToLight(const LandscapeScene &scene, float u, float v)
{
    const float du = u - scene.lightU;
    const float dv = v - scene.lightV;
    return std::sqrt(du * du + dv * dv);
}

/// Stars on a jittered lattice; many faint ones, few bright ones, none at the horizon.
Rgb starsAt(const LandscapeScene &scene, float u, float v, float pixel)
{
    constexpr float kCells = 46;
    const auto cx = static_cast<int>(std::floor(u * kCells));
    const auto cy = static_cast<int>(std::floor(v * kCells));
    const float size = std::max(0.00075F, 0.55F * pixel);
    float light = 0;
    float warmth = 0;
    for (int i = 0; i < 2; ++i) {
        const std::uint32_t seed = scene.seed + 77U + static_cast<std::uint32_t>(i);
        const float magnitude = unitHash(cx, cy, seed);
        const float su =
            (static_cast<float>(cx) + 0.1F + 0.8F * unitHash(cx, cy, seed + 10)) / kCells;
        const float sv =
            (static_cast<float>(cy) + 0.1F + 0.8F * unitHash(cx, cy, seed + 20)) / kCells;
        const float du = (u - su) / size;
        const float dv = (v - sv) / size;
        const float m2 = magnitude * magnitude;
        const float bright = 0.05F + 0.95F * m2 * m2 * m2 * m2;
        // What is smaller than a pixel dims instead of growing.
        const float share = 0.00075F / size;
        light += bright * share * share * expOf(-0.9F * (du * du + dv * dv) / (0.4F + bright));
        warmth = unitHash(cx, cy, seed + 30);
    }
    const float fade = smoothstep(scene.horizon, scene.horizon * 0.3F, v) * scene.stars;
    return mix(Rgb{0.75F, 0.85F, 1.0F}, Rgb{1.0F, 0.9F, 0.75F}, warmth) * (1.6F * light * fade);
}

/// The band of the Milky Way, slanting.
float galaxyAt(const LandscapeScene &scene, float u, float v)
{
    const float across = (u - 0.25F) * 0.62F + (v - 0.25F) * 0.78F;
    const float ragged = across + 0.10F * cloudy(u * 3, v * 3, 3, scene.seed + 5);
    const float band = expOf(-70.0F * ragged * ragged);
    const float dust = smoothstep(-0.25F, 0.45F, cloudy(u * 6 + 9, v * 6, 4, scene.seed + 6));
    return band * (0.35F + 0.65F * dust);
}

/// How dense the clouds are at (u, v): a flat sheet overhead that recedes to the horizon.
float cloudsAt(const LandscapeScene &scene, float u, float v, int octaves)
{
    const float recede = 1.0F / (std::max(0.0F, scene.horizon - v) + 0.16F);
    const float x = u * recede * 0.75F;
    const float y = recede * scene.cloudStretch;
    const float warp = noiseAt(x * 0.7F, y * 0.7F, scene.seed + 40);
    const float n =
        0.5F + 0.9F * cloudy(x + 0.5F * warp, y + 0.3F * warp, octaves, scene.seed + 41);
    const float threshold = 1.0F - scene.cloudCover;
    return smoothstep(threshold - 0.16F, threshold + 0.34F, n);
}

Rgb withClouds(const LandscapeScene &scene, const Rgb &sky, float u, float v)
{
    const float density = cloudsAt(scene, u, v, 5);
    if (density <= 0.003F)
        return sky;
    const float r = distanceToLight(scene, u, v);
    const float reach = 0.02F / (r + 0.05F);
    const float towards =
        cloudsAt(scene, u + (scene.lightU - u) * reach, v + (scene.lightV - v) * reach, 3);
    const float lit =
        clamp01(0.55F + 1.5F * (density - towards) + 0.5F * expOf(-2.5F * r) - 0.45F * density);
    const Rgb cloud = mix(scene.mood.cloudShade, scene.mood.cloudLit, lit);
    const float horizonFade = smoothstep(scene.horizon + 0.01F, scene.horizon - 0.22F, v);
    return mix(sky, cloud, density * (0.25F + 0.6F * horizonFade));
}

/// The moon's disc: lit by its phase, with maria and limb darkening, the rest in earthshine.
Rgb moonAt(const LandscapeScene &scene, const Rgb &sky, float x, float y, float cover)
{
    const float half = std::sqrt(std::max(0.0F, 1.0F - y * y));
    const float side = scene.moonNight.waxing ? x : -x;
    const float terminator = half * (1.0F - 2.0F * static_cast<float>(scene.moonNight.lit));
    const float lit = smoothstep(-0.06F, 0.06F, side - terminator);
    const float maria = smoothstep(-0.1F, 0.35F, cloudy(x * 1.3F + 3, y * 1.3F, 4, 4242));
    const Rgb face = scene.mood.sun * ((0.92F - 0.25F * maria) * (0.75F + 0.25F * half));
    return mix(sky, mix(sky + scene.mood.sun * 0.02F, face, lit), cover);
}

Rgb withDisc(const LandscapeScene &scene, const Rgb &sky, float u, float v, float pixel)
{
    const float r = distanceToLight(scene, u, v);
    const float cover = clamp01((scene.discRadius - r) / pixel + 0.5F);
    if (cover <= 0)
        return sky;
    if (!scene.moonlit)
        return mix(sky, scene.mood.sun * 1.05F, cover);
    const float x = (u - scene.lightU) / scene.discRadius;
    const float y = (v - scene.lightV) / scene.discRadius;
    return moonAt(scene, sky, x, y, cover);
}

} // namespace

Rgb glowAt(const LandscapeScene &scene, float u, float v)
{
    const float du = u - scene.lightU;
    const float dv = v - scene.lightV;
    const float r = std::sqrt(du * du + dv * dv);
    const float flat = std::sqrt(0.25F * du * du + 2.2F * dv * dv); // light along the horizon
    const float strength =
        0.34F * expOf(-14.0F * r) + 0.26F * expOf(-4.2F * r) + 0.14F * expOf(-3.0F * flat);
    return scene.mood.sun * (strength * scene.glow);
}

Rgb skyAt(const LandscapeScene &scene, float u, float v, float pixel)
{
    Rgb sky = scene.mood.sky.at(v / scene.horizon);
    if (scene.stars > 0) {
        sky = sky
            + Rgb{0.30F, 0.33F, 0.42F}
                * (0.22F * scene.stars * galaxyAt(scene, u, v) * (scene.moonlit ? 0.3F : 1.0F));
        sky = sky + starsAt(scene, u, v, pixel);
    }
    const Rgb glow = glowAt(scene, u, v);
    // Screened, not added: the glow may fill the sky but not burn it out.
    sky = {1 - (1 - std::min(sky.r, 1.0F)) * (1 - std::min(glow.r, 0.98F)),
           1 - (1 - std::min(sky.g, 1.0F)) * (1 - std::min(glow.g, 0.98F)),
           1 - (1 - std::min(sky.b, 1.0F)) * (1 - std::min(glow.b, 0.98F))};
    if (scene.discRadius > 0)
        sky = withDisc(scene, sky, u, v, pixel);
    return withClouds(scene, sky, u, v);
}

} // namespace moravel::server::art
