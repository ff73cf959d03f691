// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/art/Maths.h"

#include <array>
#include <cstdint>
#include <initializer_list>

namespace moravel::server::art {

/// Light, linear in intensity, sRGB primaries; 1 is white.
struct Rgb
{
    float r = 0;
    float g = 0;
    float b = 0;

    Rgb operator+(const Rgb &o) const { return {r + o.r, g + o.g, b + o.b}; }

    Rgb operator*(const Rgb &o) const { return {r * o.r, g * o.g, b * o.b}; }

    Rgb operator*(float k) const { return {r * k, g * k, b * k}; }
};

inline Rgb mix(const Rgb &a, const Rgb &b, float t)
{
    return {mix(a.r, b.r, t), mix(a.g, b.g, t), mix(a.b, b.b, t)};
}

inline float luminance(const Rgb &c)
{
    return 0.2126F * c.r + 0.7152F * c.g + 0.0722F * c.b;
}

/// The light of an sRGB colour written as 0xRRGGBB.
Rgb fromHex(std::uint32_t hex);

/// Mixes in Oklab (Björn Ottosson, "A perceptual color space for image processing", 2020), where
/// equal steps look equal and no grey dip lies between complementary colours.
Rgb mixPerceptually(const Rgb &a, const Rgb &b, float t);

/// The same colour with its Oklab lightness and chroma multiplied.
Rgb adjusted(const Rgb &colour, float lightness, float chroma);

/// A gradient through colours at equal distances, interpolated smoothly in Oklab and tabulated.
class Gradient
{
public:
    Gradient() = default;
    Gradient(std::initializer_list<std::uint32_t> hexColours);

    /// The colour at @p t, limited to 0 … 1.
    Rgb at(float t) const
    {
        const float p = clamp01(t) * static_cast<float>(kSteps);
        const int i = std::min(static_cast<int>(p), kSteps - 1);
        const auto n = static_cast<std::size_t>(i);
        return mix(m_table[n], m_table[n + 1], p - static_cast<float>(i));
    }

private:
    static constexpr int kSteps = 512;
    std::array<Rgb, kSteps + 1> m_table{};
};

/// Light to an 8-bit pixel: sRGB transfer, then ordered noise of one step in amplitude before
/// rounding, so that long gradients do not fall into bands.
std::uint32_t toPixel(const Rgb &light, int x, int y);

/// The light of an 8-bit sRGB channel.
float lightOf(std::uint32_t channel);

/// The light of a pixel, its alpha ignored.
inline Rgb lightOfPixel(std::uint32_t pixel)
{
    return {lightOf(pixel >> 16 & 255), lightOf(pixel >> 8 & 255), lightOf(pixel & 255)};
}

} // namespace moravel::server::art
