// SPDX-License-Identifier: MIT
#include "mainwindow/LargeImageView.h"

#include "mainwindow/Icons.h"

#include <QPainter>
#include <QWheelEvent>
#include <QtMath>

#include <cmath>

namespace moravel {

namespace {

constexpr double ZoomStep = 1.25;
constexpr int WheelNotch = 120; // eighths of a degree, times 8
constexpr int Coarse = 4; // pixels a sample of what is only shown until it is decoded again
// Neutral, whatever the theme: it must not tint the picture.
const QColor Ground(0x1c, 0x1c, 0x1e);
// Device pixels per pixel from which on its pixels are shown as such.
constexpr double SingleDots = 2;

QPalette darkPalette(QPalette palette)
{
    palette.setColor(QPalette::Window, Ground);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
        palette.setColor(role, QColor(0xd6, 0xd6, 0xd8));
    palette.setColor(QPalette::Base, QColor(0x3a, 0x3a, 0x3d));
    return palette;
}

} // namespace

LargeImageView::LargeImageView(Images &images, QWidget *parent)
    : QWidget(parent), m_loader(images, [this] { loaderChanged(); })
{
    setObjectName(QStringLiteral("largeImage"));
    setPalette(darkPalette(palette()));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(200, 120);
}

void LargeImageView::showFile(const QString &path, bool anew)
{
    if (path == m_loader.file() && !anew)
        return;
    m_zoom = {};
    m_told = path.isEmpty();
    m_loader.setFile(path);
    zoomHasChanged();
}

void LargeImageView::loaderChanged()
{
    const QSize size = m_loader.size();
    if (size != m_zoom.picture) {
        m_zoom.picture = size;
        zoomHasChanged();
    }
    update();
    if (!m_told && (m_loader.failed() || !m_loader.image().isNull())) {
        m_told = true;
        Q_EMIT loaded(!m_loader.failed());
    }
}

void LargeImageView::zoomHasChanged()
{
    m_zoom.view = size();
    m_zoom.room = {std::max(1.0, width() - 2.0 * SideMargin),
                   std::max(1.0, height() - 2.0 * EdgeMargin)};
    if (m_zoom.scale)
        m_zoom.moveBy({});
    wantShownSize();
    followCursor();
    update();
    Q_EMIT zoomChanged();
}

void LargeImageView::wantShownSize()
{
    const QSizeF points = m_zoom.scale ? m_zoom.target().size() : m_zoom.room;
    const QSizeF pixels = points * devicePixelRatioF();
    m_loader.want({qCeil(pixels.width()), qCeil(pixels.height())});
}

void LargeImageView::zoomTo(double scale, std::optional<QPointF> point)
{
    m_zoom.zoomTo(scale, point.value_or(QPointF(width() / 2.0, height() / 2.0)));
    zoomHasChanged();
}

void LargeImageView::zoomIn()
{
    zoomTo(shownScale() * ZoomStep);
}

void LargeImageView::zoomOut()
{
    zoomTo(shownScale() / ZoomStep);
}

void LargeImageView::zoomToFit()
{
    zoomTo(0);
}

void LargeImageView::zoomToActualSize()
{
    zoomTo(1 / devicePixelRatioF()); // a pixel of the picture on a pixel of the screen
}

void LargeImageView::scrollBy(double right, double down)
{
    moveBy({-right * width(), -down * height()});
}

void LargeImageView::moveBy(QPointF distance)
{
    if (!m_zoom.scale)
        return;
    m_zoom.moveBy(distance);
    update();
}

void LargeImageView::followCursor()
{
    if (m_dragFrom)
        setCursor(Qt::ClosedHandCursor);
    else if (isZoomed())
        setCursor(Qt::OpenHandCursor);
    else
        unsetCursor();
}

void LargeImageView::drawPicture(QPainter &painter)
{
    const QImage &image = m_loader.image();
    const qreal ratio = devicePixelRatioF();
    const QRectF target = m_zoom.target();
    const QPointF corner(std::round(target.x() * ratio) / ratio,
                         std::round(target.y() * ratio) / ratio);
    const QSizeF pixels = target.size() * ratio;
    const double perPixel = pixels.width() / image.width();
    if (std::abs(pixels.width() - image.width()) <= 1.5
        && std::abs(pixels.height() - image.height()) <= 1.5) { // decoded for this size: as it is
        painter.drawImage(QRectF(corner, QSizeF(image.size()) / ratio), image);
        return;
    }
    const QRectF shown(corner, target.size());
    // Back from a zoom: each pixel taken from a huge picture is a wait for memory.
    if (perPixel < 1.0 / Coarse) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(shown, image.scaled((pixels / Coarse).toSize().expandedTo({1, 1})));
        return;
    }
    // Until the decoding for this size is there, quickly rather than smoothly.
    painter.setRenderHint(QPainter::SmoothPixmapTransform,
                          m_loader.isSharp() && perPixel < SingleDots);
    painter.drawImage(shown, image);
}

void LargeImageView::paintEvent(QPaintEvent *)
{
    wantShownSize(); // the window may have come to a screen of another resolution
    QPainter painter(this);
    painter.fillRect(rect(), Ground);
    if (!m_loader.image().isNull())
        drawPicture(painter);
    if (m_focusShown && !window()->isFullScreen()) { // where there is nothing else
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void LargeImageView::resizeEvent(QResizeEvent *)
{
    zoomHasChanged();
}

void LargeImageView::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        const double notches = event->angleDelta().y() / double(WheelNotch);
        zoomTo(shownScale() * std::pow(ZoomStep, notches), event->position());
        return;
    }
    const QPoint pixels =
        event->pixelDelta().isNull() ? event->angleDelta() / 2 : event->pixelDelta();
    moveBy(pixels);
}

void LargeImageView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && isZoomed())
        m_dragFrom = event->position();
    followCursor();
}

void LargeImageView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragFrom)
        return;
    moveBy(event->position() - *m_dragFrom);
    m_dragFrom = event->position();
}

void LargeImageView::mouseReleaseEvent(QMouseEvent *)
{
    m_dragFrom.reset();
    followCursor();
}

void LargeImageView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
}

void LargeImageView::keyPressEvent(QKeyEvent *event)
{
    constexpr double Part = 0.2;
    const bool shift =
        event->modifiers() & Qt::ShiftModifier; // without it, the arrows change the picture
    if (isZoomed() && event->key() == Qt::Key_Up)
        scrollBy(0, -Part);
    else if (isZoomed() && event->key() == Qt::Key_Down)
        scrollBy(0, Part);
    else if (isZoomed() && shift && event->key() == Qt::Key_Left)
        scrollBy(-Part, 0);
    else if (isZoomed() && shift && event->key() == Qt::Key_Right)
        scrollBy(Part, 0);
    else
        QWidget::keyPressEvent(event);
}

void LargeImageView::focusInEvent(QFocusEvent *event)
{
    m_focusShown =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

void LargeImageView::focusOutEvent(QFocusEvent *)
{
    m_focusShown = false;
    update();
}

} // namespace moravel
