// SPDX-License-Identifier: MIT
#include "server/sources/sky/paint/Stars.h"

#include "server/sources/sky/paint/Prng.h"

namespace moravel::server::sky {

namespace {

constexpr float haloFrom = 0.25f; ///< Light from which a star shows a halo.

/// From the orange of cool stars over white to the blue of hot ones.
Colour starTint(float warmth)
{
    const Colour cool{1.0f, 0.72f, 0.46f}, white{1.0f, 0.96f, 0.92f}, hot{0.62f, 0.77f, 1.0f};
    return warmth < 0.4f ? mix(cool, white, warmth / 0.4f)
                         : mix(white, hot, (warmth - 0.4f) / 0.6f);
}

} // namespace

std::vector<Star> scatterStars(std::uint64_t seed, int count,
                               const std::function<float(float x, float y)> &density)
{
    Prng prng(seed);
    std::vector<Star> stars;
    stars.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const float x = prng.uniform() - 0.5f;
        const float y = (prng.uniform() - 0.5f) * 9 / 16;
        const float rank = 0.00012f + prng.uniform(); // many faint ones to a bright one
        const float light = 0.00006f / (rank * std::sqrt(rank));
        const float chance = prng.uniform();
        const Colour tint = starTint(prng.uniform());
        if (light > 0.004f || chance < density(x, y))
            stars.push_back({x, y, std::min(light, 1.0f), tint});
    }
    return stars;
}

void addSpot(Band &band, float x, float y, float radius, const Colour &colour)
{
    const float reach = 3.2f * radius + 0.5f;
    if (y + reach < static_cast<float>(band.top) || y - reach > static_cast<float>(band.bottom()))
        return;
    const int x0 = std::max(0, static_cast<int>(x - reach));
    const int x1 = std::min(band.frame.width - 1, static_cast<int>(x + reach));
    const int y0 = std::max(band.top, static_cast<int>(y - reach));
    const int y1 = std::min(band.bottom() - 1, static_cast<int>(y + reach));
    const float scale = 1 / (reach * reach);
    for (int j = y0; j <= y1; ++j) {
        Colour *row = band.row(j);
        const float dy = static_cast<float>(j) + 0.5f - y;
        for (int i = x0; i <= x1; ++i) {
            const float dx = static_cast<float>(i) + 0.5f - x;
            const float rest = 1 - (dx * dx + dy * dy) * scale;
            if (rest <= 0)
                continue;
            const float fall = rest * rest; // (1 - r²)⁴ is close to a Gaussian, and ends
            row[i] += colour * (fall * fall);
        }
    }
}

void addStars(Band &band, const std::vector<Star> &stars, float exposure)
{
    const Frame &frame = band.frame;
    const float unit = frame.cover / 3840;
    for (const Star &star : stars) {
        const float x = frame.middleX + star.x * frame.cover;
        const float y = frame.middleY + star.y * frame.cover;
        const float wanted = unit * (0.9f + 1.7f * std::sqrt(star.light));
        const float radius = std::max(wanted, 0.6f);
        const float spread = wanted * wanted / (radius * radius); // smaller than a sample: dimmer
        const float peak = exposure * spread * (0.05f + 3.0f * std::sqrt(star.light));
        addSpot(band, x, y, radius, star.tint * peak);
        if (star.light > haloFrom) {
            addSpot(band, x, y, radius * 2.6f, star.tint * (exposure * 0.16f * star.light));
            addSpot(band, x, y, radius * 6, star.tint * (exposure * 0.018f * star.light));
        }
    }
}

} // namespace moravel::server::sky
