// SPDX-License-Identifier: MIT
#include "server/sources/sky/astro/LunarPosition.h"

#include "server/sources/sky/astro/Angles.h"
#include "server/sources/sky/astro/LunarTerms.h"
#include "server/sources/sky/astro/Time.h"

#include <cstdlib>

namespace moravel::server::sky {

namespace {

/// Terms with the Sun's anomaly shrink with the eccentricity of the Earth's orbit.
double shrink(int sunMultiple, double e)
{
    const int power = std::abs(sunMultiple);
    return power == 0 ? 1 : power == 1 ? e : e * e;
}

template <typename Term>
double angleOf(const Term &term, const LunarArguments &a)
{
    return term.d * a.elongation + term.m * a.sunAnomaly + term.mm * a.moonAnomaly
        + term.f * a.latitudeArgument;
}

} // namespace

LunarArguments lunarArguments(double julianDay)
{
    const double t = centuries(julianDay);
    const double t2 = t * t;
    const double t3 = t2 * t;
    const double t4 = t3 * t;
    return {
        218.3164477 + 481267.88123421 * t - 0.0015786 * t2 + t3 / 538841 - t4 / 65194000,
        297.8501921 + 445267.1114034 * t - 0.0018819 * t2 + t3 / 545868 - t4 / 113065000,
        357.5291092 + 35999.0502909 * t - 0.0001536 * t2 + t3 / 24490000,
        134.9633964 + 477198.8675055 * t + 0.0087414 * t2 + t3 / 69699 - t4 / 14712000,
        93.2720950 + 483202.0175233 * t - 0.0036539 * t2 - t3 / 3526000 + t4 / 863310000,
        125.0445479 - 1934.1362891 * t + 0.0020754 * t2 + t3 / 467441 - t4 / 60616000,
    };
}

LunarPosition lunarPosition(double julianDay)
{
    const LunarArguments a = lunarArguments(julianDay);
    const double t = centuries(julianDay);
    const double e = 1 - 0.002516 * t - 0.0000074 * t * t;
    double longitude = 0, latitude = 0, distance = 0;
    for (const LongitudeTerm &term : longitudeTerms) {
        const double angle = angleOf(term, a);
        longitude += term.sine * shrink(term.m, e) * sinDeg(angle);
        distance += term.cosine * shrink(term.m, e) * cosDeg(angle);
    }
    for (const LatitudeTerm &term : latitudeTerms)
        latitude += term.sine * shrink(term.m, e) * sinDeg(angleOf(term, a));

    // The pull of Venus (a1) and Jupiter (a2), and the flattening of the Earth.
    const double a1 = 119.75 + 131.849 * t;
    const double a2 = 53.09 + 479264.290 * t;
    const double a3 = 313.45 + 481266.484 * t;
    longitude +=
        3958 * sinDeg(a1) + 1962 * sinDeg(a.meanLongitude - a.latitudeArgument) + 318 * sinDeg(a2);
    latitude += -2235 * sinDeg(a.meanLongitude) + 382 * sinDeg(a3)
        + 175 * sinDeg(a1 - a.latitudeArgument) + 175 * sinDeg(a1 + a.latitudeArgument)
        + 127 * sinDeg(a.meanLongitude - a.moonAnomaly)
        - 115 * sinDeg(a.meanLongitude + a.moonAnomaly);
    return {wrapped360(a.meanLongitude + longitude * 1e-6), latitude * 1e-6,
            385000.56 + distance * 1e-3};
}

} // namespace moravel::server::sky
