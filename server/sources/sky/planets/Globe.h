// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/astro/PlanetPositions.h"
#include "server/sources/sky/paint/Frame.h"

namespace moravel::server::sky {

class SolarView;

/// A planet as a small ball lit by the Sun, Saturn with its rings.
class Globe
{
public:
    Globe(Planet planet, const SolarView &view, const Frame &frame, double julianDay);

    float depth() const { return m_depth; }

    void paint(Band &band) const;

private:
    struct Lit
    {
        Colour light;
        float cover;
    };

    Lit ballAt(float x, float y) const;
    Lit ringAt(float x, float y, bool front) const;
    Lit ringAround(float x, float y, bool front) const;
    float ringShadow(const Vec3f &place) const;
    Vec3f toGlobe(const Vec3f &view) const;

    Planet m_planet;
    float m_x, m_y, m_radius; ///< Samples.
    float m_depth;
    Vec3f m_sun; ///< To the Sun, in picture axes.
    Vec3f m_light; ///< What lights the ball: the Sun, brought round a little.
    Vec3f m_pole, m_east, m_prime; ///< Axes of the globe, in picture axes.
};

} // namespace moravel::server::sky
