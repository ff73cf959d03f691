// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/PlanetsText.h"

#include "server/sources/sky/astro/Events.h"
#include "server/sources/sky/astro/Time.h"
#include "server/sources/sky/paint/English.h"

#include <cmath>

namespace moravel::server::sky {

namespace {

QString nameOf(Planet planet)
{
    static const char *const names[planetCount] = {"Mercury", "Venus",  "Earth",  "Mars",
                                                   "Jupiter", "Saturn", "Uranus", "Neptune"};
    return QLatin1String(names[static_cast<int>(planet)]);
}

QString alignmentCaption(const Alignment &pair)
{
    if (pair.outer == Planet::Earth)
        return QStringLiteral("%1 stands between the Sun and the Earth").arg(nameOf(pair.inner));
    if (pair.inner == Planet::Earth)
        return QStringLiteral("%1 stands opposite the Sun in our sky").arg(nameOf(pair.outer));
    return QStringLiteral("%1 and %2 stand in line on the same side of the Sun")
        .arg(nameOf(pair.inner), nameOf(pair.outer));
}

QString captionOf(double julianDay)
{
    if (const auto pair = alignmentAt(julianDay))
        return alignmentCaption(*pair);
    if (const auto apsis = apsisAt(julianDay)) {
        return (apsis->nearest ? QStringLiteral("%1 is at its closest to the Sun")
                               : QStringLiteral("%1 is at its farthest from the Sun"))
            .arg(nameOf(apsis->planet));
    }
    return QStringLiteral("The planets on %1").arg(longDate(dateOf(julianDay)));
}

QString distanceText(Planet planet, double julianDay)
{
    const Vec3d earth = planetPlace(Planet::Earth, julianDay);
    return decimal(length(planetPlace(planet, julianDay) - earth), 2);
}

int longitude(Planet planet, double julianDay)
{
    return static_cast<int>(std::lround(longitudeOf(planetPlace(planet, julianDay)))) % 360;
}

} // namespace

DayText planetsText(double julianDay)
{
    DayText text;
    text.caption = captionOf(julianDay);
    text.info =
        QStringLiteral(
            "On %1 at noon UT Venus is %2, Mars %3, Jupiter %4 and Saturn %5 times as far "
            "from the Earth as the Sun is on average. ")
            .arg(longDate(dateOf(julianDay)), distanceText(Planet::Venus, julianDay),
                 distanceText(Planet::Mars, julianDay), distanceText(Planet::Jupiter, julianDay),
                 distanceText(Planet::Saturn, julianDay))
        + QStringLiteral("Seen from the Sun, Mercury stands at longitude %1°, Venus at %2°, the "
                         "Earth at %3° and Mars at %4°. ")
              .arg(longitude(Planet::Mercury, julianDay))
              .arg(longitude(Planet::Venus, julianDay))
              .arg(longitude(Planet::Earth, julianDay))
              .arg(longitude(Planet::Mars, julianDay))
        + QStringLiteral("The picture shortens distances from the Sun to their power 0.4; sizes "
                         "are not to scale.");
    return text;
}

} // namespace moravel::server::sky
