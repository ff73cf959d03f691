// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/art/LandscapeScene.h"

namespace moravel::server::art {

/// The crest of a ridge over the columns of a picture.
struct Crest
{
    std::vector<float> v; ///< Height of the land in each column.
    std::vector<float> top; ///< The same with the trees on it.
    std::vector<float>
        softness; ///< Height over which a steep edge fades within a column, in pixels.
};

/// @p width and @p height are those of the picture, in pixels.
Crest crestOf(const Ridge &ridge, int width, int height);

/// The colour of @p ridge at (u, v), @p depth below its crest. @p pixel is the height of one pixel.
Rgb landAt(const LandscapeScene &scene, const Ridge &ridge, float u, float v, float depth,
           float pixel);

} // namespace moravel::server::art
