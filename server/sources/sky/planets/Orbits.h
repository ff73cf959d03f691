// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/planets/Lines.h"

#include <vector>

namespace moravel::server::sky {

class SolarView;

/// The orbits as curves of light, each brightest right behind its planet and fading along the way
/// back.
std::vector<LinePiece> orbitLines(const SolarView &view, const Frame &frame, double julianDay);

} // namespace moravel::server::sky
