// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/paint/Frame.h"

#include <vector>

namespace moravel::server::sky {

class SolarView;

struct DustGrain
{
    float x, y, radius; ///< Samples.
    Colour colour;
};

/// The asteroid belt and, faintly, the icy belt beyond Neptune: invented bodies on Keplerian orbits
/// of the true extent, moving from day to day.
std::vector<DustGrain> beltDust(const SolarView &view, const Frame &frame, double julianDay);

} // namespace moravel::server::sky
