// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/Vector.h"
#include "server/sources/sky/astro/PlanetPositions.h"

namespace moravel::server::sky {

/// How a planet is drawn.
struct PlanetLooks
{
    float radius; ///< In fine units at the Sun's depth; true order of size, not true scale.
    Colour colour; ///< Of its orbit and glow.
    float poleAscension, poleDeclination; ///< North pole, J2000 degrees (IAU WGCCRE 2015).
    float rotationDays; ///< Sidereal; negative turns backwards.
    float air; ///< Strength of the bright haze at the limb.
    Colour airColour;
};

const PlanetLooks &looksOf(Planet planet);

/// Unit vector of the north pole, ecliptic of J2000.
Vec3f poleOf(Planet planet);

/// Reflectance at a place of the globe: unit vector, z to the north pole.
Colour planetSurface(Planet planet, const Vec3f &place);

} // namespace moravel::server::sky
