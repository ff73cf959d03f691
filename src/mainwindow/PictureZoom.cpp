// SPDX-License-Identifier: MIT
#include "mainwindow/PictureZoom.h"

#include <algorithm>

namespace moravel {

namespace {

/// Start of a side of @p length in a view of @p room, with @p centre of it in the middle.
double startOf(double length, double room, double centre)
{
    if (length <= room)
        return (room - length) / 2;
    return std::clamp(room / 2 - centre * length, room - length, 0.0);
}

} // namespace

double PictureZoom::fitScale() const
{
    if (picture.isEmpty() || room.isEmpty())
        return 1;
    return std::min({1.0, room.width() / picture.width(), room.height() / picture.height()});
}

QRectF PictureZoom::target() const
{
    const QSizeF size = QSizeF(picture) * shownScale();
    return {QPointF(startOf(size.width(), view.width(), centre.x()),
                    startOf(size.height(), view.height(), centre.y())),
            size};
}

void PictureZoom::zoomTo(double newScale, QPointF point)
{
    const double fit = fitScale();
    if (picture.isEmpty() || newScale <= fit) {
        scale.reset();
        centre = {0.5, 0.5};
        return;
    }
    const QRectF before = target();
    const QPointF part((point.x() - before.x()) / before.width(),
                       (point.y() - before.y()) / before.height());
    scale = std::min(newScale, std::max(LargestScale, fit));
    const QSizeF size = QSizeF(picture) * *scale;
    centre = {part.x() + (view.width() / 2 - point.x()) / size.width(),
              part.y() + (view.height() / 2 - point.y()) / size.height()};
    moveBy({});
}

void PictureZoom::moveBy(QPointF distance)
{
    const QRectF at = target();
    if (at.isEmpty())
        return;
    const QPointF middle = QPointF(view.width() / 2, view.height() / 2) - distance - at.topLeft();
    centre = {middle.x() / at.width(), middle.y() / at.height()};
    const QRectF moved = target(); // at an edge it stops, and the centre with it
    centre = {(view.width() / 2 - moved.x()) / moved.width(),
              (view.height() / 2 - moved.y()) / moved.height()};
}

} // namespace moravel
