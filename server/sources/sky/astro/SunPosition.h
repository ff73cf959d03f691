// SPDX-License-Identifier: MIT
#pragma once

namespace moravel::server::sky {

struct SunPosition
{
    double longitude; ///< True geocentric ecliptic longitude of the date, degrees.
    double distanceAu; ///< Distance from the Earth's centre.
};

/// The Sun to about 0.01 degrees (Meeus, Astronomical Algorithms, 2nd edition, chapter 25).
SunPosition sunPosition(double julianDay);

/// Mean obliquity of the ecliptic in degrees (chapter 22).
double obliquity(double julianDay);

} // namespace moravel::server::sky
