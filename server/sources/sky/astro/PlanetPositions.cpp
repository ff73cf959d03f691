// SPDX-License-Identifier: MIT
#include "server/sources/sky/astro/PlanetPositions.h"

#include "server/sources/sky/astro/Angles.h"
#include "server/sources/sky/astro/Time.h"

namespace moravel::server::sky {

namespace {

struct Elements
{
    Orbit atJ2000;
    Orbit perCentury;
};

// clang-format off
constexpr Elements elements[planetCount] = {
    {{0.38709927, 0.20563593, 7.00497902, 252.25032350, 77.45779628, 48.33076593},
     {0.00000037, 0.00001906, -0.00594749, 149472.67411175, 0.16047689, -0.12534081}},
    {{0.72333566, 0.00677672, 3.39467605, 181.97909950, 131.60246718, 76.67984255},
     {0.00000390, -0.00004107, -0.00078890, 58517.81538729, 0.00268329, -0.27769418}},
    {{1.00000261, 0.01671123, -0.00001531, 100.46457166, 102.93768193, 0.0},
     {0.00000562, -0.00004392, -0.01294668, 35999.37244981, 0.32327364, 0.0}},
    {{1.52371034, 0.09339410, 1.84969142, -4.55343205, -23.94362959, 49.55953891},
     {0.00001847, 0.00007882, -0.00813131, 19140.30268499, 0.44441088, -0.29257343}},
    {{5.20288700, 0.04838624, 1.30439695, 34.39644051, 14.72847983, 100.47390909},
     {-0.00011607, -0.00013253, -0.00183714, 3034.74612775, 0.21252668, 0.20469106}},
    {{9.53667594, 0.05386179, 2.48599187, 49.95424423, 92.59887831, 113.66242448},
     {-0.00125060, -0.00050991, 0.00193609, 1222.49362201, -0.41897216, -0.28867794}},
    {{19.18916464, 0.04725744, 0.77263783, 313.23810451, 170.95427630, 74.01692503},
     {-0.00196176, -0.00004397, -0.00242939, 428.48202785, 0.40805281, 0.04240589}},
    {{30.06992276, 0.00859048, 1.77004347, -55.12002969, 44.96476227, 131.78422574},
     {0.00026291, 0.00005105, 0.00035372, 218.45945325, -0.32241464, -0.00508664}},
};

// clang-format on

/// Solves Kepler's equation; angles in radians.
double eccentricAnomaly(double meanAnomaly, double eccentricity)
{
    double anomaly = meanAnomaly + eccentricity * std::sin(meanAnomaly);
    for (int i = 0; i < 6; ++i) {
        const double error = anomaly - eccentricity * std::sin(anomaly) - meanAnomaly;
        anomaly -= error / (1 - eccentricity * std::cos(anomaly));
    }
    return anomaly;
}

} // namespace

Orbit orbitOf(Planet planet, double julianDay)
{
    const auto &[start, rate] = elements[static_cast<int>(planet)];
    const double t = centuries(julianDay);
    return {start.semiMajorAu + t * rate.semiMajorAu,
            start.eccentricity + t * rate.eccentricity,
            start.inclination + t * rate.inclination,
            wrapped360(start.meanLongitude + t * rate.meanLongitude),
            start.perihelion + t * rate.perihelion,
            start.node + t * rate.node};
}

Vec3d placeOn(const Orbit &orbit, double anomalyShift)
{
    const double mean = wrapped180(orbit.meanLongitude - orbit.perihelion + anomalyShift);
    const double anomaly = eccentricAnomaly(mean * degree, orbit.eccentricity);
    const double e = orbit.eccentricity;
    const double x = orbit.semiMajorAu * (std::cos(anomaly) - e);
    const double y = orbit.semiMajorAu * std::sqrt(1 - e * e) * std::sin(anomaly);

    const double perihelion = orbit.perihelion - orbit.node; // argument of the perihelion
    const double alongNode = x * cosDeg(perihelion) - y * sinDeg(perihelion);
    const double across = x * sinDeg(perihelion) + y * cosDeg(perihelion);
    const double flat = across * cosDeg(orbit.inclination);
    return {alongNode * cosDeg(orbit.node) - flat * sinDeg(orbit.node),
            alongNode * sinDeg(orbit.node) + flat * cosDeg(orbit.node),
            across * sinDeg(orbit.inclination)};
}

Vec3d planetPlace(Planet planet, double julianDay)
{
    return placeOn(orbitOf(planet, julianDay));
}

double longitudeOf(const Vec3d &place)
{
    return wrapped360(std::atan2(place.y, place.x) / degree);
}

} // namespace moravel::server::sky
