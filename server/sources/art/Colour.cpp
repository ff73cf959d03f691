// SPDX-License-Identifier: MIT
#include "server/sources/art/Colour.h"

#include <vector>

namespace moravel::server::art {

namespace {

struct Lab
{
    float l = 0;
    float a = 0;
    float b = 0;
};

/// The cube root by Newton's method, exact enough for colours in three steps after a power guess.
float cubeRoot(float v)
{
    if (v <= 0)
        return 0;
    float x = powOf(v, 1.0F / 3.0F);
    x -= (x * x * x - v) / (3.0F * x * x);
    return x;
}

Lab toLab(const Rgb &c)
{
    const float l = cubeRoot(0.4122214708F * c.r + 0.5363325363F * c.g + 0.0514459929F * c.b);
    const float m = cubeRoot(0.2119034982F * c.r + 0.6806995451F * c.g + 0.1073969566F * c.b);
    const float s = cubeRoot(0.0883024619F * c.r + 0.2817188376F * c.g + 0.6299787005F * c.b);
    return {0.2104542553F * l + 0.7936177850F * m - 0.0040720468F * s,
            1.9779984951F * l - 2.4285922050F * m + 0.4505937099F * s,
            0.0259040371F * l + 0.7827717662F * m - 0.8086757660F * s};
}

Rgb toRgb(const Lab &c)
{
    const float l0 = c.l + 0.3963377774F * c.a + 0.2158037573F * c.b;
    const float m0 = c.l - 0.1055613458F * c.a - 0.0638541728F * c.b;
    const float s0 = c.l - 0.0894841775F * c.a - 1.2914855480F * c.b;
    const float l = l0 * l0 * l0;
    const float m = m0 * m0 * m0;
    const float s = s0 * s0 * s0;
    return {std::max(0.0F, 4.0767416621F * l - 3.3077115913F * m + 0.2309699292F * s),
            std::max(0.0F, -1.2684380046F * l + 2.6097574011F * m - 0.3413193965F * s),
            std::max(0.0F, -0.0041960863F * l - 0.7034186147F * m + 1.7076147010F * s)};
}

Lab mixLab(const Lab &a, const Lab &b, float t)
{
    return {mix(a.l, b.l, t), mix(a.a, b.a, t), mix(a.b, b.b, t)};
}

/// Catmull–Rom through four values: no kink, hence no visible edge, at the colours of a gradient.
float spline(float p0, float p1, float p2, float p3, float t)
{
    return p1
        + 0.5F * t
        * (p2 - p0 + t * (2 * p0 - 5 * p1 + 4 * p2 - p3 + t * (3 * (p1 - p2) + p3 - p0)));
}

float channelLight(float c)
{
    return c <= 0.04045F ? c / 12.92F : powOf((c + 0.055F) / 1.055F, 2.4F);
}

constexpr int kTransferSteps = 4096;

/// sRGB transfer of √light, 0 … 255. Tabulating over the root spends the entries where eyes need
/// them.
const std::array<float, kTransferSteps + 2> &transferTable()
{
    static const auto table = [] {
        std::array<float, kTransferSteps + 2> t{};
        for (std::size_t i = 0; i < t.size(); ++i) {
            const float root = static_cast<float>(i) / static_cast<float>(kTransferSteps);
            const float v = root * root;
            t[i] =
                255.0F * (v <= 0.0031308F ? 12.92F * v : 1.055F * powOf(v, 1.0F / 2.4F) - 0.055F);
        }
        return t;
    }();
    return table;
}

} // namespace

Rgb fromHex(std::uint32_t hex)
{
    const auto channel = [hex](int shift) {
        return channelLight(static_cast<float>(hex >> shift & 255U) / 255.0F);
    };
    return {channel(16), channel(8), channel(0)};
}

Rgb mixPerceptually(const Rgb &a, const Rgb &b, float t)
{
    return toRgb(mixLab(toLab(a), toLab(b), t));
}

Rgb adjusted(const Rgb &colour, float lightness, float chroma)
{
    const Lab c = toLab(colour);
    return toRgb({c.l * lightness, c.a * chroma, c.b * chroma});
}

Gradient::Gradient(std::initializer_list<std::uint32_t> hexColours)
{
    std::vector<Lab> stops;
    for (const std::uint32_t hex : hexColours)
        stops.push_back(toLab(fromHex(hex)));
    const int last = static_cast<int>(stops.size()) - 1;
    for (int step = 0; step <= kSteps; ++step) {
        const float p = static_cast<float>(step * last) / static_cast<float>(kSteps);
        const int i = std::clamp(static_cast<int>(p), 0, std::max(0, last - 1));
        const auto stop = [&stops, last](int n) {
            return stops[static_cast<std::size_t>(std::clamp(n, 0, last))];
        };
        const Lab c[] = {stop(i - 1), stop(i), stop(i + 1), stop(i + 2)};
        const float t = p - static_cast<float>(i);
        m_table[static_cast<std::size_t>(step)] = toRgb(
            {clamp01(spline(c[0].l, c[1].l, c[2].l, c[3].l, t)),
             spline(c[0].a, c[1].a, c[2].a, c[3].a, t), spline(c[0].b, c[1].b, c[2].b, c[3].b, t)});
    }
}

std::uint32_t toPixel(const Rgb &light, int x, int y)
{
    const auto &table = transferTable();
    // Interleaved gradient noise (Jorge Jimenez, "Next generation post processing", SIGGRAPH 2014).
    const float ramp = 0.06711056F * static_cast<float>(x) + 0.00583715F * static_cast<float>(y);
    const float scaled = 52.9829189F * (ramp - std::floor(ramp));
    const float noise = scaled - std::floor(scaled);
    const auto channel = [&table, noise](float v) {
        const float p = std::sqrt(clamp01(v)) * static_cast<float>(kTransferSteps);
        const auto i = static_cast<int>(p);
        const auto n = static_cast<std::size_t>(i);
        const float exact = mix(table[n], table[n + 1], p - static_cast<float>(i));
        return std::min(static_cast<std::uint32_t>(static_cast<int>(exact + noise)), 255U);
    };
    return 0xff000000U | channel(light.r) << 16 | channel(light.g) << 8 | channel(light.b);
}

float lightOf(std::uint32_t channel)
{
    static const auto table = [] {
        std::array<float, 256> t{};
        for (std::size_t i = 0; i < t.size(); ++i)
            t[i] = channelLight(static_cast<float>(i) / 255.0F);
        return t;
    }();
    return table[channel & 255U];
}

} // namespace moravel::server::art
