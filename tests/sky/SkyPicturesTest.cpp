// SPDX-License-Identifier: MIT
#include "server/sources/sky/Moon.h"
#include "server/sources/sky/Planets.h"
#include "server/sources/sky/astro/LunarAspect.h"
#include "server/sources/sky/astro/Time.h"
#include "server/sources/sky/moon/MoonScene.h"
#include "server/sources/sky/planets/SolarScene.h"

#include <cmath>
#include <gtest/gtest.h>

namespace moravel::server {
namespace {

using sky::julianDayAtNoon;
using sky::lunarAspect;

const QDate someDay(2026, 12, 16);

struct Tone
{
    double mean;
    double deviation;
};

Tone toneOf(const QImage &image)
{
    double sum = 0, squares = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const double grey = qGray(image.pixel(x, y));
            sum += grey;
            squares += grey * grey;
        }
    }
    const double count = image.width() * image.height();
    return {sum / count, std::sqrt(squares / count - sum * sum / (count * count))};
}

/// Mean difference of a channel.
double difference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    }
    return sum / (a.width() * a.height());
}

int brightPixels(const QImage &image, int from, int to)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = from; x < to; ++x)
            count += qGray(image.pixel(x, y)) > 90;
    }
    return count;
}

class SkyPictures : public testing::Test
{
protected:
    const Moon m_moon;
    const Planets m_planets;
    const QList<const ComputedSource *> m_sources{&m_moon, &m_planets};
};

TEST_F(SkyPictures, areTheSameAtEveryCallAndThreadCount)
{
    const QSize size(300, 170);
    const double day = julianDayAtNoon(someDay);
    const QImage moon = m_moon.render(someDay, size);
    const QImage planets = m_planets.render(someDay, size);
    for (const int threads : {1, 2, 7}) {
        SCOPED_TRACE(threads);
        EXPECT_EQ(sky::paintMoon(lunarAspect(day), size, threads), moon);
        EXPECT_EQ(sky::paintPlanets(day, size, threads), planets);
    }
}

TEST_F(SkyPictures, fillAnySizeOpaquely)
{
    for (const ComputedSource *source : m_sources) {
        for (const QSize size :
             {QSize(16, 16), QSize(17, 401), QSize(401, 17), QSize(160, 100), QSize(710, 705)}) {
            SCOPED_TRACE(testing::Message() << size.width() << "x" << size.height());
            const QImage image = source->render(someDay, size);
            EXPECT_EQ(image.size(), size);
            EXPECT_FALSE(image.hasAlphaChannel());
            EXPECT_GT(toneOf(image).deviation, 3);
        }
    }
}

TEST_F(SkyPictures, haveTheSameCompositionAtEverySize)
{
    for (const ComputedSource *source : m_sources) {
        const QImage large = source->render(someDay, QSize(1280, 720));
        for (const QSize size : {QSize(640, 360), QSize(320, 180), QSize(160, 90)}) {
            SCOPED_TRACE(size.width());
            const QImage reduced =
                large.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            EXPECT_LT(difference(source->render(someDay, size), reduced), 4);
        }
    }
}

TEST_F(SkyPictures, areNeverFlatBlackOrGlaring)
{
    for (const ComputedSource *source : m_sources) {
        QImage yesterday;
        for (int day = 0; day < 60; ++day) {
            const QDate date = someDay.addDays(day);
            SCOPED_TRACE(qPrintable(date.toString(Qt::ISODate)));
            const QImage image = source->render(date, QSize(128, 72));
            const Tone tone = toneOf(image);
            EXPECT_GT(tone.mean, 8);
            EXPECT_LT(tone.mean, 110);
            EXPECT_GT(tone.deviation, 8);
            EXPECT_NE(image, yesterday);
            yesterday = image;
        }
    }
}

TEST_F(SkyPictures, lightTheMoonFromTheSideOfTheSun)
{
    const QSize size(320, 180);
    const int middle = size.width() * 6 / 10;
    for (int day = 0; day < 30; day += 2) {
        const QDate date = QDate(2026, 12, 10).addDays(day);
        const sky::LunarAspect aspect = lunarAspect(julianDayAtNoon(date));
        if (aspect.illuminated < 0.08 || aspect.illuminated > 0.92)
            continue;
        SCOPED_TRACE(qPrintable(date.toString(Qt::ISODate)));
        const QImage image = m_moon.render(date, size);
        const int left = brightPixels(image, middle - 80, middle);
        const int right = brightPixels(image, middle, middle + 80);
        if (aspect.elongation < 180)
            EXPECT_GT(right, left * 1.1);
        else
            EXPECT_GT(left, right * 1.1);
    }
}

TEST_F(SkyPictures, showANearMoonLarger)
{
    const QSize size(320, 180);
    const auto disc = [&](QDate date) {
        return brightPixels(m_moon.render(date, size), 0, size.width());
    };
    const double ratio = static_cast<double>(disc(QDate(2016, 11, 14))) / disc(QDate(2017, 6, 9));
    EXPECT_NEAR(ratio, std::pow(406.1 / 356.5, 2), 0.1);
}

TEST_F(SkyPictures, surviveImpossibleDates)
{
    for (const ComputedSource *source : m_sources) {
        for (const QDate date : {QDate(), QDate(-4000, 1, 1), QDate(1000000, 1, 1)})
            EXPECT_GT(toneOf(source->render(date, QSize(64, 36))).deviation, 3);
    }
}

} // namespace
} // namespace moravel::server
