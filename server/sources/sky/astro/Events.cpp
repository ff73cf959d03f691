// SPDX-License-Identifier: MIT
#include "server/sources/sky/astro/Events.h"

#include "server/sources/sky/astro/Angles.h"

namespace moravel::server::sky {

namespace {

constexpr double halfDay = 0.5;

double lead(Planet inner, Planet outer, double julianDay)
{
    return wrapped180(longitudeOf(planetPlace(inner, julianDay))
                      - longitudeOf(planetPlace(outer, julianDay)));
}

double meanAnomaly(Planet planet, double julianDay)
{
    const Orbit orbit = orbitOf(planet, julianDay);
    return wrapped180(orbit.meanLongitude - orbit.perihelion);
}

} // namespace

std::optional<Alignment> alignmentAt(double julianDay)
{
    for (int outer = planetCount - 1; outer > 0; --outer) {
        for (int inner = outer - 1; inner >= 0; --inner) {
            const Alignment pair{static_cast<Planet>(inner), static_cast<Planet>(outer)};
            const double before = lead(pair.inner, pair.outer, julianDay - halfDay);
            const double after = lead(pair.inner, pair.outer, julianDay + halfDay);
            // The inner one is faster: it catches up and passes.
            if (before < 0 && after >= 0 && after - before < 90)
                return pair;
        }
    }
    return std::nullopt;
}

std::optional<Apsis> apsisAt(double julianDay)
{
    for (const Planet planet : {Planet::Mars, Planet::Venus, Planet::Mercury}) {
        const double before = meanAnomaly(planet, julianDay - halfDay);
        const double after = meanAnomaly(planet, julianDay + halfDay);
        if (before < 0 && after >= 0)
            return Apsis{planet, true};
        if (before > 90 && after < -90)
            return Apsis{planet, false};
    }
    return std::nullopt;
}

} // namespace moravel::server::sky
