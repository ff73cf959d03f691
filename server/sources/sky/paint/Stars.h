// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/paint/Frame.h"

#include <cstdint>
#include <functional>

namespace moravel::server::sky {

/// A point of light. Places are in units of the frame's cover width from the middle, y down.
struct Star
{
    float x, y;
    float light; ///< 1 is a bright star.
    Colour tint;
};

/// @p count stars over the 16:9 field. Where @p density (0 to 1) is low, faint stars are fewer.
std::vector<Star> scatterStars(std::uint64_t seed, int count,
                               const std::function<float(float x, float y)> &density);

/// Adds the light of all stars that touch the band; the bright ones with a soft halo.
void addStars(Band &band, const std::vector<Star> &stars, float exposure);

/// Adds a soft round spot: @p radius is its standard deviation in samples, @p colour its middle.
void addSpot(Band &band, float x, float y, float radius, const Colour &colour);

} // namespace moravel::server::sky
