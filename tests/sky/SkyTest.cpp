// SPDX-License-Identifier: MIT
// What the Moon and the planets show and say on some days.
#include "server/sources/sky/Moon.h"
#include "server/sources/sky/Planets.h"
#include "server/sources/sky/astro/LunarAspect.h"
#include "server/sources/sky/astro/Time.h"
#include "support/Test.h"

#include <cmath>

using namespace moravel::server;

namespace {

const Moon kMoon;
const Planets kPlanets;
const QSize kSize(320, 180);

int brightPixels(const QImage &image, int from, int to)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = from; x < to; ++x)
            count += qGray(image.pixel(x, y)) > 90;
    return count;
}

TEST(Sky, lightsTheMoonFromTheSideOfTheSun)
{
    const int middle = kSize.width() * 6 / 10;
    for (int day = 0; day < 30; day += 2) {
        const QDate date = QDate(2026, 12, 10).addDays(day);
        const sky::LunarAspect aspect = sky::lunarAspect(sky::julianDayAtNoon(date));
        if (aspect.illuminated < 0.08 || aspect.illuminated > 0.92)
            continue;
        SCOPED_TRACE(qPrintable(date.toString(Qt::ISODate)));
        const QImage image = kMoon.render(date, kSize);
        const int left = brightPixels(image, middle - 80, middle);
        const int right = brightPixels(image, middle, middle + 80);
        const bool waxes = aspect.elongation < 180;
        EXPECT_GT(waxes ? right : left, (waxes ? left : right) * 1.1);
    }
}

TEST(Sky, showsANearMoonLarger)
{
    const auto disc = [](QDate date) {
        return double(brightPixels(kMoon.render(date, kSize), 0, kSize.width()));
    };
    EXPECT_NEAR(disc(QDate(2016, 11, 14)) / disc(QDate(2017, 6, 9)), std::pow(406.1 / 356.5, 2),
                0.1);
}

TEST(Sky, tellsTheDay)
{
    const Table<const ComputedSource &, QDate, QString, QString> days{
        {kMoon, QDate(2026, 11, 22), u"Waxing gibbous moon, 94 % lit"_s,
         u"full moon is on 24 November 2026"_s},
        {kMoon, QDate(2026, 11, 24), u"Full moon, 100 % lit"_s, u"full moon on 24 December 2026"_s},
        {kMoon, QDate(2026, 8, 12), u"New moon, in the light of the Earth"_s,
         u"full moon is on 28 August 2026"_s},
        {kMoon, QDate(2026, 11, 13), u"Waxing crescent moon, 16 % lit"_s, u"405,587 km"_s},
        {kMoon, QDate(2016, 11, 14), u"Full moon, 100 % lit"_s, u"33.5 arc minutes"_s},
        {kPlanets, QDate(2025, 1, 16), u"Mars stands opposite the Sun in our sky"_s,
         u"Mars 0.64"_s},
        {kPlanets, QDate(2019, 11, 11), u"Mercury stands between the Sun and the Earth"_s,
         u"11 November 2019"_s},
        {kPlanets, QDate(2026, 11, 22), u"The planets on 22 November 2026"_s, u"Venus is 0.37"_s},
    };
    for (const auto &[source, date, caption, partOfInfo] : days) {
        SCOPED_TRACE(qPrintable(date.toString(Qt::ISODate)));
        EXPECT_EQ(source.text(date).caption, caption);
        const QString info = source.text(date).info;
        EXPECT_TRUE(info.contains(partOfInfo)) << qPrintable(info);
    }
}

} // namespace
