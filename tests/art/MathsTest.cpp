// SPDX-License-Identifier: MIT
#include "server/sources/art/Maths.h"

#include "server/sources/art/Colour.h"
#include "server/sources/art/Random.h"

#include <gtest/gtest.h>
#include <set>

namespace moravel::server::art {

TEST(Maths, AgreesWithTheLibrary)
{
    for (double x = -20; x < 20; x += 0.037) {
        SCOPED_TRACE(x);
        EXPECT_NEAR(sinOf(x), std::sin(x), 1e-9);
        EXPECT_NEAR(cosOf(x), std::cos(x), 1e-9);
        EXPECT_NEAR(atanOf(x), std::atan(x), 1e-9);
        EXPECT_NEAR(asinOf(x / 20), std::asin(x / 20), 1e-9);
        EXPECT_NEAR(acosOf(x / 20), std::acos(x / 20), 1e-9);
        const auto f = static_cast<float>(x);
        EXPECT_NEAR(exp2Of(f) / std::exp2(f), 1, 2e-6);
        if (f > 0) {
            EXPECT_NEAR(log2Of(f), std::log2(f), 2e-6);
            EXPECT_NEAR(powOf(f, 2.4F) / std::pow(f, 2.4F), 1, 2e-5);
        }
    }
    EXPECT_EQ(powOf(0, 2), 0);
    EXPECT_EQ(exp2Of(-1e9F), exp2Of(-126));
    EXPECT_TRUE(std::isfinite(exp2Of(1e9F)));
}

TEST(Colour, PixelsComeBackAsTheyWere)
{
    for (const std::uint32_t hex : {0x000000U, 0xffffffU, 0x123456U, 0xfe8001U, 0x7f7f7fU}) {
        SCOPED_TRACE(hex);
        const std::uint32_t pixel = toPixel(fromHex(hex), 3, 5);
        for (const int shift : {0, 8, 16})
            EXPECT_NEAR(static_cast<double>(pixel >> shift & 255U),
                        static_cast<double>(hex >> shift & 255U), 1);
        EXPECT_EQ(pixel >> 24, 255U);
    }
    const std::uint32_t limited = toPixel({9, -3, 2}, 0, 0);
    EXPECT_GE(limited >> 16 & 255U, 254U);
    EXPECT_EQ(limited >> 8 & 255U, 0U);
}

TEST(Colour, NoiseKeepsTheMeanOfASmoothTone)
{
    const Rgb between = mix(fromHex(0x404040), fromHex(0x414141), 0.5F);
    int high = 0;
    for (int i = 0; i < 64 * 64; ++i)
        high += (toPixel(between, i % 64, i / 64) & 255U) == 0x41U;
    EXPECT_NEAR(high, 64 * 64 / 2, 64 * 64 / 20);
}

TEST(Random, DealsEveryCardOnceARound)
{
    for (const std::int64_t first :
         {std::int64_t(0), std::int64_t(2460000) / 11 * 11, std::int64_t(-22)}) {
        SCOPED_TRACE(first);
        std::set<std::size_t> seen;
        const std::int64_t start = first - ((first + (std::int64_t(1) << 40)) % 11);
        for (std::int64_t day = start; day < start + 11; ++day)
            seen.insert(cardOfDay(day, 11, 5));
        EXPECT_EQ(seen.size(), 11U);
    }
}

} // namespace moravel::server::art
