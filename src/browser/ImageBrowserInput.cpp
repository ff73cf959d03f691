// SPDX-License-Identifier: MIT
// What the user does in the image browser: keys, mouse, wheel and drops.
#include "browser/ImageBrowserView.h"

#include <QContextMenuEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QMimeData>
#include <QScrollBar>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace moravel {

namespace {

constexpr qsizetype MostDrops = 10'000;
constexpr int WheelStep = 120; ///< An eighth of a degree each.

QStringList localPaths(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls().first(std::min(MostDrops, data.urls().size()))) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

// Keys -------------------------------------------------------------------------------------------

QModelIndex ImageBrowserView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int count = m_grid.count();
    if (count == 0)
        return {};
    const int current = currentIndex().row();
    if (current < 0)
        return model()->index(visibleItems().first, 0, rootIndex());
    const int columns = m_grid.columns();
    const int page = std::max(1, viewport()->height() / m_grid.rowHeight()) * columns;
    const int forward = isRightToLeft() ? -1 : 1;
    const auto down = [&](int step) { // the last row may be short
        const bool inLastRow = current / columns == (count - 1) / columns;
        return inLastRow ? current : std::min(current + step, count - 1);
    };
    const auto up = [&](int step) {
        return current < columns ? current : std::max(current - step, current % columns);
    };
    int next = current;
    switch (action) {
    case MoveLeft:
        next = current - forward;
        break;
    case MoveRight:
        next = current + forward;
        break;
    case MovePrevious:
        next = current - 1;
        break;
    case MoveNext:
        next = current + 1;
        break;
    case MoveUp:
        next = up(columns);
        break;
    case MoveDown:
        next = down(columns);
        break;
    case MovePageUp:
        next = up(page);
        break;
    case MovePageDown:
        next = down(page);
        break;
    case MoveHome:
        next = 0;
        break;
    case MoveEnd:
        next = count - 1;
        break;
    }
    return model()->index(std::clamp(next, 0, count - 1), 0, rootIndex());
}

void ImageBrowserView::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || event->modifiers() & ~Qt::KeypadModifier)
        return QAbstractItemView::keyPressEvent(event);
    selectCurrent();
    Q_EMIT openWanted();
}

void ImageBrowserView::selectCurrent()
{
    if (!selectionModel()->hasSelection())
        setCurrentIndex(currentIndex());
}

void ImageBrowserView::keyboardSearch(const QString &text)
{
    if (!text.isEmpty() && text.at(0).isPrint() && !text.at(0).isSpace())
        Q_EMIT typed(text);
}

// Mouse ------------------------------------------------------------------------------------------

void ImageBrowserView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = toDocument(event->position().toPoint());
    QAbstractItemView::mousePressEvent(event);
    const bool adds = event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
    if (!adds && event->button() == Qt::LeftButton && m_grid.indexAt(m_pressed) < 0)
        clearSelection();
}

void ImageBrowserView::mouseMoveEvent(QMouseEvent *event)
{
    QAbstractItemView::mouseMoveEvent(event);
    if (state() == DragSelectingState)
        stretchBand(event->position().toPoint());
}

void ImageBrowserView::mouseReleaseEvent(QMouseEvent *event)
{
    QAbstractItemView::mouseReleaseEvent(event);
    endBand();
}

void ImageBrowserView::stretchBand(QPoint to)
{
    const QRect old = std::exchange(m_band, QRect(m_pressed, toDocument(to)).normalized());
    viewport()->update(toViewport(old.united(m_band)).adjusted(-2, -2, 2, 2));
}

void ImageBrowserView::endBand()
{
    if (!m_band.isNull())
        viewport()->update();
    m_band = {};
}

void ImageBrowserView::scrollContentsBy(int dx, int dy)
{
    announce();
    if (m_band.isNull()) {
        viewport()->scroll(dx, dy);
        return;
    }
    // The document moves away below a mouse that stands still: the band grows.
    viewport()->update();
    const QPointF global = QCursor::pos();
    const QPointF local = viewport()->mapFromGlobal(global);
    QMouseEvent move(QEvent::MouseMove, local, global, Qt::NoButton, Qt::LeftButton,
                     QGuiApplication::keyboardModifiers());
    mouseMoveEvent(&move);
}

void ImageBrowserView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier))
        return QAbstractItemView::wheelEvent(event);
    if (const int steps = event->angleDelta().y() / WheelStep; steps != 0)
        Q_EMIT zoomWanted(steps);
    event->accept();
}

void ImageBrowserView::contextMenuEvent(QContextMenuEvent *event)
{
    QPoint place = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        selectCurrent();
        scrollTo(currentIndex());
        place = viewport()->mapToGlobal(visualRect(currentIndex()).center());
    }
    Q_EMIT menuWanted(place);
}

// Drops ------------------------------------------------------------------------------------------

void ImageBrowserView::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(event->mimeData()->hasUrls());
    if (event->isAccepted())
        event->setDropAction(Qt::CopyAction);
}

void ImageBrowserView::dragMoveEvent(QDragMoveEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void ImageBrowserView::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (const QStringList paths = localPaths(*event->mimeData()); !paths.isEmpty())
        Q_EMIT dropped(paths);
}

} // namespace moravel
