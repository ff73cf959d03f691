// SPDX-License-Identifier: MIT
// The theories against published values: the worked examples of Meeus' book, eclipses, oppositions.
#include "server/sources/sky/astro/Angles.h"
#include "server/sources/sky/astro/Events.h"
#include "server/sources/sky/astro/LunarAspect.h"
#include "server/sources/sky/astro/LunarPosition.h"
#include "server/sources/sky/astro/PlanetPositions.h"
#include "server/sources/sky/astro/SunPosition.h"
#include "server/sources/sky/astro/Time.h"
#include "support/Test.h"

using namespace moravel::server::sky;

namespace {

double instant(int year, int month, int day, double hour)
{
    return julianDayAtNoon(QDate(year, month, day)) + (hour - 12) / 24;
}

double apart(double a, double b)
{
    return std::fabs(wrapped180(a - b));
}

TEST(Sun, matchesTheWorkedExample)
{
    const SunPosition sun = sunPosition(2448908.5); // 1992 October 13.0
    EXPECT_NEAR(sun.longitude, 199.90987, 1e-4);
    EXPECT_NEAR(sun.distanceAu, 0.99766, 1e-5);
    EXPECT_NEAR(obliquity(2446895.5), 23 + 26.0 / 60 + 27.407 / 3600, 1e-5);
}

TEST(MoonTheory, matchesTheWorkedExamples)
{
    constexpr double jd = 2448724.5; // 1992 April 12.0
    const LunarPosition moon = lunarPosition(jd);
    EXPECT_NEAR(moon.longitude, 133.162655, 2e-6);
    EXPECT_NEAR(moon.latitude, -3.229126, 2e-6);
    EXPECT_NEAR(moon.distanceKm, 368409.7, 0.1);

    const LunarAspect aspect = lunarAspect(jd);
    EXPECT_NEAR(aspect.phaseAngle, 69.0756, 0.02);
    EXPECT_NEAR(aspect.illuminated, 0.6786, 2e-4);
    EXPECT_NEAR(aspect.brightLimb, 285.0, 0.1);
    EXPECT_NEAR(aspect.subEarthLongitude, -1.206, 0.01);
    EXPECT_NEAR(aspect.subEarthLatitude, 4.194, 0.01);
    EXPECT_NEAR(aspect.axis, 15.08, 0.05);
}

TEST(MoonTheory, knowsNearAndFar)
{
    EXPECT_NEAR(lunarPosition(instant(2016, 11, 14, 11.4)).distanceKm, 356509, 30);
    EXPECT_GT(lunarAspect(instant(2016, 11, 14, 11.4)).diameterArcmin, 33.4);
}

TEST(MoonPhases, fallOnTheKnownInstants)
{
    const Table<LunarPhase, int, int, int, double> known{
        {LunarPhase::Full, 2000, 1, 21, 4 + 40 / 60.0}, // eclipses all
        {LunarPhase::New, 2017, 8, 21, 18.5},
        {LunarPhase::Full, 2018, 7, 27, 20 + 20 / 60.0},
        {LunarPhase::Full, 2022, 11, 8, 11 + 2 / 60.0},
        {LunarPhase::New, 2024, 4, 8, 18 + 21 / 60.0},
        {LunarPhase::New, 2026, 8, 12, 17 + 37 / 60.0},
    };

    constexpr double minutes = 1 / 1440.0;
    for (const auto &[phase, year, month, date, hour] : known) {
        SCOPED_TRACE(year);
        const double expected = instant(year, month, date, hour);
        for (const double away : {0.1, 3.0, 14.0, 28.0}) {
            EXPECT_NEAR(nextPhase(expected - away, phase), expected, 5 * minutes);
            EXPECT_NEAR(previousPhase(expected + away, phase), expected, 5 * minutes);
        }
        EXPECT_GT(nextPhase(expected + 0.1, phase), expected + 29);
    }
}

TEST(PlanetTheory, putsPlanetsInLineAtTheKnownInstants)
{
    const Table<Planet, int, int, int, double> inLineWithEarth{
        {Planet::Venus, 2012, 6, 6, 1.5}, // transit
        {Planet::Mercury, 2019, 11, 11, 15.3}, // transit
        {Planet::Mars, 2022, 12, 8, 5.7},      {Planet::Mars, 2025, 1, 16, 2.6},
        {Planet::Jupiter, 2024, 12, 7, 21},    {Planet::Saturn, 2025, 9, 21, 5.8},
        {Planet::Neptune, 2025, 9, 23, 12.9},  {Planet::Uranus, 2025, 11, 21, 12.4},
    };

    for (const auto &[planet, year, month, date, hour] : inLineWithEarth) {
        SCOPED_TRACE(year * 10 + static_cast<int>(planet));
        const double jd = instant(year, month, date, hour);
        EXPECT_LT(apart(longitudeOf(planetPlace(planet, jd)),
                        longitudeOf(planetPlace(Planet::Earth, jd))),
                  0.15);
    }
}

TEST(PlanetTheory, showsTheGreatConjunctionOf2020)
{
    const double jd = instant(2020, 12, 21, 18);
    const Vec3d earth = planetPlace(Planet::Earth, jd);
    const double jupiter = longitudeOf(planetPlace(Planet::Jupiter, jd) - earth);
    const double saturn = longitudeOf(planetPlace(Planet::Saturn, jd) - earth);
    EXPECT_LT(apart(jupiter, saturn), 0.25);
}

TEST(PlanetTheory, keepsOrbitsClosedAndInTheirBounds)
{
    for (int i = 0; i < planetCount; ++i) {
        SCOPED_TRACE(i);
        const Orbit orbit = orbitOf(static_cast<Planet>(i), instant(2026, 11, 22, 12));
        const Vec3d start = placeOn(orbit);
        EXPECT_LT(length(placeOn(orbit, 360) - start), 1e-9);
        for (int shift = 0; shift < 360; shift += 30) {
            const double distance = length(placeOn(orbit, shift)) / orbit.semiMajorAu;
            EXPECT_GE(distance, 1 - orbit.eccentricity - 1e-9);
            EXPECT_LE(distance, 1 + orbit.eccentricity + 1e-9);
        }
    }
}

TEST(Events, happenOnOneDayOnly)
{
    const double day = julianDayAtNoon(QDate(2025, 1, 16));
    const auto pair = alignmentAt(day);
    ASSERT_TRUE(pair);
    EXPECT_EQ(pair->inner, Planet::Earth);
    EXPECT_EQ(pair->outer, Planet::Mars);
    EXPECT_FALSE(alignmentAt(day + 1));
    EXPECT_FALSE(alignmentAt(day - 1));

    int perihelia = 0; // of Mars, which reached it on 8 May 2024
    for (double jd = day - 400; jd < day; ++jd) {
        const auto apsis = apsisAt(jd);
        if (!apsis || apsis->planet != Planet::Mars || !apsis->nearest)
            continue;
        ++perihelia;
        EXPECT_NEAR(jd, julianDayAtNoon(QDate(2024, 5, 8)), 1);
    }
    EXPECT_EQ(perihelia, 1);
}

} // namespace
