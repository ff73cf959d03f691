// SPDX-License-Identifier: MIT
#include "base/Diagnostics.h"

#include "base/Logging.h"

namespace moravel {

namespace {

QString fixed(double number)
{
    return QString::number(number, 'f', 6);
}

} // namespace

void logRect(const QRectF &rect, const QString &withTitle)
{
    qCInfo(lcBase).noquote() << QStringLiteral("Rect of %1: %2 x %3 at %4, %5")
                                    .arg(withTitle, fixed(rect.width()), fixed(rect.height()),
                                         fixed(rect.x()), fixed(rect.y()));
}

void logPoint(QPointF point, const QString &withTitle)
{
    qCInfo(lcBase).noquote()
        << QStringLiteral("Point of %1: %2, %3").arg(withTitle, fixed(point.x()), fixed(point.y()));
}

} // namespace moravel
