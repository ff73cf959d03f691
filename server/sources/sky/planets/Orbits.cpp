// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/Orbits.h"

#include "server/sources/sky/astro/PlanetPositions.h"
#include "server/sources/sky/planets/PlanetLooks.h"
#include "server/sources/sky/planets/SolarView.h"

namespace moravel::server::sky {

namespace {

constexpr int steps = 720;

struct Pen
{
    float thin; ///< Half width of the line at the Sun's depth, samples.
    Colour tint;
};

void addPiece(std::vector<LinePiece> &lines, const Projected &from, const Projected &to,
              const Pen &pen, float unitScale, float behind)
{
    const float nearness = from.scale / unitScale; // near parts are thicker and brighter
    const float trail = std::exp(-behind * 7) + 0.35f * std::exp(-behind * 2.2f);
    const float wanted = pen.thin * nearness * (1 + 0.9f * std::exp(-behind * 7));
    const float width = std::max(wanted, 1.1f);
    const float strength = wanted / width * std::min(nearness, 1.3f);
    const LinePiece line{from.x, from.y, to.x,
                         to.y,   width,  pen.tint * (strength * (0.05f + 0.62f * trail))};
    lines.push_back(line);
    if (behind < 0.35f) { // a soft glow along the fresh part of the trail
        const float fade = (1 - behind / 0.35f) * (1 - behind / 0.35f);
        lines.push_back(
            {line.x0, line.y0, line.x1, line.y1, width * 6, pen.tint * (0.045f * fade * strength)});
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
        const Orbit orbit = orbitOf(planet, julianDay);
        const Pen pen{frame.fineUnit / 2160 * 1.9f,
                      mix(looksOf(planet).colour, Colour{0.7f, 0.8f, 1.0f}, 0.3f)};
        Projected from = view.project(SolarView::scenePlace(placeOn(orbit)));
        for (int step = 1; step <= steps; ++step) {
            const double back = 360.0 * step / steps;
            const Projected to = view.project(SolarView::scenePlace(placeOn(orbit, -back)));
            addPiece(lines, from, to, pen, unitScale, static_cast<float>(step) / steps);
            from = to;
        }
    }
    return lines;
}

} // namespace moravel::server::sky
