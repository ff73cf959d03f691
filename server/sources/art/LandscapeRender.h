// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/art/LandscapeScene.h"

#include <QImage>

namespace moravel::server::art {

/// Paints @p scene, filling @p size. The pixels do not depend on @p threads.
QImage renderLandscape(const LandscapeScene &scene, QSize size, int threads);

} // namespace moravel::server::art
