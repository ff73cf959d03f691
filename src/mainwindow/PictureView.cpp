// SPDX-License-Identifier: MIT
#include "mainwindow/PictureView.h"

#include "mainwindow/Icons.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace moravel {

namespace {

constexpr double LargestEnlargement = 3; // a tiny picture is not blown up to a blur

/// Round above; below, the text continues the card.
QPainterPath roundedArea(const QRect &rect)
{
    constexpr int Radius = PictureView::CornerRadius;
    QPainterPath area;
    area.addRoundedRect(QRectF(rect).adjusted(0, 0, 0, Radius), Radius, Radius);
    QPainterPath visible;
    visible.addRect(rect);
    return area.intersected(visible);
}

} // namespace

PictureView::PictureView(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("imageView"));
}

void PictureView::setImage(const QImage &image)
{
    if (image.cacheKey() == m_image.cacheKey())
        return;
    m_image = image;
    m_scaled = {};
    update();
}

void PictureView::setPlaceholderShown(bool shown)
{
    if (shown == m_placeholderShown)
        return;
    m_placeholderShown = shown;
    update();
}

void PictureView::refreshScaled()
{
    const qreal scale = devicePixelRatioF();
    const QSize room = size() * scale;
    const QSize wanted = m_image.size()
                             .scaled(room, Qt::KeepAspectRatio)
                             .boundedTo(m_image.size() * LargestEnlargement * scale)
                             .expandedTo({1, 1});
    if (m_scaled.size() == wanted && m_scaled.devicePixelRatio() == scale)
        return;
    QImage scaled = m_image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&scaled); // cut the round corners out once, rather than at each painting
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.translate((wanted.width() - room.width()) * 0.5, (wanted.height() - room.height()) * 0.5);
    painter.scale(scale, scale);
    QPainterPath corners;
    corners.addRect(rect());
    painter.fillPath(corners.subtracted(roundedArea(rect())), Qt::black);
    painter.end();
    m_scaled = QPixmap::fromImage(std::move(scaled));
    m_scaled.setDevicePixelRatio(scale);
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor text = palette().color(QPalette::Text);
    const QColor base = palette().color(QPalette::Base);
    painter.fillPath(roundedArea(rect()), blend(text, base, 0.07));
    if (!m_image.isNull()) {
        refreshScaled();
        const qreal scale = devicePixelRatioF();
        const QSize spare = size() * scale - m_scaled.size();
        const QPoint at(spare.width() / 2, spare.height() / 2); // in whole device pixels
        painter.drawPixmap(QPointF(at) / scale, m_scaled);
    } else if (m_placeholderShown) {
        constexpr int Points = 40;
        const QPixmap icon = iconPixmap(QStringLiteral("picture"), Points, blend(text, base, 0.22),
                                        devicePixelRatioF());
        painter.drawPixmap((width() - Points) / 2, (height() - Points) / 2, icon);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(QRectF(0, height() - 1, width(), 1), blend(text, base, 0.1));
}

Clicker::Clicker(QWidget *parent) : QAbstractButton(parent)
{
    setObjectName(QStringLiteral("clicker"));
    setFocusPolicy(Qt::StrongFocus);
}

void Clicker::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT clickCounted(1);
}

void Clicker::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT clickCounted(2);
}

void Clicker::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT clickCounted(2);
    else if (event->key() == Qt::Key_Space)
        Q_EMIT lookWanted();
    else
        event->ignore(); // the arrows belong to the grid
}

void Clicker::keyReleaseEvent(QKeyEvent *event)
{
    event->ignore();
}

} // namespace moravel
