// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>

namespace moravel::server::sky {

/// Julian day number of 12:00 UT of @p date. The theories used here are good for centuries around
/// 2000, not for ever: years before 1600 and after 2400 count as those, and no date as 1 January
/// 2000.
double julianDayAtNoon(QDate date);

/// The UT calendar date of an instant.
QDate dateOf(double julianDay);

/// Julian centuries since J2000.0. UT is taken for dynamical time: they differ by about a minute.
inline double centuries(double julianDay)
{
    return (julianDay - 2451545.0) / 36525.0;
}

} // namespace moravel::server::sky
