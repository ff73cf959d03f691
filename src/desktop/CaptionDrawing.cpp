// SPDX-License-Identifier: MIT
#include "desktop/CaptionDrawing.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace moravel {

namespace {

constexpr int ShadowBlur = 2; ///< Radius in pixels.
constexpr QPointF ShadowOffset{4, 4};

QFont captionFont(double fontSize)
{
    QFont font(QStringLiteral("Helvetica"));
    font.setPixelSize(std::max(1, qRound(fontSize)));
    return font;
}

// Spreads each row's coverage over its neighbours; a row of the result is a column of the picture.
QImage blurredAcross(const QImage &alpha)
{
    QImage result(alpha.height(), alpha.width(), QImage::Format_Alpha8);
    for (int y = 0; y < alpha.height(); ++y) {
        const uchar *line = alpha.constScanLine(y);
        for (int x = 0; x < alpha.width(); ++x) {
            int sum = 0;
            for (int dx = -ShadowBlur; dx <= ShadowBlur; ++dx)
                sum += x + dx >= 0 && x + dx < alpha.width() ? line[x + dx] : 0;
            result.scanLine(x)[y] = static_cast<uchar>(sum / (2 * ShadowBlur + 1));
        }
    }
    return result;
}

QImage shadowOf(const QString &text, double fontSize, QSize size)
{
    QImage shadow(size + QSize(4 * ShadowBlur, 4 * ShadowBlur),
                  QImage::Format_ARGB32_Premultiplied);
    shadow.fill(Qt::transparent);
    QPainter painter(&shadow);
    painter.setFont(captionFont(fontSize));
    painter.setPen(Qt::black);
    painter.drawText(QRectF(QPointF(2 * ShadowBlur, 2 * ShadowBlur), QSizeF(size)),
                     Qt::TextDontClip, text);
    painter.end();
    return blurredAcross(blurredAcross(shadow.convertToFormat(QImage::Format_Alpha8)));
}

} // namespace

QSizeF measureCaption(const QString &text, double fontSize)
{
    return QFontMetricsF(captionFont(fontSize)).size(0, text);
}

void drawCaption(QImage &picture, const QString &text, double fontSize, QPointF at)
{
    // No larger than the picture: text beyond it would not be seen.
    const QSize size =
        measureCaption(text, fontSize).toSize().boundedTo(picture.size()).expandedTo({1, 1});
    const QImage shadow = shadowOf(text, fontSize, size);
    QPainter painter(&picture);
    painter.drawImage(at + ShadowOffset - QPointF(2 * ShadowBlur, 2 * ShadowBlur), shadow);
    painter.setFont(captionFont(fontSize));
    painter.setPen(Qt::white);
    painter.drawText(QRectF(at, QSizeF(size)), Qt::TextDontClip, text);
}

} // namespace moravel
