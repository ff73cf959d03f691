// SPDX-License-Identifier: MIT
// What holds for every computed picture, whatever it shows.
#include "server/sources/art/Fractal.h"
#include "server/sources/art/FractalRender.h"
#include "server/sources/art/Landscape.h"
#include "server/sources/art/LandscapeRender.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace moravel::server::art {

namespace {

struct Subject
{
    const char *name;
    const ComputedSource &source;
    QImage (*draw)(QDate date, QSize size, int threads);
};

const Fractal kFractal;
const Landscape kLandscape;
const Subject kSubjects[] = {
    {"fractal", kFractal,
     [](QDate d, QSize s, int n) { return renderFractal(fractalSceneFor(d), s, n); }},
    {"landscape", kLandscape,
     [](QDate d, QSize s, int n) { return renderLandscape(landscapeSceneFor(d), s, n); }},
};

/// Bits of information in the brightness of a pixel, of at most 5.
double entropyOf(const QImage &image)
{
    std::array<int, 32> bins{};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++bins[static_cast<std::size_t>(qGray(image.pixel(x, y)) / 8)];
    double entropy = 0;
    for (const int count : bins) {
        const double share = static_cast<double>(count) / (image.width() * image.height());
        entropy -= share > 0 ? share * std::log2(share) : 0;
    }
    return entropy;
}

double meanDifference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    return sum / (a.width() * a.height());
}

} // namespace

TEST(Picture, IsTheSameAtEveryCallAndForAnyNumberOfThreads)
{
    for (const Subject &s : kSubjects)
        for (const QDate date : {QDate(2026, 1, 3), QDate(2026, 5, 29), QDate(2026, 11, 22)}) {
            SCOPED_TRACE(::testing::Message()
                         << s.name << ' ' << qPrintable(date.toString(Qt::ISODate)));
            const QSize size(211, 131);
            const QImage picture = s.draw(date, size, 1);
            EXPECT_EQ(picture, s.source.render(date, size));
            EXPECT_EQ(picture, s.draw(date, size, 3));
            EXPECT_EQ(picture, s.draw(date, size, 16));
        }
}

TEST(Picture, HasTheSameCompositionAtEverySize)
{
    for (const Subject &s : kSubjects)
        for (int i = 0; i < 8; ++i) {
            const QDate date = QDate(2026, 2, 1).addDays(i * 41);
            SCOPED_TRACE(::testing::Message()
                         << s.name << ' ' << qPrintable(date.toString(Qt::ISODate)));
            const QSize small(80, 45);
            const auto reduced = [&](QSize size) {
                return s.source.render(date, size)
                    .scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            };
            const QImage large = reduced({800, 450});
            EXPECT_LT(meanDifference(large, reduced({320, 180})), 7);
            const QDate other = date.addDays(1);
            EXPECT_GT(meanDifference(large, s.source.render(other, small)), 8)
                << "another day, another picture";
        }
}

TEST(Picture, IsNeverFlatOrBlackAndAlwaysOpaque)
{
    for (const Subject &s : kSubjects)
        for (int i = 0; i < 400; ++i) {
            const QDate date = QDate(2026, 1, 1).addDays(i);
            SCOPED_TRACE(::testing::Message()
                         << s.name << ' ' << qPrintable(date.toString(Qt::ISODate)));
            const QImage picture = s.source.render(date, {64, 36});
            EXPECT_GT(entropyOf(picture), 2.2);
            EXPECT_FALSE(picture.hasAlphaChannel());
            EXPECT_EQ(qAlpha(picture.pixel(63, 35)), 255);
        }
}

TEST(Picture, FillsAnyShapeOnAnyDate)
{
    const QSize sizes[] = {{16, 16}, {17, 400}, {400, 17}, {16, 2000}, {2000, 16}, {101, 99}};
    const QDate dates[] = {QDate(1, 1, 1), QDate(-4000, 2, 28), QDate(9999, 12, 31),
                           QDate(2028, 2, 29), QDate()};
    for (const Subject &s : kSubjects)
        for (const QDate date : dates) {
            SCOPED_TRACE(::testing::Message() << s.name << ' ' << date.toJulianDay());
            for (const QSize size : sizes)
                EXPECT_EQ(s.source.render(date, size).size(), size);
            EXPECT_FALSE(s.source.text(date).caption.isEmpty());
        }
}

TEST(Picture, TextsArePlainLines)
{
    for (const Subject &s : kSubjects) {
        EXPECT_EQ(s.source.shortName(), QLatin1String(s.name));
        EXPECT_TRUE(s.source.credit().endsWith(u'.') && !s.source.longName().isEmpty());
        for (int i = 0; i < 200; ++i) {
            const DayText text = s.source.text(QDate(2025, 12, 1).addDays(i));
            for (const QString &line : {text.caption, text.info}) {
                SCOPED_TRACE(qPrintable(line));
                EXPECT_EQ(line, line.simplified());
                EXPECT_GT(line.size(), 12);
                EXPECT_FALSE(line.contains(QLatin1Char('%')) && line.contains(QLatin1String("%1")));
            }
            EXPECT_LT(text.caption.size(), 60);
        }
    }
}

} // namespace moravel::server::art
