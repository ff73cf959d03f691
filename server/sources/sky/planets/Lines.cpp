// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/Lines.h"

namespace moravel::server::sky {

void addLine(Band &band, const LinePiece &piece)
{
    const float reach = piece.width;
    const float low = std::min(piece.y0, piece.y1) - reach,
                high = std::max(piece.y0, piece.y1) + reach;
    if (high < static_cast<float>(band.top) || low > static_cast<float>(band.bottom()))
        return;
    const float left = std::min(piece.x0, piece.x1) - reach,
                right = std::max(piece.x0, piece.x1) + reach;
    const int x0 = std::max(0, static_cast<int>(left));
    const int x1 = std::min(band.frame.width - 1, static_cast<int>(right));
    const int y0 = std::max(band.top, static_cast<int>(low));
    const int y1 = std::min(band.bottom() - 1, static_cast<int>(high));
    const float dx = piece.x1 - piece.x0, dy = piece.y1 - piece.y0;
    const float square = dx * dx + dy * dy;
    if (square <= 0)
        return;
    const float length = std::sqrt(square), scale = 1 / (reach * reach);
    for (int j = y0; j <= y1; ++j) {
        Colour *row = band.row(j);
        const float py = static_cast<float>(j) + 0.5f - piece.y0;
        for (int i = x0; i <= x1; ++i) {
            const float px = static_cast<float>(i) + 0.5f - piece.x0;
            const float along = px * dx + py * dy;
            if (along < 0 || along >= square)
                continue;
            const float across = (px * dy - py * dx) / length;
            const float rest = 1 - across * across * scale;
            if (rest > 0)
                row[i] += piece.colour * (rest * rest);
        }
    }
}

} // namespace moravel::server::sky
