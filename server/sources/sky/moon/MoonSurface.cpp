// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MoonSurface.h"

#include "server/sources/sky/moon/MoonRays.h"
#include "server/sources/sky/paint/Noise.h"
#include "server/sources/sky/paint/Render.h"

#include <algorithm>

namespace moravel::server::sky {

namespace {

constexpr float km = 1 / 1737.4f; ///< In lunar radii.
constexpr int stripRows = 32;
constexpr float smallestCells = 1.1f; ///< Radius under which a crater would only be a flicker.

float groundHeight(const Vec3f &p, const MareSample &lava)
{
    const float rough = 1 - lava.cover;
    float height = 0;
    if (lava.cover > 0)
        height += lava.cover * (-0.9f + 0.10f * ridgedNoise(p * 9.0f, 2));
    if (rough > 0)
        height += rough * (1.25f * fractalNoise(p * 11.0f, 5) + 0.25f * ridgedNoise(p * 45.0f, 3));
    if (lava.rimKm > 0.05f)
        height += lava.rimKm * ridgedNoise(p * 24.0f, 4) * (0.15f + 0.85f * rough);
    return height * km;
}

Colour groundColour(const Vec3f &p, const MareSample &lava, float ray)
{
    const float mottle = fractalNoise(p * 6.0f + Vec3f{3, 3, 3}, 3);
    const float grain = fractalNoise(p * 70.0f, 2);
    const float patches = fractalNoise(p * 2.6f + Vec3f{9, 1, 4}, 2);
    const float texture = fractalNoise(p * 31.0f, 3);
    const float highland =
        0.60f + 0.10f * mottle + 0.05f * grain + 0.06f * patches + 0.055f * texture;
    const float basalt = 0.61f - 0.46f * lava.darkness + 0.10f * mottle + 0.02f * grain
        + 0.09f * patches + 0.02f * texture;
    const float base = mix(highland, basalt, lava.cover);
    const float bright = base + 0.66f * ray * (1.08f - 0.75f * base);
    const float hue = lava.cover * (lava.titanium + 0.6f * mottle);
    const Colour tint{1.0f - 0.035f * hue, 0.965f, 0.915f + 0.045f * hue};
    return tint * bright;
}

/// Young craters shine and lie in bright dust; the floors of old ones are a little darker.
Colour craterTint(const Crater &crater, float x)
{
    const float young = crater.freshness * crater.freshness * crater.freshness;
    const float fall = 1 - x / craterReach;
    const float floor = x < 0.8f ? -0.035f * (1 - crater.freshness) : 0;
    const float crest = (x - 1) * 6;
    const float halo =
        0.26f * young * fall * fall + floor + 0.05f * crater.freshness / (1 + crest * crest);
    return {halo, halo, halo};
}

} // namespace

MoonSurface::MoonSurface(const MoonView &view, int side, int threads)
    : m_view(view)
    , m_side(side)
    , m_height(static_cast<std::size_t>(side) * static_cast<std::size_t>(side))
    , m_reflectance(m_height.size())
{
    const MoonRays rays;
    const std::vector<Crater> craters = lunarCraters(m_maria);
    forEachIndex((side + stripRows - 1) / stripRows, threads, [&](int strip) {
        const int first = strip * stripRows;
        const int last = std::min(first + stripRows, side) - 1;
        for (int row = first; row <= last; ++row)
            layGround(row, rays);
        pressCraters(first, last, craters);
    });
}

Vec3f MoonSurface::place(int column, int row) const
{
    const float x = coordinate(column), y = -coordinate(row);
    const float limit = 1 - 0.6f / static_cast<float>(m_side);
    const float square = x * x + y * y;
    if (square < limit * limit)
        return {x, y, std::sqrt(1 - square)};
    const float inward = limit / std::sqrt(square);
    return {x * inward, y * inward, std::sqrt(1 - limit * limit)};
}

bool MoonSurface::covers(int column, int row) const
{
    const float x = coordinate(column), y = coordinate(row);
    const float edge = 1 + 4 / static_cast<float>(m_side);
    return x * x + y * y < edge * edge;
}

float MoonSurface::heightAt(float x, float y) const
{
    const float half = static_cast<float>(m_side) / 2;
    const float across = (x + 1) * half - 0.5f, down = (1 - y) * half - 0.5f;
    const int column = static_cast<int>(across), row = static_cast<int>(down);
    if (across < 0 || down < 0 || column + 1 >= m_side || row + 1 >= m_side)
        return -1;
    const float u = across - static_cast<float>(column), v = down - static_cast<float>(row);
    return mix(mix(height(column, row), height(column + 1, row), u),
               mix(height(column, row + 1), height(column + 1, row + 1), u), v);
}

void MoonSurface::layGround(int row, const MoonRays &rays)
{
    for (int column = 0; column < m_side; ++column) {
        if (!covers(column, row))
            continue;
        const Vec3f p = m_view.toMoon(place(column, row));
        const MareSample lava = m_maria.at(p);
        m_height[index(column, row)] = groundHeight(p, lava);
        m_reflectance[index(column, row)] = groundColour(p, lava, rays.at(p));
    }
}

void MoonSurface::pressCraters(int firstRow, int lastRow, const std::vector<Crater> &craters)
{
    const float smallest = smallestCells * 2 / static_cast<float>(m_side);
    for (const Crater &crater : craters) {
        if (crater.radius < smallest)
            break; // largest first
        const Vec3f middle = m_view.toView(crater.centre);
        if (middle.z > -0.1f)
            press(crater, middle, firstRow, lastRow);
    }
}

void MoonSurface::press(const Crater &crater, const Vec3f &middle, int firstRow, int lastRow)
{
    const float half = static_cast<float>(m_side) / 2;
    const float reach = craterReach * crater.radius;
    const int top = std::max(firstRow, static_cast<int>((1 - middle.y - reach) * half));
    const int bottom = std::min(lastRow, static_cast<int>((1 - middle.y + reach) * half) + 1);
    const int left = std::max(0, static_cast<int>((1 + middle.x - reach) * half));
    const int right = std::min(m_side - 1, static_cast<int>((1 + middle.x + reach) * half) + 1);
    const float reachSquared = reach * reach;
    const bool ragged = crater.radius * half > 7; // larger craters are not perfect circles
    for (int row = top; row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) {
            const Vec3f p = place(column, row);
            const float squared = 2 - 2 * dot(p, middle);
            if (squared >= reachSquared || !covers(column, row))
                continue;
            float x = std::sqrt(std::max(squared, 0.0f)) / crater.radius;
            if (ragged)
                x += 0.09f * x
                    * noise((p - middle) * (2.6f / crater.radius) + crater.centre * 40.0f);
            if (x >= craterReach)
                continue;
            float &ground = m_height[index(column, row)];
            const float kept = x < 1 ? 1 - crater.freshness * 0.8f * (1 - x * x) : 1;
            ground = crater.base + (ground - crater.base) * kept + craterHeight(crater, x);
            m_reflectance[index(column, row)] += craterTint(crater, x);
        }
    }
}

} // namespace moravel::server::sky
