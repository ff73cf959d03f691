// SPDX-License-Identifier: MIT
#include "server/sources/sky/Planets.h"

#include "server/sources/sky/astro/Time.h"
#include "server/sources/sky/paint/Render.h"
#include "server/sources/sky/planets/PlanetsText.h"
#include "server/sources/sky/planets/SolarScene.h"

namespace moravel::server {

QString Planets::shortName() const
{
    return QStringLiteral("planets");
}

QString Planets::longName() const
{
    return QStringLiteral("The Planets Today");
}

QString Planets::credit() const
{
    return QStringLiteral("Computed by the Moravel service; free for any use (CC0).");
}

DayText Planets::text(QDate date) const
{
    return sky::planetsText(sky::julianDayAtNoon(date));
}

QImage Planets::render(QDate date, QSize size) const
{
    return sky::paintPlanets(sky::julianDayAtNoon(date), size, sky::threadCount());
}

} // namespace moravel::server
