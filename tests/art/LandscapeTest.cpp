// SPDX-License-Identifier: MIT
#include "server/sources/art/Landscape.h"

#include "server/sources/art/LandscapeScene.h"
#include "support/Test.h"

#include <set>

using namespace moravel::server;
using namespace moravel::server::art;

namespace {

TEST(SunDay, AgreesWithAlmanacs)
{
    // Declination and equation of time as almanacs print them; the length of the day follows from
    // the declination by the sunrise equation, worked by hand for 48° north. The last column: minutes from 12 h
    // local mean time to true noon.
    const Table<QDate, double, double, double> cases{
        {{2026, 6, 21}, 23.44, 16 + 4 / 60.0, 1.9},   {{2026, 12, 21}, -23.44, 8 + 21 / 60.0, -1.9},
        {{2026, 3, 20}, -0.1, 12 + 8 / 60.0, 7.4},    {{2026, 9, 23}, -0.1, 12 + 8 / 60.0, -7.6},
        {{2026, 11, 3}, -15.1, 9 + 51 / 60.0, -16.4}, {{2026, 2, 11}, -14.0, 10 + 3 / 60.0, 14.2},
    };
    for (const auto &[date, declination, dayLength, noonOffset] : cases) {
        SCOPED_TRACE(qPrintable(date.toString(Qt::ISODate)));
        const SunDay day = sunDayOf(date);
        EXPECT_NEAR(day.declination, declination, 0.25);
        EXPECT_NEAR(day.dayLength * 60, dayLength * 60, 4);
        EXPECT_NEAR(((day.sunrise + day.sunset) / 2 - 12) * 60, noonOffset, 0.7);
        EXPECT_NEAR(day.noonAltitude, 42 + day.declination, 1e-9);
    }
}

TEST(MoonNight, AgreesWithAlmanacs)
{
    EXPECT_LT(moonNightOf({2024, 4, 8}).lit, 0.02) << "solar eclipse";
    EXPECT_LT(moonNightOf({2026, 8, 12}).lit, 0.02) << "solar eclipse";
    EXPECT_GT(moonNightOf({2025, 3, 13}).lit, 0.98) << "lunar eclipse in the following night";
    EXPECT_GT(moonNightOf({2025, 9, 7}).lit, 0.98) << "lunar eclipse";
    EXPECT_TRUE(moonNightOf({2026, 8, 18}).waxing);
    EXPECT_FALSE(moonNightOf({2026, 8, 6}).waxing);
}

TEST(LandscapeScene, KeepsToTheSunOfTheDay)
{
    std::set<Hour> hours;
    std::set<View> views;
    for (int i = 0; i < 366; ++i) {
        const QDate date = QDate(2027, 1, 1).addDays(i);
        SCOPED_TRACE(qPrintable(date.toString(Qt::ISODate)));
        const LandscapeScene scene = landscapeSceneFor(date);
        hours.insert(scene.hour);
        views.insert(scene.view);
        EXPECT_LE(scene.sunAltitude, scene.sunDay.noonAltitude + 1e-9);
        EXPECT_GE(scene.sunAltitude, -90 + kLatitude - scene.sunDay.declination - 1e-9);
        if (scene.hour == Hour::Night) {
            EXPECT_LT(scene.sunAltitude, -12);
            EXPECT_EQ(scene.discRadius > 0, scene.moonlit);
        }
        EXPECT_FALSE(scene.ridges.empty());
        EXPECT_LT(scene.lightV, 1);
    }
    EXPECT_EQ(hours.size(), 5U);
    EXPECT_EQ(views.size(), 4U);
}

TEST(Landscape, TellsTheFiguresOfTheDay)
{
    const QString june = Landscape().text({2026, 6, 21}).info;
    EXPECT_TRUE(june.contains(u"16 h ") && june.contains(u"65.4\u00b0")) << qPrintable(june);
    const DayText december = Landscape().text({2026, 12, 21});
    EXPECT_TRUE(december.info.contains(u"8 h ") && december.info.contains(u"18.6\u00b0"))
        << qPrintable(december.info);
    EXPECT_TRUE(december.caption.endsWith(u"early winter")) << qPrintable(december.caption);
}

} // namespace
