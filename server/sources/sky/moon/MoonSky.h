// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/Vector.h"

namespace moravel::server::sky {

/// Where the stars are dense: a slanting band, 0 to about 1. Places as in SmoothField.
float milkyWayDensity(float x, float y);

/// Light of the sky without stars: a deep blue ground and the milky way, @p strength of it.
Colour skyLight(float x, float y, float strength);

} // namespace moravel::server::sky
