// SPDX-License-Identifier: MIT
#include "server/sources/art/Trees.h"

#include "server/sources/art/Noise.h"
#include "server/sources/art/Sky.h"

namespace moravel::server::art {

namespace {

/// Half the width of a conifer, as a share of its height.
constexpr float kSpread = 0.17F;

/// How far inside the branches a place is, in tree heights; negative outside. @p x counts from the
/// trunk, @p f from the foot (0) to the tip (1).
float insideBranches(const Tree &tree, float x, float f)
{
    const float away = std::abs(x);
    const int side = x < 0 ? 0 : 1;
    const float lifted = f + away * 0.42F; // boughs hang: their ends belong to the whorl above
    const float whorls = 15.0F + 7.0F * unitHash(1, 1, tree.seed);
    const float position = lifted * whorls + 0.25F * static_cast<float>(side);
    const auto whorl = static_cast<int>(std::floor(position));
    const float within = position - static_cast<float>(whorl);
    const float vary = 0.62F + 0.5F * unitHash(whorl, side, tree.seed);
    const float taper = std::max(0.0F, 1.0F - lifted);
    const float cone = kSpread * (0.93F * taper * (0.55F + 0.45F * taper) + 0.02F) * 1.35F;
    const float bough = cone * vary * (1.0F - 0.62F * within);
    const float needles = 0.22F * cone * noiseAt(x * 90, f * 120, tree.seed + 2);
    const float bare = f < 0.07F ? -1.0F : bough + needles - away;
    const float trunk = 0.011F * (1.05F - f) - away;
    return f > 1 ? -1.0F : std::max(bare, trunk);
}

} // namespace

void paintTree(const LandscapeScene &scene, const Tree &tree, const Pixels &pixels, int first,
               int end)
{
    const auto height = static_cast<float>(pixels.height);
    const auto middle = 0.5F * static_cast<float>(pixels.width);
    const float reach = kSpread * 1.5F * tree.height;
    const int left = std::max(0, static_cast<int>((tree.u - reach) * height + middle));
    const int right =
        std::min(pixels.width, static_cast<int>((tree.u + reach) * height + middle) + 1);
    const int top = std::max(first, static_cast<int>((tree.v - tree.height) * height));
    const int bottom = std::min(end, static_cast<int>(tree.v * height) + 1);
    const Rgb needles = fromHex(tree.golden ? 0xb9802eU : 0x2c4a3cU);
    const float shine = scene.hour == Hour::Day ? 0.55F : scene.hour == Hour::Night ? 0.1F : 0.3F;
    const Rgb body = mix(scene.mood.near * 0.8F, needles * scene.mood.light,
                         tree.golden ? shine + 0.12F : shine);
    for (int y = top; y < bottom; ++y) {
        std::uint32_t *row = pixels.row(y);
        const float v = (static_cast<float>(y) + 0.5F) / height;
        const float f = (tree.v - v) / tree.height;
        for (int x = left; x < right; ++x) {
            const float u = (static_cast<float>(x) + 0.5F - middle) / height;
            const float across = (u - tree.u) / tree.height;
            const float inside = insideBranches(tree, across, f);
            const float cover = clamp01(inside * tree.height * height + 0.5F);
            if (cover <= 0)
                continue;
            const float texture = 0.8F + 0.45F * noiseAt(across * 60, f * 90, tree.seed + 4);
            const float towards = (scene.lightU > tree.u ? across : -across) / kSpread;
            const float rim = clamp01(0.25F + towards) * shine;
            Rgb colour = body * (texture * (0.85F + 0.9F * rim)) + glowAt(scene, u, v) * 0.10F;
            row[x] = toPixel(mix(lightOfPixel(row[x]), colour, cover), x, y);
        }
    }
}

} // namespace moravel::server::art
