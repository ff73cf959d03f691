// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

namespace moravel {

/// Returns the line icon of that name (a file of icons/, without its extension) in one colour.
/// @param points edge length in device-independent pixels; @param scale device pixels per point.
QPixmap iconPixmap(const QString &name, int points, const QColor &colour, qreal scale);

/// Returns the line icon of that name as an icon that follows the palette and the screen's scale.
QIcon themedIcon(const QString &name);

/// Mixes two colours; @p share is the part of @p front, 0 to 1.
QColor blend(const QColor &front, const QColor &back, double share);

} // namespace moravel
