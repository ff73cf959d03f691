// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/Dust.h"

#include "server/sources/sky/astro/PlanetPositions.h"
#include "server/sources/sky/paint/Prng.h"
#include "server/sources/sky/planets/SolarView.h"

namespace moravel::server::sky {

namespace {

struct Belt
{
    int bodies;
    float nearestAu, farthestAu;
    float eccentricity, inclination; ///< Largest, the latter in degrees.
    float light;
    Colour tint;
};

constexpr Belt belts[] = {
    {16000, 2.1f, 3.3f, 0.16f, 11, 0.40f, {1.0f, 0.82f, 0.62f}},
    {3200, 36, 49, 0.10f, 9, 0.07f, {0.62f, 0.78f, 1.0f}},
};

/// Jupiter keeps these distances nearly empty (Kirkwood gaps).
bool inGap(float semiMajorAu)
{
    constexpr float gaps[] = {2.50f, 2.82f, 2.96f};
    for (const float gap : gaps) {
        if (std::fabs(semiMajorAu - gap) < 0.03f)
            return true;
    }
    return false;
}

Orbit randomOrbit(const Belt &belt, Prng &prng, double days)
{
    const float spread = (prng.uniform() + prng.uniform()) / 2;
    Orbit orbit{};
    orbit.semiMajorAu = static_cast<double>(mix(belt.nearestAu, belt.farthestAu, spread));
    orbit.eccentricity = static_cast<double>(belt.eccentricity * prng.uniform());
    orbit.inclination = static_cast<double>(belt.inclination * prng.uniform() * prng.uniform());
    orbit.perihelion = static_cast<double>(prng.uniform(0, 360));
    orbit.node = static_cast<double>(prng.uniform(0, 360));
    const double start = static_cast<double>(prng.uniform(0, 360));
    orbit.meanLongitude =
        start + 0.9856076686 * days / std::pow(orbit.semiMajorAu, 1.5); // Kepler's third law
    return orbit;
}

} // namespace

std::vector<DustGrain> beltDust(const SolarView &view, const Frame &frame, double julianDay)
{
    std::vector<DustGrain> grains;
    Prng prng(1801);
    const float unit = frame.fineUnit / 2160, sunScale = view.project({}).scale;
    for (const Belt &belt : belts) {
        for (int i = 0; i < belt.bodies; ++i) {
            const Orbit orbit = randomOrbit(belt, prng, julianDay - 2451545.0);
            const float size = prng.uniform();
            const float glint = prng.uniform();
            if (inGap(static_cast<float>(orbit.semiMajorAu)))
                continue;
            const Projected at = view.project(SolarView::scenePlace(placeOn(orbit)));
            const float wanted =
                unit * at.scale / sunScale * (0.5f + 0.8f * size * size * size * size);
            const float radius = std::max(wanted, 0.6f);
            const float light =
                belt.light * (0.25f + 0.75f * glint * glint) * wanted * wanted / (radius * radius);
            grains.push_back({at.x, at.y, radius, belt.tint * light});
        }
    }
    return grains;
}

} // namespace moravel::server::sky
