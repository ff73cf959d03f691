// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

namespace moravel {

/// Drops @p text: what only a developer at work on the caller would want to read.
inline void debugLog([[maybe_unused]] const QString &text)
{ }

/// Writes size and place of a rectangle to the log.
void logRect(const QRectF &rect, const QString &withTitle);

/// Writes a point to the log.
void logPoint(QPointF point, const QString &withTitle);

} // namespace moravel
