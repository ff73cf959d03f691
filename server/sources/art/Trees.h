// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/art/Bands.h"
#include "server/sources/art/LandscapeScene.h"

namespace moravel::server::art {

/// Paints the parts of @p tree that lie in the given rows over what @p pixels hold.
void paintTree(const LandscapeScene &scene, const Tree &tree, const Pixels &pixels, int first,
               int end);

} // namespace moravel::server::art
