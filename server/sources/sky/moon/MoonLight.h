// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/Vector.h"

namespace moravel::server::sky {

class MoonSurface;

/// Direction straight up from the ground of a cell, with the relief taken into account.
Vec3f groundNormal(const MoonSurface &surface, int column, int row);

/// How much of the Sun is seen from a cell, 0 to 1: mountains throw shadows where it stands low.
/// @p light is the unit vector to the Sun.
float sunVisible(const MoonSurface &surface, int column, int row, const Vec3f &light);

/// Brightness of dusty ground lit and seen at an angle (Lommel-Seeliger law, which makes the full
/// moon a flat disc), with a little of Lambert's law so that hills keep their shape. 1 at full
/// moon.
float dustyReflection(float cosineToSun, float cosineToViewer);

} // namespace moravel::server::sky
