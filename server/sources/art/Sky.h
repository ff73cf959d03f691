// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/art/LandscapeScene.h"

namespace moravel::server::art {

/// The light that the air scatters around the sun or moon, at (u, v).
Rgb glowAt(const LandscapeScene &scene, float u, float v);

/// The sky at (u, v) with sun or moon, stars and clouds. @p pixel is the height of one pixel.
Rgb skyAt(const LandscapeScene &scene, float u, float v, float pixel);

} // namespace moravel::server::art
