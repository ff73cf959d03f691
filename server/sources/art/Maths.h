// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

/// Elementary functions made of correctly rounded operations only (+ − × ÷ √ and floor), so that a
/// picture does not depend on the C library of the machine that draws it. Errors are below 1e-6
/// (float) and 1e-9 (double). They contain no calls, which lets the compiler inline them into
/// loops.
namespace moravel::server::art {

inline constexpr double kPi = 3.14159265358979323846;

inline float clamp01(float v)
{
    return std::min(std::max(v, 0.0F), 1.0F);
}

inline float mix(float a, float b, float t)
{
    return a + (b - a) * t;
}

/// 0 below @p low, 1 above @p high, smooth between; low > high turns it round.
inline float smoothstep(float low, float high, float v)
{
    const float t = clamp01((v - low) / (high - low));
    return t * t * (3.0F - 2.0F * t);
}

inline float log2Of(float v)
{
    const auto bits = std::bit_cast<std::uint32_t>(v);
    auto exponent = static_cast<float>(static_cast<int>(bits >> 23) - 127);
    float m = std::bit_cast<float>((bits & 0x007fffffU) | 0x3f800000U); // [1, 2)
    if (m > 1.41421356F) {
        m *= 0.5F;
        exponent += 1.0F;
    }
    const float s = (m - 1.0F) / (m + 1.0F);
    const float q = s * s; // ln m = 2 (s + s³/3 + s⁵/5 + …)
    return exponent
        + 2.88539008F * s
        * (1.0F + q * (0.33333333F + q * (0.2F + q * (0.14285714F + q * 0.111F))));
}

inline float exp2Of(float v)
{
    const float limited = std::min(std::max(v, -126.0F), 126.0F);
    const float whole = std::floor(limited);
    const float f = (limited - whole) * 0.69314718F;
    const float p = 1.0F
        + f
            * (1.0F
               + f
                   * (0.5F
                      + f
                          * (0.16666667F
                             + f
                                 * (0.04166667F
                                    + f * (0.00833333F + f * (0.00138889F + f * 0.000198413F))))));
    return p
        * std::bit_cast<float>(static_cast<std::uint32_t>(static_cast<int>(whole) + 127) << 23);
}

inline float expOf(float v)
{
    return exp2Of(v * 1.44269504F);
}

/// @p base to the power @p exponent, for base ≥ 0.
inline float powOf(float base, float exponent)
{
    return base <= 1e-30F ? 0.0F : exp2Of(exponent * log2Of(base));
}

inline double sinOf(double radians)
{
    const double turns = std::floor(radians / kPi + 0.5);
    // [−π/2, π/2]; angles too large to be reduced are limited instead of running away.
    const double x = std::clamp(radians - turns * kPi, -kPi / 2, kPi / 2);
    const double q = x * x;
    double term = x;
    double sum = x;
    for (int n = 2; n <= 18; n += 2) {
        term *= -q / static_cast<double>(n * (n + 1));
        sum += term;
    }
    return turns - 2.0 * std::floor(turns / 2.0) != 0.0 ? -sum : sum;
}

inline double cosOf(double radians)
{
    return sinOf(radians + kPi / 2);
}

/// The angle of tan @p v, by halving the angle until the series is short.
inline double atanOf(double v)
{
    double x = v;
    for (int i = 0; i < 4; ++i)
        x = x / (1.0 + std::sqrt(1.0 + x * x));
    const double q = x * x;
    const double series =
        x * (1.0 - q * (1.0 / 3 - q * (1.0 / 5 - q * (1.0 / 7 - q * (1.0 / 9 - q / 11)))));
    return 16.0 * series;
}

inline double asinOf(double v)
{
    const double limited = std::clamp(v, -1.0, 1.0);
    return 2.0 * atanOf(limited / (1.0 + std::sqrt(1.0 - limited * limited)));
}

inline double acosOf(double v)
{
    return kPi / 2 - asinOf(v);
}

} // namespace moravel::server::art
