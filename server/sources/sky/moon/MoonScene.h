// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/astro/LunarAspect.h"

#include <QImage>

namespace moravel::server::sky {

/// Paints the Moon before the stars. The pixels do not depend on @p threads.
QImage paintMoon(const LunarAspect &aspect, QSize size, int threads);

} // namespace moravel::server::sky
