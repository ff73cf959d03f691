// SPDX-License-Identifier: MIT
#include "server/sources/art/Landscape.h"

#include "server/sources/art/Bands.h"
#include "server/sources/art/LandscapeRender.h"

namespace moravel::server {

namespace {

using art::Hour;
using art::LandscapeScene;

QString placeOf(const LandscapeScene &scene)
{
    switch (scene.view) {
    case art::View::Ridges:
        return scene.misty ? QStringLiteral("Misty ridges") : QStringLiteral("Mountain ridges");
    case art::View::Lake:
        return scene.misty ? QStringLiteral("Mountain lake in the mist")
                           : QStringLiteral("Mountain lake");
    case art::View::Valley:
        return scene.misty ? QStringLiteral("Misty forest valley")
                           : QStringLiteral("Forest valley");
    case art::View::Hills:
        return scene.misty ? QStringLiteral("Misty hills") : QStringLiteral("Rolling hills");
    }
    return {};
}

QString hourOf(const LandscapeScene &scene)
{
    switch (scene.hour) {
    case Hour::Dawn:
        return QStringLiteral("at dawn");
    case Hour::Day:
        return scene.cloudy ? QStringLiteral("under clouds") : QStringLiteral("by day");
    case Hour::Golden:
        return QStringLiteral("in the golden hour");
    case Hour::Dusk:
        return QStringLiteral("at dusk");
    case Hour::Night:
        return scene.moonlit ? QStringLiteral("by moonlight") : QStringLiteral("under the stars");
    }
    return {};
}

QString partOfYear(QDate date)
{
    static const char *const kParts[] = {
        "midwinter", "late winter", "early spring", "mid-spring", "late spring", "early summer",
        "midsummer", "late summer", "early autumn", "mid-autumn", "late autumn", "early winter"};
    return QLatin1String(kParts[std::clamp(date.month(), 1, 12) - 1]);
}

QString clockTime(double hours)
{
    const int minutes = static_cast<int>(hours * 60 + 0.5);
    return QStringLiteral("%1:%2").arg(minutes / 60).arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

QString sunNow(const LandscapeScene &scene)
{
    if (scene.hour == Hour::Night) {
        const int percent = static_cast<int>(scene.moonNight.lit * 100 + 0.5);
        return scene.moonlit
            ? QStringLiteral("The moon is %1 % lit and %2.")
                  .arg(percent)
                  .arg(scene.moonNight.waxing ? QStringLiteral("waxing") : QStringLiteral("waning"))
            : QStringLiteral("The moon, %1 % lit, leaves the night to the stars.").arg(percent);
    }
    const double altitude = scene.sunAltitude;
    return QStringLiteral("Here it is %1\u00b0 %2 the horizon.")
        .arg(std::abs(altitude), 0, 'f', 1)
        .arg(altitude < 0 ? QStringLiteral("below") : QStringLiteral("above"));
}

} // namespace

QString Landscape::shortName() const
{
    return QStringLiteral("landscape");
}

QString Landscape::longName() const
{
    return QStringLiteral("Landscape of the Day");
}

QString Landscape::credit() const
{
    return QStringLiteral("Computed by the Moravel service; free for any use (CC0).");
}

DayText Landscape::text(QDate date) const
{
    const LandscapeScene scene = art::landscapeSceneFor(date);
    const art::SunDay &sun = scene.sunDay;
    const int minutes = static_cast<int>(sun.dayLength * 60 + 0.5);
    DayText text;
    text.caption = QStringLiteral("%1 %2, %3").arg(placeOf(scene), hourOf(scene), partOfYear(date));
    text.info = QStringLiteral("At 48\u00b0 north this day lasts %1 h %2 min, from sunrise at %3 "
                               "to sunset at %4 local "
                               "mean time, and at noon the sun stands %5\u00b0 high. %6")
                    .arg(minutes / 60)
                    .arg(minutes % 60)
                    .arg(clockTime(sun.sunrise), clockTime(sun.sunset))
                    .arg(sun.noonAltitude, 0, 'f', 1)
                    .arg(sunNow(scene));
    return text;
}

QImage Landscape::render(QDate date, QSize size) const
{
    return art::renderLandscape(art::landscapeSceneFor(date), size, art::defaultThreads());
}

} // namespace moravel::server
