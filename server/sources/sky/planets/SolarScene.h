// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace moravel::server::sky {

/// Paints the planets at their places around the Sun. The pixels do not depend on @p threads.
QImage paintPlanets(double julianDay, QSize size, int threads);

} // namespace moravel::server::sky
