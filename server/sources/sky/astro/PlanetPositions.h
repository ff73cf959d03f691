// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/Vector.h"

#include <array>

namespace moravel::server::sky {

enum class Planet { Mercury, Venus, Earth, Mars, Jupiter, Saturn, Uranus, Neptune };
inline constexpr int planetCount = 8;

/// A Keplerian orbit; angles in degrees, ecliptic and equinox of J2000.
struct Orbit
{
    double semiMajorAu;
    double eccentricity;
    double inclination;
    double meanLongitude;
    double perihelion; ///< Longitude of the perihelion.
    double node; ///< Longitude of the ascending node.
};

/// E. M. Standish, "Keplerian elements for approximate positions of the major planets" (JPL), table
/// 1: within some arc minutes from 1800 to 2050. Earth stands for the Earth-Moon barycentre.
Orbit orbitOf(Planet planet, double julianDay);

/// Heliocentric place in AU, ecliptic of J2000, at the mean anomaly of @p orbit plus @p
/// anomalyShift degrees.
Vec3d placeOn(const Orbit &orbit, double anomalyShift = 0);

/// placeOn(orbitOf(planet, julianDay)).
Vec3d planetPlace(Planet planet, double julianDay);

/// Heliocentric ecliptic longitude of a place in degrees, [0, 360).
double longitudeOf(const Vec3d &place);

} // namespace moravel::server::sky
