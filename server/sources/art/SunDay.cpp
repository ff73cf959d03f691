// SPDX-License-Identifier: MIT
#include "server/sources/art/SunDay.h"

#include "server/sources/art/Maths.h"

namespace moravel::server::art {

namespace {

constexpr double kDegree = kPi / 180;

double sinDeg(double degrees)
{
    return sinOf(degrees * kDegree);
}

double cosDeg(double degrees)
{
    return cosOf(degrees * kDegree);
}

/// Julian centuries from 2000 January 1, 12 h; a Qt Julian day number is the date's noon.
double centuriesOf(QDate date)
{
    return (static_cast<double>(date.toJulianDay()) - 2451545.0) / 36525;
}

} // namespace

SunDay sunDayOf(QDate date)
{
    const double t = centuriesOf(date);
    const double meanLongitude = 280.46646 + t * (36000.76983 + t * 0.0003032);
    const double anomaly = 357.52911 + t * (35999.05029 - t * 0.0001537);
    const double centre = (1.914602 - t * 0.004817) * sinDeg(anomaly)
        + 0.019993 * sinDeg(2 * anomaly) + 0.000289 * sinDeg(3 * anomaly);
    const double node = 125.04 - 1934.136 * t;
    const double longitude = meanLongitude + centre - 0.00569 - 0.00478 * sinDeg(node);
    const double obliquity = 23.439291 - 0.0130042 * t + 0.00256 * cosDeg(node);
    SunDay day;
    day.declination = asinOf(sinDeg(obliquity) * sinDeg(longitude)) / kDegree;
    day.noonAltitude = 90 - kLatitude + day.declination;
    const double cosHour = (sinDeg(-0.833) - sinDeg(kLatitude) * sinDeg(day.declination))
        / (cosDeg(kLatitude) * cosDeg(day.declination));
    const double halfDay = acosOf(cosHour) / kDegree / 15;
    day.dayLength = 2 * halfDay;
    // Equation of time, Meeus 28.3.
    const double half = sinDeg(obliquity / 2) / cosDeg(obliquity / 2);
    const double y = half * half;
    const double e = 0.016708634 - t * 0.000042037;
    const double equation = y * sinDeg(2 * meanLongitude) - 2 * e * sinDeg(anomaly)
        + 4 * e * y * sinDeg(anomaly) * cosDeg(2 * meanLongitude)
        - 0.5 * y * y * sinDeg(4 * meanLongitude) - 1.25 * e * e * sinDeg(2 * anomaly);
    const double noon = 12 - equation / kDegree / 15;
    day.sunrise = noon - halfDay;
    day.sunset = noon + halfDay;
    return day;
}

MoonNight moonNightOf(QDate date)
{
    const double t = centuriesOf(date) + 0.5 / 36525;
    const double elongation = 297.8501921 + 445267.1114034 * t;
    const double sun = 357.5291092 + 35999.0502909 * t;
    const double moon = 134.9633964 + 477198.8675055 * t;
    const double phase = 180 - elongation - 6.289 * sinDeg(moon) + 2.1 * sinDeg(sun)
        - 1.274 * sinDeg(2 * elongation - moon) - 0.658 * sinDeg(2 * elongation)
        - 0.214 * sinDeg(2 * moon) - 0.11 * sinDeg(elongation);
    const double turns = elongation / 360;
    return {(1 + cosDeg(phase)) / 2, turns - std::floor(turns) < 0.5};
}

} // namespace moravel::server::art
