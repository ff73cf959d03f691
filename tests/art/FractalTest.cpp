// SPDX-License-Identifier: MIT
#include "server/sources/art/Fractal.h"

#include "server/sources/art/FractalScene.h"
#include "support/Test.h"

using namespace moravel::server;
using namespace moravel::server::art;

namespace {

Orbits orbitOf(const EscapeRule &rule, double re, double im)
{
    Orbits orbits;
    orbits.resize(1);
    const std::vector<double> x(orbits.steps.size(), re);
    const std::vector<double> y(orbits.steps.size(), im);
    followOrbits(rule, x.data(), y.data(), 1, orbits);
    return orbits;
}

TEST(EscapeTime, KnowsWhatBelongsToTheSets)
{
    // power, whether it is a Julia set, its constant, the point, and whether that is inside
    const Table<int, bool, double, double, double, double, bool> cases{
        {2, false, 0, 0, 0, 0, true},         {2, false, 0, 0, -1, 0, true},
        {2, false, 0, 0, -1.999, 0.1, false}, {2, false, 0, 0, 0.2, 0.3, true},
        {2, false, 0, 0, 0.5, 0, false},      {3, false, 0, 0, 0.3, 0, true},
        {3, false, 0, 0, 0.5, 0, false},      {4, false, 0, 0, 0.6, 0.6, false},
        {2, true, 0, 0, 0.7, 0.7, true},      {2, true, 0, 0, 0.8, 0.7, false},
        {4, true, 0, 0, 1.01, 0, false},      {2, true, -1, 0, 5, 5, false},
        {4, true, 0, 0, 900, 900, false},     {2, false, 0, 0, 3000, 0, false},
    };
    for (const auto &[power, julia, cRe, cIm, re, im, inside] : cases)
        for (const bool deep : {false, true}) {
            if (deep && power != 2)
                continue;
            SCOPED_TRACE(::testing::Message()
                         << power << ' ' << julia << ' ' << re << ' ' << im << ' ' << deep);
            const Orbits o = orbitOf({power, julia, cRe, cIm, 200, deep}, re, im);
            EXPECT_EQ(o.steps[0] < 0, inside);
            EXPECT_TRUE(std::isfinite(o.steps[0]) && std::isfinite(o.distance[0])
                        && std::isfinite(o.stripe[0]));
        }
}

TEST(EscapeTime, EstimatesDistanceAndDirection)
{
    // The Julia set of z² is the unit circle: |z| ln|z| from outside, straight away from it.
    for (const double r : {1.02, 1.1, 1.5}) {
        SCOPED_TRACE(r);
        const Orbits o = orbitOf({2, true, 0, 0, 400, false}, r * 0.6, r * 0.8);
        EXPECT_NEAR(o.distance[0], r * std::log(r), 0.01 * r);
        EXPECT_NEAR(o.normalX[0], 0.6, 1e-3);
        EXPECT_NEAR(o.normalY[0], 0.8, 1e-3);
    }
}

TEST(EscapeTime, CountsStepsContinuously)
{
    float last = 1e9F;
    for (double x = 0.3; x < 2; x += 0.001) {
        const float steps = orbitOf({2, false, 0, 0, 900, false}, x, 0).steps[0];
        ASSERT_LE(steps, last + 1e-3F) << x;
        if (x > 0.31) {
            ASSERT_LT(last - steps, 0.5F) << x;
        }
        last = steps;
    }
}

TEST(FractalScene, EveryDayHasDetailAtABearableCost)
{
    const QDate first(2026, 1, 1);
    for (int i = 0; i < 200; ++i) {
        const QDate date = first.addDays(i);
        SCOPED_TRACE(qPrintable(date.toString(Qt::ISODate)));
        const FractalScene scene = fractalSceneFor(date);
        constexpr std::size_t kCount = 48 * 27;
        std::vector<double> re(kCount);
        std::vector<double> im(kCount);
        for (std::size_t n = 0; n < kCount; ++n) {
            const double x = (static_cast<double>(n % 48) + 0.5) / 48 - 0.5;
            const double y = (13 - static_cast<double>(n / 48)) / 48;
            re[n] =
                scene.view.re + scene.view.width * (x * scene.view.cosine - y * scene.view.sine);
            im[n] =
                scene.view.im + scene.view.width * (x * scene.view.sine + y * scene.view.cosine);
        }
        Orbits o;
        o.resize(kCount);
        followOrbits(scene.rule, re.data(), im.data(), kCount, o);
        int inside = 0;
        int lace = 0;
        double steps = 0;
        for (std::size_t n = 0; n < kCount; ++n) {
            inside += o.steps[n] < 0;
            lace +=
                o.steps[n] >= 0 && static_cast<double>(o.distance[n]) < 0.006 * scene.view.width;
            steps += o.steps[n] < 0 ? scene.rule.limit : static_cast<double>(o.steps[n]);
        }
        EXPECT_LT(inside, 0.2 * kCount);
        EXPECT_GT(lace, 0.05 * kCount);
        EXPECT_LT(steps / kCount * (scene.rule.deep ? 2 : 1), 200)
            << "about 1.3 s for 3840 x 2160 on two cores";
    }
}

TEST(Fractal, NamesTheConstantThatIsDrawn)
{
    int sets[2] = {};
    for (int i = 0; i < 40; ++i) {
        const QDate date = QDate(2026, 5, 1).addDays(i);
        const FractalScene scene = fractalSceneFor(date);
        const DayText text = Fractal().text(date);
        SCOPED_TRACE(qPrintable(text.caption));
        ++sets[scene.rule.julia];
        EXPECT_TRUE(text.caption.startsWith(scene.rule.julia ? u"Julia set" : u"Mandelbrot set"));
        EXPECT_FALSE(text.caption.contains(QLatin1Char('-'))) << "minus signs, not hyphens";
        if (scene.rule.julia) {
            EXPECT_TRUE(text.caption.contains(QString::number(std::abs(scene.rule.cRe), 'f', 4)));
            EXPECT_TRUE(text.caption.endsWith(QString::number(std::abs(scene.rule.cIm), 'f', 4)
                                              + QLatin1Char('i')));
        }
        EXPECT_TRUE(text.info.contains(u"%1 steps"_s.arg(scene.rule.limit)));
    }
    EXPECT_GT(sets[0], 5);
    EXPECT_GT(sets[1], 5);
}

} // namespace
