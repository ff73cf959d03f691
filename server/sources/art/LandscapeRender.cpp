// SPDX-License-Identifier: MIT
#include "server/sources/art/LandscapeRender.h"

#include "server/sources/art/Bands.h"
#include "server/sources/art/Lake.h"
#include "server/sources/art/Sky.h"
#include "server/sources/art/Terrain.h"
#include "server/sources/art/Trees.h"

namespace moravel::server::art {

namespace {

constexpr int kBandRows = 16;

/// Paints sky and ridges of one pixel, from the nearest layer that covers it wholly outwards.
Rgb backgroundAt(const LandscapeScene &scene, const std::vector<Crest> &crests, std::size_t x,
                 float u, float v, float pixel)
{
    const auto coverOf = [&](std::size_t layer) {
        return clamp01((v - crests[layer].top[x]) / (pixel * crests[layer].softness[x]) + 0.5F);
    };
    std::size_t start = crests.size();
    while (start > 0 && coverOf(start - 1) < 1.0F)
        --start;
    Rgb colour = start == 0 ? skyAt(scene, u, v, pixel) : Rgb();
    for (std::size_t layer = start == 0 ? 0 : start - 1; layer < crests.size(); ++layer) {
        const float cover = coverOf(layer);
        if (cover <= 0)
            continue;
        const float depth = v - crests[layer].v[x];
        colour = mix(colour, landAt(scene, scene.ridges[layer], u, v, depth, pixel), cover);
    }
    return colour;
}

void paintBackground(const LandscapeScene &scene, const std::vector<Crest> &crests,
                     const Pixels &pixels, int first, int end)
{
    const float pixel = 1.0F / static_cast<float>(pixels.height);
    for (int y = first; y < end; ++y) {
        std::uint32_t *out = pixels.row(y);
        const float v = (static_cast<float>(y) + 0.5F) * pixel;
        for (int x = 0; x < pixels.width; ++x) {
            const float u =
                (static_cast<float>(x) + 0.5F - 0.5F * static_cast<float>(pixels.width)) * pixel;
            out[x] = toPixel(backgroundAt(scene, crests, static_cast<std::size_t>(x), u, v, pixel),
                             x, y);
        }
    }
}

} // namespace

QImage renderLandscape(const LandscapeScene &scene, QSize size, int threads)
{
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    const Pixels pixels(image);
    std::vector<Crest> crests(scene.ridges.size());
    forBands(0, static_cast<int>(crests.size()), 1, threads, [&](int layer, int) {
        const auto i = static_cast<std::size_t>(layer);
        crests[i] = crestOf(scene.ridges[i], pixels.width, pixels.height);
    });
    const int shore = std::clamp(static_cast<int>(scene.lake * static_cast<float>(pixels.height)),
                                 1, pixels.height);
    forBands(0, shore, kBandRows, threads,
             [&](int first, int end) { paintBackground(scene, crests, pixels, first, end); });
    forBands(shore, pixels.height, kBandRows, threads,
             [&](int first, int end) { paintLake(scene, pixels, first, end); });
    forBands(0, pixels.height, kBandRows, threads, [&](int first, int end) {
        for (const Tree &tree : scene.trees)
            paintTree(scene, tree, pixels, first, end);
    });
    return image;
}

} // namespace moravel::server::art
