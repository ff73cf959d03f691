// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/art/Bands.h"
#include "server/sources/art/LandscapeScene.h"

namespace moravel::server::art {

/// Paints rows of the lake, which mirror what @p pixels already hold above the far shore.
void paintLake(const LandscapeScene &scene, const Pixels &pixels, int first, int end);

} // namespace moravel::server::art
