// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MareField.h"

#include "server/sources/sky/astro/Angles.h"
#include "server/sources/sky/moon/MoonFeatures.h"
#include "server/sources/sky/moon/MoonView.h"
#include "server/sources/sky/paint/Noise.h"

#include <algorithm>
#include <optional>

namespace moravel::server::sky {

namespace {

constexpr float frayReach = 8; ///< Degrees from an edge where its fraying has no effect any more.
constexpr float outside = -12; ///< Degrees from an edge beyond which nothing is felt.

/// The larger of two levels, with the corner between them filled: neighbouring plains flow
/// together.
float joined(float a, float b)
{
    constexpr float width = 4.5f;
    const float near = std::max(0.0f, width - std::fabs(a - b)) / width;
    return std::max(a, b) + near * near * width / 4;
}

Vec3f warped(const Vec3f &p)
{
    const Vec3f coarse = p * 3.3f, fine = p * 10.0f;
    const Vec3f a{noise(coarse), noise(coarse + Vec3f{31, 0, 0}), noise(coarse + Vec3f{0, 47, 0})};
    const Vec3f b{noise(fine + Vec3f{5, 0, 0}), noise(fine + Vec3f{0, 9, 0}),
                  noise(fine + Vec3f{0, 0, 7})};
    return p + a * 0.042f + b * 0.026f;
}

} // namespace

MareField::MareField()
{
    for (const Mare &mare : maria()) {
        const Vec3f centre = selenographic(mare.latitude, mare.longitude);
        const Vec3f east = selenographic(0, mare.longitude + 90);
        const Vec3f north = cross(centre, east);
        const auto cosine = static_cast<float>(cosDeg(mare.turn));
        const auto sine = static_cast<float>(sinDeg(mare.turn));
        const float reach = std::max(mare.halfWidth, mare.halfHeight) - outside;
        m_ellipses.push_back(
            {centre,
             (east * cosine + north * sine) * static_cast<float>(1 / sinDeg(mare.halfWidth)),
             (north * cosine - east * sine) * static_cast<float>(1 / sinDeg(mare.halfHeight)),
             std::min(mare.halfWidth, mare.halfHeight), static_cast<float>(cosDeg(reach)) - 0.02f,
             mare.darkness, mare.titanium, mare.rimKm});
    }
}

MareSample MareField::at(const Vec3f &place) const
{
    const Vec3f p = warped(place);
    std::optional<float> fray; // costly, and felt near an edge only
    float level = outside, weights = 1e-6f, rim = 0;
    MareSample sample{};
    for (const Ellipse &ellipse : m_ellipses) {
        if (dot(p, ellipse.centre) < ellipse.nearest)
            continue;
        const float u = dot(p, ellipse.along), v = dot(p, ellipse.across);
        const float edge =
            (1 - std::sqrt(u * u + v * v)) * ellipse.degrees; // degrees, inside positive
        const float small = std::min(1.0f, ellipse.degrees / 4); // little lakes fray less
        if (!fray && std::fabs(edge) < frayReach)
            fray = 2.3f * fractalNoise(place * 15.0f, 5);
        level = joined(level, edge + fray.value_or(0.0f) * small);
        const float weight = smoothstep(-4 * small, 4 * small, edge);
        weights += weight;
        sample.darkness += weight * ellipse.darkness;
        sample.titanium += weight * ellipse.titanium;
        const float crest = (edge + 1.3f) / 1.6f;
        rim = std::max(rim, ellipse.rimKm / (1 + crest * crest * crest * crest));
    }
    sample.cover = 0.78f * smoothstep(-0.75f, 0.7f, level) + 0.22f * smoothstep(-3.0f, 4.0f, level);
    sample.darkness /= weights;
    sample.titanium /= weights;
    sample.rimKm = rim;
    return sample;
}

bool MareField::isMare(const Vec3f &place) const
{
    const Vec3f p = warped(place);
    return std::any_of(m_ellipses.begin(), m_ellipses.end(), [&p](const Ellipse &ellipse) {
        const float u = dot(p, ellipse.along), v = dot(p, ellipse.across);
        return dot(p, ellipse.centre) > 0 && u * u + v * v < 1;
    });
}

} // namespace moravel::server::sky
