// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/Orbits.h"

#include "server/sources/sky/astro/PlanetPositions.h"
#include "server/sources/sky/planets/PlanetLooks.h"
#include "server/sources/sky/planets/SolarView.h"

namespace moravel::server::sky {

namespace {

constexpr int steps = 720;
constexpr float glowUntil = 0.35f; ///< Part of an orbit that glows behind the planet.

struct Pen
{
    float thin; ///< Half width of the line at the Sun's depth, samples.
    Colour tint;
};

/// The orbit backwards from the planet, with one point before it and one after the full turn.
std::vector<Projected> pathOf(Planet planet, const SolarView &view, double julianDay)
{
    const Orbit orbit = orbitOf(planet, julianDay);
    std::vector<Projected> path;
    for (int step = -1; step <= steps + 1; ++step)
        path.push_back(view.project(SolarView::scenePlace(placeOn(orbit, -360.0 * step / steps))));
    return path;
}

CurvePoint curvePoint(const Projected *at)
{
    return {at->x, at->y, at[1].x - at[-1].x, at[1].y - at[-1].y};
}

/// @p nearness is 1 at the Sun's depth; near parts are thicker and brighter. @p behind is the part
/// of the orbit since the planet was there.
void addPiece(std::vector<LinePiece> &lines, const Projected *at, const Pen &pen, float nearness,
              float behind)
{
    const float fresh = std::exp(-behind * 7);
    const float wanted = pen.thin * nearness * (1 + 0.9f * fresh);
    const float width = std::max(wanted, 1.1f);
    const float strength = wanted / width * std::min(nearness, 1.3f);
    const float trail = fresh + 0.35f * std::exp(-behind * 2.2f);
    const CurvePoint from = curvePoint(at), to = curvePoint(at + 1);
    lines.push_back({from, to, width, pen.tint * (strength * (0.05f + 0.62f * trail))});
    if (behind < glowUntil) {
        const float fade = (1 - behind / glowUntil) * (1 - behind / glowUntil);
        lines.push_back({from, to, width * 6, pen.tint * (0.045f * fade * strength)});
    }
}

} // namespace

std::vector<LinePiece> orbitLines(const SolarView &view, const Frame &frame, double julianDay)
{
    std::vector<LinePiece> lines;
    lines.reserve(planetCount * steps * 3 / 2);
    const float unitScale = view.project({}).scale;
    for (int i = 0; i < planetCount; ++i) {
        const auto planet = static_cast<Planet>(i);
        const std::vector<Projected> path = pathOf(planet, view, julianDay);
        const Pen pen{frame.fineUnit / 2160 * 1.9f,
                      mix(looksOf(planet).colour, Colour{0.7f, 0.8f, 1.0f}, 0.3f)};
        for (int step = 0; step < steps; ++step) {
            const Projected *at = path.data() + step + 1;
            addPiece(lines, at, pen, at->scale / unitScale, static_cast<float>(step + 1) / steps);
        }
    }
    return lines;
}

} // namespace moravel::server::sky
