// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSize>

#include <optional>

namespace moravel {

/// Where a picture lies in its area. Lengths are in points; at a scale of 1 a pixel of the picture is a
/// point.
struct PictureZoom
{
    static constexpr double LargestScale = 4;

    QSize picture; ///< Pixels; empty without a picture.
    QSizeF view; ///< The whole area.
    QSizeF room; ///< The part of it that a picture fits into.
    std::optional<double> scale; ///< Nothing means: as large as it fits, not enlarged.
    QPointF centre{0.5,
                   0.5}; ///< Which point of the picture is in the middle, in parts of its size.

    double fitScale() const;

    double shownScale() const { return scale.value_or(fitScale()); }

    /// Where the picture is drawn: centred where it is smaller than the area, else without a gap.
    QRectF target() const;

    /// Zooms so that what is under @p point stays there; at or below fitScale() it fits again.
    void zoomTo(double newScale, QPointF point);
    void moveBy(QPointF distance);
};

} // namespace moravel
