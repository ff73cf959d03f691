// SPDX-License-Identifier: MIT
#include "server/sources/sky/astro/LunarAspect.h"

#include "server/sources/sky/astro/Angles.h"
#include "server/sources/sky/astro/LunarPosition.h"
#include "server/sources/sky/astro/SunPosition.h"

#include <algorithm>

namespace moravel::server::sky {

namespace {

constexpr double kmPerAu = 149597870.7;
constexpr double lunarRadiusKm = 1737.4;
constexpr double equatorTilt = 1.54242; ///< Of the lunar equator to the ecliptic, degrees.
constexpr double synodicMonth = 29.530588853;

struct Equatorial
{
    double ascension;
    double declination;
};

Equatorial equatorial(double longitude, double latitude, double tilt)
{
    const double y = sinDeg(longitude) * cosDeg(tilt) - std::tan(latitude * degree) * sinDeg(tilt);
    const double sine =
        sinDeg(latitude) * cosDeg(tilt) + cosDeg(latitude) * sinDeg(tilt) * sinDeg(longitude);
    return {std::atan2(y, cosDeg(longitude)) / degree, std::asin(sine) / degree};
}

double limbAngle(const Equatorial &sun, const Equatorial &moon)
{
    const double difference = sun.ascension - moon.ascension;
    const double y = cosDeg(sun.declination) * sinDeg(difference);
    const double x = sinDeg(sun.declination) * cosDeg(moon.declination)
        - cosDeg(sun.declination) * sinDeg(moon.declination) * cosDeg(difference);
    return wrapped360(std::atan2(y, x) / degree);
}

void addLibration(LunarAspect &aspect, double julianDay, const LunarPosition &moon)
{
    const LunarArguments arguments = lunarArguments(julianDay);
    const double w = moon.longitude - arguments.node;
    const double y = sinDeg(w) * cosDeg(moon.latitude) * cosDeg(equatorTilt)
        - sinDeg(moon.latitude) * sinDeg(equatorTilt);
    const double a = std::atan2(y, cosDeg(w) * cosDeg(moon.latitude)) / degree;
    const double sine = -sinDeg(w) * cosDeg(moon.latitude) * sinDeg(equatorTilt)
        - sinDeg(moon.latitude) * cosDeg(equatorTilt);
    aspect.subEarthLongitude = wrapped180(a - arguments.latitudeArgument);
    aspect.subEarthLatitude = std::asin(sine) / degree;
}

double axisAngle(double julianDay, const Equatorial &moon, double subEarthLatitude)
{
    const double node = lunarArguments(julianDay).node;
    const double tilt = obliquity(julianDay);
    const double x = sinDeg(equatorTilt) * sinDeg(node);
    const double y =
        sinDeg(equatorTilt) * cosDeg(node) * cosDeg(tilt) - cosDeg(equatorTilt) * sinDeg(tilt);
    const double sine = std::hypot(x, y) * cosDeg(moon.ascension - std::atan2(x, y) / degree)
        / cosDeg(subEarthLatitude);
    return std::asin(std::clamp(sine, -1.0, 1.0)) / degree;
}

double elongationAt(double julianDay)
{
    return wrapped360(lunarPosition(julianDay).longitude - sunPosition(julianDay).longitude);
}

/// Newton's method with the mean speed of the Moon; the true speed is within 15 % of it.
double refined(double guess, LunarPhase phase)
{
    for (int i = 0; i < 8; ++i)
        guess -= wrapped180(elongationAt(guess) - static_cast<int>(phase)) * synodicMonth / 360;
    return guess;
}

} // namespace

LunarAspect lunarAspect(double julianDay)
{
    const SunPosition sun = sunPosition(julianDay);
    const LunarPosition moon = lunarPosition(julianDay);
    LunarAspect aspect{};
    aspect.distanceKm = moon.distanceKm;
    aspect.diameterArcmin = 2 * 60 * std::asin(lunarRadiusKm / moon.distanceKm) / degree;
    aspect.elongation = wrapped360(moon.longitude - sun.longitude);

    const double cosine = cosDeg(moon.latitude) * cosDeg(aspect.elongation);
    const double sine = std::sqrt(1 - cosine * cosine);
    const double sunKm = sun.distanceAu * kmPerAu;
    aspect.phaseAngle = std::atan2(sunKm * sine, moon.distanceKm - sunKm * cosine) / degree;
    aspect.illuminated = (1 + cosDeg(aspect.phaseAngle)) / 2;

    const double tilt = obliquity(julianDay);
    const Equatorial moonPlace = equatorial(moon.longitude, moon.latitude, tilt);
    aspect.brightLimb = limbAngle(equatorial(sun.longitude, 0, tilt), moonPlace);
    addLibration(aspect, julianDay, moon);
    aspect.axis = axisAngle(julianDay, moonPlace, aspect.subEarthLatitude);
    return aspect;
}

double nextPhase(double julianDay, LunarPhase phase)
{
    const double ahead = wrapped360(static_cast<int>(phase) - elongationAt(julianDay));
    const double instant = refined(julianDay + ahead * synodicMonth / 360, phase);
    return instant >= julianDay ? instant : refined(instant + synodicMonth, phase);
}

double previousPhase(double julianDay, LunarPhase phase)
{
    const double behind = wrapped360(elongationAt(julianDay) - static_cast<int>(phase));
    const double instant = refined(julianDay - behind * synodicMonth / 360, phase);
    return instant <= julianDay ? instant : refined(instant - synodicMonth, phase);
}

} // namespace moravel::server::sky
