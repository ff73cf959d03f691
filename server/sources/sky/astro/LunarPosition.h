// SPDX-License-Identifier: MIT
#pragma once

namespace moravel::server::sky {

struct LunarPosition
{
    double
        longitude; ///< Geocentric ecliptic longitude, mean equinox of the date, degrees [0, 360).
    double latitude; ///< Degrees.
    double distanceKm; ///< Between the centres of the Earth and the Moon.
};

/// The mean angles that the lunar theory is built from, in degrees.
struct LunarArguments
{
    double meanLongitude;
    double elongation;
    double sunAnomaly;
    double moonAnomaly;
    double latitudeArgument;
    double node; ///< Longitude of the mean ascending node.
};

LunarArguments lunarArguments(double julianDay);

/// The Moon to about 10 arc seconds (Meeus, Astronomical Algorithms, 2nd edition, chapter 47).
LunarPosition lunarPosition(double julianDay);

} // namespace moravel::server::sky
