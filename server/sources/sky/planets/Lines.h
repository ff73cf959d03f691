// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/paint/Frame.h"

namespace moravel::server::sky {

/// A piece of a curve of light, in samples.
struct LinePiece
{
    float x0, y0, x1, y1;
    float width; ///< Half width at which it ends.
    Colour colour;
};

/// Adds the light of a piece to a band. Pieces of a curve neither overlap nor leave gaps: each
/// takes the samples beside it, its end excluded.
void addLine(Band &band, const LinePiece &piece);

} // namespace moravel::server::sky
