// SPDX-License-Identifier: MIT
#include "server/sources/sky/astro/SunPosition.h"

#include "server/sources/sky/astro/Angles.h"
#include "server/sources/sky/astro/Time.h"

namespace moravel::server::sky {

SunPosition sunPosition(double julianDay)
{
    const double t = centuries(julianDay);
    const double meanLongitude = 280.46646 + t * (36000.76983 + t * 0.0003032);
    const double anomaly = 357.52911 + t * (35999.05029 - t * 0.0001537);
    const double eccentricity = 0.016708634 - t * (0.000042037 + t * 0.0000001267);
    const double centre = (1.914602 - t * (0.004817 + t * 0.000014)) * sinDeg(anomaly)
        + (0.019993 - t * 0.000101) * sinDeg(2 * anomaly) + 0.000289 * sinDeg(3 * anomaly);
    const double distance = 1.000001018 * (1 - eccentricity * eccentricity)
        / (1 + eccentricity * cosDeg(anomaly + centre));
    return {wrapped360(meanLongitude + centre), distance};
}

double obliquity(double julianDay)
{
    const double t = centuries(julianDay);
    return 23.4392911 - t * (0.0130042 + t * (0.00000016 - t * 0.000000504));
}

} // namespace moravel::server::sky
