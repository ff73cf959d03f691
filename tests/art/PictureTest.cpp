// SPDX-License-Identifier: MIT
// What holds for every computed picture, whatever it shows.
#include "server/sources/art/Fractal.h"
#include "server/sources/art/FractalRender.h"
#include "server/sources/art/Landscape.h"
#include "server/sources/art/LandscapeRender.h"
#include "server/sources/sky/Moon.h"
#include "server/sources/sky/Planets.h"
#include "server/sources/sky/astro/LunarAspect.h"
#include "server/sources/sky/astro/Time.h"
#include "server/sources/sky/moon/MoonScene.h"
#include "server/sources/sky/planets/SolarScene.h"
#include "support/Test.h"

#include <array>
#include <cmath>

using namespace moravel::server;

namespace {

struct Subject
{
    const char *name;
    const ComputedSource &source;
    QImage (*draw)(QDate date, QSize size, int threads);
    double leastEntropy, mostMean; ///< Of the brightness: bits of at most 5, and of 255.
    double mostAtOtherSize, leastOnOtherDay; ///< Mean differences.
};

const Fractal kFractal;
const Landscape kLandscape;
const Moon kMoon;
const Planets kPlanets;
const Subject kSubjects[] = {
    {"fractal", kFractal,
     [](QDate d, QSize s, int n) { return art::renderFractal(art::fractalSceneFor(d), s, n); }, 2.2,
     255, 7, 8},
    {"landscape", kLandscape,
     [](QDate d, QSize s, int n) { return art::renderLandscape(art::landscapeSceneFor(d), s, n); },
     2.2, 255, 7, 8},
    {"moon", kMoon,
     [](QDate d, QSize s, int n) {
         return sky::paintMoon(sky::lunarAspect(sky::julianDayAtNoon(d)), s, n);
     },
     1, 110, 4, 0},
    {"planets", kPlanets,
     [](QDate d, QSize s, int n) { return sky::paintPlanets(sky::julianDayAtNoon(d), s, n); }, 1,
     110, 4, 0},
};

struct Tone
{
    double mean, entropy;
};

Tone toneOf(const QImage &image)
{
    std::array<int, 32> bins{};
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            ++bins[static_cast<std::size_t>(qGray(image.pixel(x, y)) / 8)];
            sum += qGray(image.pixel(x, y));
        }
    const double pixels = image.width() * image.height();
    double entropy = 0;
    for (const int count : bins)
        entropy -= count > 0 ? count / pixels * std::log2(count / pixels) : 0;
    return {sum / pixels, entropy};
}

double meanDifference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    return sum / (a.width() * a.height());
}

/// Calls back for each subject on so many days, so many days apart.
void onDays(int count, int apart, const std::function<void(const Subject &, QDate)> &test)
{
    for (const Subject &s : kSubjects)
        for (int i = 0; i < count; ++i) {
            const QDate date = QDate(2026, 1, 3).addDays(i * apart);
            SCOPED_TRACE(::testing::Message()
                         << s.name << ' ' << qPrintable(date.toString(Qt::ISODate)));
            test(s, date);
        }
}

TEST(Picture, IsTheSameAtEveryCallAndForAnyNumberOfThreads)
{
    onDays(3, 146, [](const Subject &s, QDate date) {
        const QSize size(211, 131);
        const QImage picture = s.draw(date, size, 1);
        EXPECT_EQ(picture, s.source.render(date, size));
        EXPECT_EQ(picture, s.draw(date, size, 3));
        EXPECT_EQ(picture, s.draw(date, size, 16));
    });
}

TEST(Picture, HasTheSameCompositionAtEverySizeAndAnotherOnEachDay)
{
    onDays(5, 73, [](const Subject &s, QDate date) {
        const QSize small(80, 45);
        const auto reduced = [&](QSize size) {
            return s.source.render(date, size)
                .scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        };
        EXPECT_LT(meanDifference(reduced({800, 450}), reduced({320, 180})), s.mostAtOtherSize);
        const QImage other = s.source.render(date.addDays(1), small);
        EXPECT_GT(meanDifference(s.source.render(date, small), other), s.leastOnOtherDay);
    });
}

TEST(Picture, IsNeverFlatBlackOrGlaringAndAlwaysOpaque)
{
    onDays(80, 7, [](const Subject &s, QDate date) {
        const QImage picture = s.source.render(date, {64, 36});
        const Tone tone = toneOf(picture);
        EXPECT_GT(tone.entropy, s.leastEntropy);
        EXPECT_GT(tone.mean, 8);
        EXPECT_LT(tone.mean, s.mostMean);
        EXPECT_FALSE(picture.hasAlphaChannel());
    });
}

TEST(Picture, FillsAnyShapeOnAnyDate)
{
    const QSize sizes[] = {{16, 16}, {17, 400}, {400, 17}, {16, 2000}, {2000, 16}, {101, 99}};
    const QDate dates[] = {QDate(1, 1, 1), QDate(-4000, 2, 28), QDate(9999, 12, 31),
                           QDate(2028, 2, 29), QDate()};
    for (const Subject &s : kSubjects)
        for (const QDate date : dates) {
            SCOPED_TRACE(::testing::Message() << s.name << ' ' << date.toJulianDay());
            for (const QSize size : sizes) {
                const QImage picture = s.source.render(date, size);
                EXPECT_EQ(picture.size(), size);
                EXPECT_GT(toneOf(picture).entropy, 0.2);
            }
            EXPECT_FALSE(s.source.text(date).caption.isEmpty());
        }
}

void expectPlainLine(const QString &line, qsizetype least, qsizetype most)
{
    SCOPED_TRACE(qPrintable(line));
    EXPECT_GE(line.size(), least);
    EXPECT_LE(line.size(), most);
    EXPECT_EQ(line, line.simplified());
    EXPECT_TRUE(std::all_of(line.begin(), line.end(), [](QChar c) { return c.isPrint(); }));
    EXPECT_FALSE(line.contains("%1"_L1) || line.contains("nan"_L1));
}

TEST(Picture, TextsArePlainLines)
{
    onDays(80, 7, [](const Subject &s, QDate date) {
        EXPECT_EQ(s.source.shortName(), QLatin1String(s.name));
        expectPlainLine(s.source.longName(), 4, 40);
        expectPlainLine(s.source.credit(), 20, 100);
        expectPlainLine(s.source.text(date).caption, 12, 70);
        expectPlainLine(s.source.text(date).info, 12, 500);
    });
}

} // namespace
