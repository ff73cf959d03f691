// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/SolarGlow.h"

#include "server/sources/sky/paint/Noise.h"
#include "server/sources/sky/planets/SolarView.h"

namespace moravel::server::sky {

namespace {

constexpr float sunRadius = 0.021f; ///< In fine units.

Colour nebula(float x, float y)
{
    const Vec3f p{x * 2.9f + y * 1.4f, y * 3.4f - x * 1.2f, 4.37f + 0.7f * x};
    const Vec3f bend{noise(p), noise(p + Vec3f{5.2f, 1.3f, 0}), 0};
    const float cloud = fractalNoise(p + bend * 0.8f, 5);
    const float veil = smoothstep(-0.15f, 0.85f, cloud);
    const float hue = smoothstep(-0.5f, 0.5f, noise(p * 0.9f + Vec3f{0, 0, 8}) + 0.8f * x);
    const Colour violet{0.020f, 0.010f, 0.034f}, teal{0.004f, 0.019f, 0.028f};
    return mix(violet, teal, hue) * veil;
}

} // namespace

Colour solarBackdrop(const SolarView &view, const Frame &frame, float x, float y)
{
    const float sampleX = frame.middleX + x * frame.cover,
                sampleY = frame.middleY + y * frame.cover;
    const float r = view.eclipticRadius(sampleX, sampleY);
    const float disc = std::exp(-r * r * 0.16f) + 0.6f * std::exp(-r * 1.5f);
    const Colour ground = mix(Colour{0.0016f, 0.0018f, 0.0060f}, Colour{0.0028f, 0.0044f, 0.0105f},
                              smoothstep(-0.28f, 0.28f, y));
    const Projected sun = view.project({});
    const float away = std::hypot(sampleX - sun.x, sampleY - sun.y) / frame.fineUnit;
    const float halo = 1 / (1 + away * away * 60);
    return ground + nebula(x, y) + Colour{0.017f, 0.0105f, 0.0055f} * disc
        + Colour{0.17f, 0.092f, 0.034f} * (halo * halo);
}

void addSun(Band &band, const SolarView &view)
{
    const Projected sun = view.project({});
    const float radius = sunRadius * band.frame.fineUnit;
    const float reach = 9 * radius;
    const int y0 = std::max(band.top, static_cast<int>(sun.y - reach));
    const int y1 = std::min(band.bottom() - 1, static_cast<int>(sun.y + reach));
    const int x0 = std::max(0, static_cast<int>(sun.x - reach));
    const int x1 = std::min(band.frame.width - 1, static_cast<int>(sun.x + reach));
    for (int j = y0; j <= y1; ++j) {
        Colour *row = band.row(j);
        const float y = (static_cast<float>(j) + 0.5f - sun.y) / radius;
        for (int i = x0; i <= x1; ++i) {
            const float x = (static_cast<float>(i) + 0.5f - sun.x) / radius;
            const float d = std::sqrt(x * x + y * y);
            const float end = 1 - d / 9;
            if (end <= 0)
                continue;
            const float flat = 1 / std::max(d, 0.2f);
            const float streamers =
                1 + 0.5f * fractalNoise({x * flat * 2.2f, y * flat * 2.2f, d * 0.12f}, 3);
            const float corona = end * end * streamers * std::min(1.0f, 0.95f / (d * d + 0.15f));
            const float disc = smoothstep(1.12f, 0.86f, d);
            row[i] += Colour{1.0f, 0.60f, 0.24f} * (0.95f * corona)
                + mix(Colour{2.2f, 1.35f, 0.5f}, Colour{3.4f, 3.0f, 2.3f},
                      smoothstep(1.0f, 0.45f, d))
                    * disc;
        }
    }
}

} // namespace moravel::server::sky
