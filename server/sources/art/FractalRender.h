// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/art/FractalScene.h"

#include <QImage>

namespace moravel::server::art {

/// Draws @p scene, filling @p size. The pixels do not depend on @p threads.
QImage renderFractal(const FractalScene &scene, QSize size, int threads);

} // namespace moravel::server::art
