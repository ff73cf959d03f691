// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPointF>
#include <QSizeF>
#include <QString>

namespace moravel {

/// Measures lines of text at a font size in units of a picture's pixels. Needs a QGuiApplication.
QSizeF measureCaption(const QString &text, double fontSize);

/// Draws white lines of text with a soft black shadow into a picture, their top left corner at @p at.
void drawCaption(QImage &picture, const QString &text, double fontSize, QPointF at);

} // namespace moravel
