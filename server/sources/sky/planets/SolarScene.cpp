// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/SolarScene.h"

#include "server/sources/sky/paint/Render.h"
#include "server/sources/sky/paint/SmoothField.h"
#include "server/sources/sky/paint/Stars.h"
#include "server/sources/sky/planets/Dust.h"
#include "server/sources/sky/planets/Globe.h"
#include "server/sources/sky/planets/Orbits.h"
#include "server/sources/sky/planets/SolarGlow.h"
#include "server/sources/sky/planets/SolarView.h"

#include <algorithm>

namespace moravel::server::sky {

namespace {

std::vector<Globe> globesFromFarToNear(const SolarView &view, const Frame &frame, double julianDay)
{
    std::vector<Globe> globes;
    for (int i = 0; i < planetCount; ++i)
        globes.emplace_back(static_cast<Planet>(i), view, frame, julianDay);
    std::stable_sort(globes.begin(), globes.end(),
                     [](const Globe &a, const Globe &b) { return a.depth() > b.depth(); });
    return globes;
}

} // namespace

QImage paintPlanets(double julianDay, QSize size, int threads)
{
    const Frame frame(size);
    const SolarView view(frame);
    const SmoothField backdrop(frame, threads,
                               [&](float x, float y) { return solarBackdrop(view, frame, x, y); });
    const std::vector<Star> stars = scatterStars(1781, 9000, [](float, float) { return 0.6f; });
    const std::vector<DustGrain> dust = beltDust(view, frame, julianDay);
    const std::vector<LinePiece> orbits = orbitLines(view, frame, julianDay);
    const std::vector<Globe> globes = globesFromFarToNear(view, frame, julianDay);
    const float sunDepth = view.project({}).depth;
    return renderBands(size, frame, threads, [&](Band &band) {
        backdrop.addTo(band);
        addStars(band, stars, 0.75f);
        for (const DustGrain &grain : dust)
            addSpot(band, grain.x, grain.y, grain.radius, grain.colour);
        for (const LinePiece &piece : orbits)
            addLine(band, piece);
        const auto nearer = std::find_if(globes.begin(), globes.end(), [&](const Globe &globe) {
            return globe.depth() < sunDepth;
        });
        std::for_each(globes.begin(), nearer, [&](const Globe &globe) { globe.paint(band); });
        addSun(band, view);
        std::for_each(nearer, globes.end(), [&](const Globe &globe) { globe.paint(band); });
    });
}

} // namespace moravel::server::sky
