// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/paint/Frame.h"

namespace moravel::server::sky {

/// A point of a curve and the way the curve runs there, in samples.
struct CurvePoint
{
    float x, y;
    float alongX, alongY;
};

/// A piece of a curve of light.
struct LinePiece
{
    CurvePoint from, to;
    float width; ///< Half width at which it ends, samples.
    Colour colour;
};

/// Adds the light of a piece to a band. Pieces that share their points neither overlap nor leave
/// gaps: each takes the samples between the straight lines across the curve at its ends.
void addLine(Band &band, const LinePiece &piece);

} // namespace moravel::server::sky
