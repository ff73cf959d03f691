// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/Lines.h"

namespace moravel::server::sky {

namespace {

/// Whether a place lies before the line across the curve at @p point.
bool isBefore(const CurvePoint &point, float x, float y)
{
    return (x - point.x) * point.alongX + (y - point.y) * point.alongY < 0;
}

} // namespace

void addLine(Band &band, const LinePiece &piece)
{
    const CurvePoint &from = piece.from, &to = piece.to;
    const float reach = piece.width;
    const float low = std::min(from.y, to.y) - reach, high = std::max(from.y, to.y) + reach;
    if (high < static_cast<float>(band.top) || low > static_cast<float>(band.bottom()))
        return;
    const float left = std::min(from.x, to.x) - reach, right = std::max(from.x, to.x) + reach;
    const int x0 = std::max(0, static_cast<int>(left));
    const int x1 = std::min(band.frame.width - 1, static_cast<int>(right));
    const int y0 = std::max(band.top, static_cast<int>(low));
    const int y1 = std::min(band.bottom() - 1, static_cast<int>(high));
    const float dx = to.x - from.x, dy = to.y - from.y;
    const float scale = 1 / (reach * std::max(std::sqrt(dx * dx + dy * dy), 1e-6f));
    for (int j = y0; j <= y1; ++j) {
        Colour *row = band.row(j);
        const float y = static_cast<float>(j) + 0.5f;
        for (int i = x0; i <= x1; ++i) {
            const float x = static_cast<float>(i) + 0.5f;
            const float across = ((x - from.x) * dy - (y - from.y) * dx) * scale;
            const float rest = 1 - across * across;
            if (rest > 0 && !isBefore(from, x, y) && isBefore(to, x, y))
                row[i] += piece.colour * (rest * rest);
        }
    }
}

} // namespace moravel::server::sky
