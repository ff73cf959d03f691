// SPDX-License-Identifier: MIT
#include "server/sources/art/Lake.h"

#include "server/sources/art/Noise.h"

namespace moravel::server::art {

namespace {

Rgb waterAt(const LandscapeScene &scene, const Pixels &pixels, int x, float u, float v)
{
    const float near = v - scene.lake; // below the far shore
    const auto height = static_cast<float>(pixels.height);
    // Ripples shrink towards the far shore.
    const float recede = 1.0F / (near + 0.025F);
    const float swell = cloudy(u * recede * 0.9F, recede * 3.2F, 3, scene.seed + 90);
    const float ripple = noiseAt(u * recede * 5.0F, recede * 16.0F, scene.seed + 91);
    const float bend = near * (0.10F * swell + 0.055F * ripple);
    Rgb mirrored;
    constexpr int kTaps = 5; // a little upright blur, as from waves too small to see
    for (int tap = 0; tap < kTaps; ++tap) {
        const float spread = (static_cast<float>(tap) - 2.0F) * (0.0008F + 0.012F * near);
        const float source = (scene.lake - near * 0.94F + bend + spread) * height;
        const int last = std::max(0, static_cast<int>(scene.lake * height) - 1);
        const float row = std::clamp(source - 0.5F, 0.0F, static_cast<float>(last));
        const int above = static_cast<int>(row);
        const Rgb a = lightOfPixel(pixels.row(above)[x]);
        const Rgb b = lightOfPixel(pixels.row(std::min(above + 1, last))[x]);
        mirrored = mirrored + mix(a, b, row - static_cast<float>(above)) * (1.0F / kTaps);
    }
    const Rgb deep = mix(scene.mood.near, scene.mood.sky.at(0.2F), 0.35F);
    const float depth = 0.12F + 0.5F * smoothstep(0.0F, 0.34F, near) + 0.10F * ripple;
    Rgb water = mix(mirrored, deep, clamp01(depth));
    if (scene.discRadius > 0) {
        const float path = std::abs(u - scene.lightU) / (0.018F + 0.20F * near);
        const float sparkle = smoothstep(0.25F, 0.75F, ripple + 0.5F * swell) * expOf(-path * path);
        water = water + scene.mood.sun * (0.85F * sparkle * std::min(1.0F, 0.25F + scene.glow));
    }
    const float shore = expOf(-near * 240.0F);
    return mix(water, scene.mood.mist, 0.35F * shore);
}

} // namespace

void paintLake(const LandscapeScene &scene, const Pixels &pixels, int first, int end)
{
    const float pixel = 1.0F / static_cast<float>(pixels.height);
    for (int y = first; y < end; ++y) {
        std::uint32_t *out = pixels.row(y);
        const float v = (static_cast<float>(y) + 0.5F) * pixel;
        for (int x = 0; x < pixels.width; ++x) {
            const float u =
                (static_cast<float>(x) + 0.5F - 0.5F * static_cast<float>(pixels.width)) * pixel;
            out[x] = toPixel(waterAt(scene, pixels, x, u, std::max(v, scene.lake)), x, y);
        }
    }
}

} // namespace moravel::server::art
