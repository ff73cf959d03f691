// SPDX-License-Identifier: MIT
#include "server/sources/sky/Moon.h"

#include "server/sources/sky/astro/LunarAspect.h"
#include "server/sources/sky/astro/Time.h"
#include "server/sources/sky/moon/MoonScene.h"
#include "server/sources/sky/moon/MoonText.h"
#include "server/sources/sky/paint/Render.h"

namespace moravel::server {

QString Moon::shortName() const
{
    return QStringLiteral("moon");
}

QString Moon::longName() const
{
    return QStringLiteral("The Moon Today");
}

QString Moon::credit() const
{
    return QStringLiteral("Computed by the Moravel service; free for any use (CC0).");
}

DayText Moon::text(QDate date) const
{
    return sky::moonText(sky::julianDayAtNoon(date));
}

QImage Moon::render(QDate date, QSize size) const
{
    return sky::paintMoon(sky::lunarAspect(sky::julianDayAtNoon(date)), size, sky::threadCount());
}

} // namespace moravel::server
