// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/paint/Frame.h"

namespace moravel::server::sky {

/// A place of the scene on the picture, in samples.
struct Projected
{
    float x, y;
    float scale; ///< Samples a scene unit at this depth.
    float depth; ///< Scene units in front of the eye.
};

/// The eye north of the ecliptic. Distances from the Sun are shortened to their power 0.4, so that
/// 0.4 and 30 AU fit one picture: Mercury stands at 0.7, Earth at 1 and Neptune at 3.9 scene units.
class SolarView
{
public:
    explicit SolarView(const Frame &frame);

    /// Scene place of a heliocentric ecliptic place in AU.
    static Vec3f scenePlace(const Vec3d &place);

    Projected project(const Vec3f &scenePlace) const;

    /// Turns a scene direction into picture axes: x right, y up, z to the viewer.
    Vec3f toView(const Vec3f &direction) const;

    /// Distance from the Sun, in scene units, at which a line of sight meets the ecliptic; a large
    /// number where it does not. Place in samples.
    float eclipticRadius(float x, float y) const;

private:
    Vec3f m_right, m_up, m_back; ///< The axes of the picture in the scene.
    Vec3f m_eye;
    float m_focal; ///< Samples.
    float m_sunX, m_sunY;
};

} // namespace moravel::server::sky
