// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>

namespace moravel::server::art {

/// The latitude of the landscapes, degrees north.
inline constexpr double kLatitude = 48;

/// The sun's course over a day, seen from kLatitude. Angles in degrees, times in hours of local
/// mean time. Good to about a minute and a tenth of a degree.
struct SunDay
{
    double declination = 0;
    double noonAltitude = 0; ///< Above the horizon when highest.
    double dayLength =
        12; ///< From sunrise to sunset, hours; refraction and the disc's size included.
    double sunrise = 6;
    double sunset = 18;
};

/// After Jean Meeus, "Astronomical Algorithms", chapter 25 (low accuracy) and 28; the sun rises
/// when its centre is at −0.833°.
SunDay sunDayOf(QDate date);

/// The moon at midnight of a day.
struct MoonNight
{
    double lit = 0; ///< Share of the disc that is lit.
    bool waxing = false; ///< Lit on the right, seen from the north.
};

/// After Meeus, chapter 48, with the larger terms; good to about a hundredth.
MoonNight moonNightOf(QDate date);

} // namespace moravel::server::art
