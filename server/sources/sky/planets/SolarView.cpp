// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/SolarView.h"

#include "server/sources/sky/astro/Angles.h"

namespace moravel::server::sky {

namespace {

constexpr double compression = 0.4;
constexpr float eyeDistance = 11.2f; ///< Scene units from the Sun.
constexpr double eyeHeight = 30; ///< Degrees over the ecliptic.
constexpr double eyeLongitude = -30; ///< Ecliptic longitude that the eye stands at, degrees.
constexpr double roll = 7; ///< Degrees that the picture leans anticlockwise.
constexpr float focal = 2.10f; ///< In fine units: Neptune's orbit nearly fills the width.
constexpr float sunBelow = -0.105f; ///< Of the middle of the picture, in fine units.

} // namespace

SolarView::SolarView(const Frame &frame)
    : m_focal(focal * frame.fineUnit)
    , m_sunX(frame.middleX - 0.012f * frame.fineUnit)
    , m_sunY(frame.middleY + sunBelow * frame.fineUnit)
{
    const auto part = [](double value) { return static_cast<float>(value); };
    m_back = {part(cosDeg(eyeHeight) * cosDeg(eyeLongitude)),
              part(cosDeg(eyeHeight) * sinDeg(eyeLongitude)), part(sinDeg(eyeHeight))};
    const Vec3f level{part(-sinDeg(eyeLongitude)), part(cosDeg(eyeLongitude)), 0};
    const Vec3f upright = cross(m_back, level);
    m_right = level * part(cosDeg(roll)) - upright * part(sinDeg(roll));
    m_up = upright * part(cosDeg(roll)) + level * part(sinDeg(roll));
    m_eye = m_back * eyeDistance;
}

Vec3f SolarView::scenePlace(const Vec3d &place)
{
    const double distance = length(place);
    const double factor = distance > 0 ? std::pow(distance, compression - 1) : 0;
    return {static_cast<float>(place.x * factor), static_cast<float>(place.y * factor),
            static_cast<float>(place.z * factor)};
}

Projected SolarView::project(const Vec3f &scenePlace) const
{
    const float depth = eyeDistance - dot(scenePlace, m_back);
    const float scale = m_focal / std::max(depth, 0.5f);
    return {m_sunX + dot(scenePlace, m_right) * scale, m_sunY - dot(scenePlace, m_up) * scale,
            scale, depth};
}

Vec3f SolarView::toView(const Vec3f &direction) const
{
    return {dot(direction, m_right), dot(direction, m_up), dot(direction, m_back)};
}

float SolarView::eclipticRadius(float x, float y) const
{
    const Vec3f ray = m_right * ((x - m_sunX) / m_focal) - m_up * ((y - m_sunY) / m_focal) - m_back;
    if (ray.z > -0.02f)
        return 1000;
    return length(m_eye - ray * (m_eye.z / ray.z));
}

} // namespace moravel::server::sky
