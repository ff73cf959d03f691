// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>

namespace moravel::server::sky {

/// How the Moon looks from the centre of the Earth. Angles are in degrees; position angles are
/// counted from celestial north towards east, which is anticlockwise with north up.
struct LunarAspect
{
    double distanceKm;
    double diameterArcmin; ///< Apparent diameter.
    double elongation; ///< Of the Moon east of the Sun in longitude, [0, 360): 180 is full moon.
    double phaseAngle; ///< Sun-Moon-Earth: 0 is full moon.
    double illuminated; ///< Lit part of the disc, 0 to 1.
    double brightLimb; ///< Position angle of the middle of the bright limb.
    double axis; ///< Position angle of the Moon's north pole.
    double subEarthLongitude; ///< Optical libration: what stands in the middle of the disc, east
        ///< positive.
    double subEarthLatitude;
};

/// Meeus, Astronomical Algorithms, chapters 48 and 53 (optical libration; the physical one is under
/// 0.05 degrees).
LunarAspect lunarAspect(double julianDay);

enum class LunarPhase { New = 0, FirstQuarter = 90, Full = 180, LastQuarter = 270 };

/// The first instant at or after @p julianDay at which the Moon reaches @p phase, to a few minutes.
double nextPhase(double julianDay, LunarPhase phase);

/// The last instant before or at @p julianDay at which the Moon reached @p phase.
double previousPhase(double julianDay, LunarPhase phase);

} // namespace moravel::server::sky
