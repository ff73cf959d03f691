// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/paint/Frame.h"

namespace moravel::server::sky {

class SolarView;

/// Slowly varying light of the scene: night sky, nebulae, and dust in the ecliptic lit by the Sun.
Colour solarBackdrop(const SolarView &view, const Frame &frame, float x, float y);

/// Adds the Sun: a white disc in a golden corona with fine streamers.
void addSun(Band &band, const SolarView &view);

} // namespace moravel::server::sky
