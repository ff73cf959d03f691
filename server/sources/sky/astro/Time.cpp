// SPDX-License-Identifier: MIT
#include "server/sources/sky/astro/Time.h"

#include <algorithm>
#include <cmath>

namespace moravel::server::sky {

double julianDayAtNoon(QDate date)
{
    if (!date.isValid())
        return 2451545.0;
    const qint64 first = QDate(1600, 1, 1).toJulianDay();
    const qint64 last = QDate(2400, 12, 31).toJulianDay();
    return static_cast<double>(std::clamp(date.toJulianDay(), first, last));
}

QDate dateOf(double julianDay)
{
    return QDate::fromJulianDay(static_cast<qint64>(std::floor(julianDay + 0.5)));
}

} // namespace moravel::server::sky
