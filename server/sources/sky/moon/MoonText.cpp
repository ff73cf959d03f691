// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MoonText.h"

#include "server/sources/sky/astro/LunarAspect.h"
#include "server/sources/sky/astro/Time.h"
#include "server/sources/sky/paint/English.h"

#include <cmath>

namespace moravel::server::sky {

namespace {

/// Whether the exact instant of a phase falls on the UT day around this noon.
bool hasPhase(double julianDay, LunarPhase phase)
{
    return nextPhase(julianDay - 0.5, phase) < julianDay + 0.5;
}

QString phaseName(double julianDay, const LunarAspect &aspect)
{
    if (hasPhase(julianDay, LunarPhase::New))
        return QStringLiteral("New moon");
    if (hasPhase(julianDay, LunarPhase::FirstQuarter))
        return QStringLiteral("First quarter moon");
    if (hasPhase(julianDay, LunarPhase::Full))
        return QStringLiteral("Full moon");
    if (hasPhase(julianDay, LunarPhase::LastQuarter))
        return QStringLiteral("Last quarter moon");
    const bool waxing = aspect.elongation < 180;
    const bool crescent = aspect.elongation < 90 || aspect.elongation > 270;
    if (crescent)
        return waxing ? QStringLiteral("Waxing crescent moon")
                      : QStringLiteral("Waning crescent moon");
    return waxing ? QStringLiteral("Waxing gibbous moon") : QStringLiteral("Waning gibbous moon");
}

QString litPart(double illuminated)
{
    const int percent = static_cast<int>(std::lround(illuminated * 100));
    return percent == 0 ? QStringLiteral("in the light of the Earth")
                        : QStringLiteral("%1 % lit").arg(percent);
}

QString nextPhases(double julianDay)
{
    const double endOfDay = julianDay + 0.5;
    const double full = nextPhase(endOfDay, LunarPhase::Full);
    const double dark = nextPhase(endOfDay, LunarPhase::New);
    const QString pattern = QStringLiteral("The next %1 moon is on %2, the next %3 moon on %4.");
    const QString fullDate = longDate(dateOf(full)), darkDate = longDate(dateOf(dark));
    return full < dark
        ? pattern.arg(QStringLiteral("full"), fullDate, QStringLiteral("new"), darkDate)
        : pattern.arg(QStringLiteral("new"), darkDate, QStringLiteral("full"), fullDate);
}

} // namespace

DayText moonText(double julianDay)
{
    const LunarAspect aspect = lunarAspect(julianDay);
    const double age = julianDay - previousPhase(julianDay, LunarPhase::New);
    DayText text;
    text.caption =
        phaseName(julianDay, aspect) + QStringLiteral(", ") + litPart(aspect.illuminated);
    text.info =
        QStringLiteral("At noon UT the moon is %1 days old, %2 km away from the centre of the "
                       "Earth and %3 arc minutes across. ")
            .arg(decimal(age, 1), grouped(aspect.distanceKm), decimal(aspect.diameterArcmin, 1))
        + nextPhases(julianDay);
    return text;
}

} // namespace moravel::server::sky
