// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/Vector.h"

namespace moravel::server::sky {

/// Gradient noise (Perlin, "Improving Noise", 2002), about -1 to 1, features about one unit wide.
/// Coordinates must stay within a million units.
float noise(const Vec3f &p);

/// Sum of @p octaves of noise(), each twice as fine and half as strong; about -1 to 1.
float fractalNoise(const Vec3f &p, int octaves);

/// Like fractalNoise() with sharp crests: 0 in the valleys, 1 on the crests.
float ridgedNoise(const Vec3f &p, int octaves);

} // namespace moravel::server::sky
