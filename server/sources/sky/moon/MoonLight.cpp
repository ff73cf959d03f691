// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MoonLight.h"

#include "server/sources/sky/moon/MoonSurface.h"

namespace moravel::server::sky {

namespace {

constexpr float emphasis = 1.5f; ///< Of slopes, so that the relief reads on a screen.
constexpr float lowSun = 0.36f; ///< Cosine above which no mountain reaches far enough.
constexpr float farthestShadow = 0.1f; ///< Lunar radii: 170 km.
constexpr float softness = 0.016f; ///< A little more than the Sun's width, which is 0.0093.

/// Difference of height a lunar radius, one-sided at the rim of the map.
float slope(const MoonSurface &surface, int column, int row, int stepX, int stepY)
{
    const int last = surface.side() - 1;
    const auto usable = [&](int c, int r) {
        return c >= 0 && r >= 0 && c <= last && r <= last && surface.covers(c, r);
    };
    int c0 = column - stepX, r0 = row - stepY, c1 = column + stepX, r1 = row + stepY;
    float cells = 2;
    if (!usable(c0, r0)) {
        c0 = column;
        r0 = row;
        cells -= 1;
    }
    if (!usable(c1, r1)) {
        c1 = column;
        r1 = row;
        cells -= 1;
    }
    if (cells == 0)
        return 0;
    const float cell = 2 / static_cast<float>(surface.side());
    return (surface.height(c1, r1) - surface.height(c0, r0)) / (cells * cell);
}

} // namespace

Vec3f groundNormal(const MoonSurface &surface, int column, int row)
{
    const Vec3f up = surface.place(column, row);
    // The height as a function of x and y only; its slope along the ground is the part across `up`.
    const Vec3f steep{slope(surface, column, row, 1, 0), slope(surface, column, row, 0, -1), 0};
    const Vec3f along = steep - up * dot(steep, up);
    const float fade =
        0.2f + 0.8f * smoothstep(0, 0.4f, up.z); // the limb is too slanted to resolve
    const float steepness = emphasis * fade * length(along);
    return normalized(up - along * (emphasis * fade / (1 + 0.8f * steepness))); // no cliffs
}

float sunVisible(const MoonSurface &surface, int column, int row, const Vec3f &light)
{
    const Vec3f up = surface.place(column, row);
    const float sunHeight = dot(up, light);
    if (sunHeight > lowSun)
        return 1;
    if (sunHeight < -0.12f)
        return 0;
    const float cell = 2 / static_cast<float>(surface.side());
    const Vec3f start = up * (1 + surface.height(column, row) + 0.00005f);
    float seen = 1;
    for (float t = 1.5f * cell; t < farthestShadow && seen > 0; t = t * 1.13f + 0.25f * cell) {
        const Vec3f q = start + light * t;
        if (q.z <= 0)
            break;
        const float clear = length(q) - 1 - surface.heightAt(q.x, q.y);
        seen = std::min(seen, 0.5f + clear / (t * softness));
    }
    return seen < 0 ? 0 : seen;
}

float dustyReflection(float cosineToSun, float cosineToViewer)
{
    if (cosineToSun <= 0)
        return 0;
    const float viewer = cosineToViewer < 0.02f ? 0.02f : cosineToViewer;
    return 0.74f * 2 * cosineToSun / (cosineToSun + viewer) + 0.26f * cosineToSun;
}

} // namespace moravel::server::sky
