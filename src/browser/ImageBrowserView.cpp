// SPDX-License-Identifier: MIT
#include "browser/ImageBrowserView.h"

#include "browser/ImageBrowserAccess.h"
#include "browser/ImageDelegate.h"

#include <QAccessible>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <numeric>
#include <utility>

namespace moravel {

ImageBrowserView::ImageBrowserView(ImageDelegate *delegate, QWidget *parent)
    : QAbstractItemView(parent), m_delegate(delegate)
{
    installBrowserAccessibility();
    delegate->setParent(this);
    setItemDelegate(delegate);
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
}

void ImageBrowserView::setCellTitleFont(const QFont &font)
{
    m_delegate->setCellTitleFont(font);
    updateGeometries();
}

void ImageBrowserView::setZoomValue(double zoom)
{
    layOutKeepingPlace([this, zoom] {
        m_zoom = zoom;
        updateGeometries();
    });
    viewport()->update();
}

void ImageBrowserView::setMessage(const QString &title, const QString &text)
{
    if (title == m_messageTitle && text == m_messageText)
        return;
    m_messageTitle = title;
    m_messageText = text;
    viewport()->update();
}

void ImageBrowserView::setMessageIcon(const std::function<QPixmap(const QColor &, qreal)> &icon)
{
    m_messageIcon = icon;
}

QSize ImageBrowserView::framePixels() const
{
    return (QSizeF(m_grid.frame()) * devicePixelRatioF()).toSize();
}

ImageGrid::Span ImageBrowserView::visibleItems() const
{
    return m_grid.rowsBetween(verticalOffset(), verticalOffset() + viewport()->height() - 1);
}

// Geometry ---------------------------------------------------------------------------------------

int ImageBrowserView::verticalOffset() const
{
    return verticalScrollBar()->value();
}

QPoint ImageBrowserView::toDocument(QPoint point) const
{
    const int x = isRightToLeft() ? viewport()->width() - 1 - point.x() : point.x();
    return {x, point.y() + verticalOffset()};
}

QRect ImageBrowserView::toViewport(const QRect &rect) const
{
    const int x = isRightToLeft() ? viewport()->width() - rect.x() - rect.width() : rect.x();
    return {x, rect.y() - verticalOffset(), rect.width(), rect.height()};
}

QRect ImageBrowserView::visualRect(const QModelIndex &index) const
{
    return index.isValid() ? toViewport(m_grid.cell(index.row())) : QRect();
}

QModelIndex ImageBrowserView::indexAt(const QPoint &point) const
{
    const int index = model() ? m_grid.indexAt(toDocument(point)) : -1;
    return index < 0 ? QModelIndex() : model()->index(index, 0, rootIndex());
}

void ImageBrowserView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    const QRect cell = m_grid.cell(index.row());
    const int above = cell.top();
    const int below = cell.bottom() + 1 - viewport()->height();
    const int now = verticalOffset();
    switch (hint) {
    case EnsureVisible:
        verticalScrollBar()->setValue(std::min(std::max(now, below), above));
        break;
    case PositionAtTop:
        verticalScrollBar()->setValue(above);
        break;
    case PositionAtBottom:
        verticalScrollBar()->setValue(below);
        break;
    case PositionAtCenter:
        verticalScrollBar()->setValue((above + below) / 2);
        break;
    }
}

void ImageBrowserView::updateGeometries()
{
    const int count = model() ? model()->rowCount(rootIndex()) : 0;
    m_grid = ImageGrid(viewport()->width(), count, m_zoom, m_delegate->titleHeight());
    verticalScrollBar()->setSingleStep(std::max(1, m_grid.rowHeight() / 3));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, m_grid.height() - viewport()->height()));
    QAbstractItemView::updateGeometries();
    announce();
}

/// The item that stays where it is when the cells move: the current one where it can be seen, else the
/// first that can. None at the very top, which stays the top.
int ImageBrowserView::anchorItem() const
{
    if (verticalOffset() == 0 || m_grid.count() == 0)
        return -1;
    const ImageGrid::Span visible = visibleItems();
    const int current = currentIndex().row();
    return current >= visible.first && current <= visible.last ? current : visible.first;
}

void ImageBrowserView::layOutKeepingPlace(const std::function<void()> &change)
{
    const int anchor = anchorItem();
    const int before = anchor < 0 ? 0 : m_grid.cell(anchor).center().y() - verticalOffset();
    change();
    if (anchor >= 0 && anchor < m_grid.count())
        verticalScrollBar()->setValue(m_grid.cell(anchor).center().y() - before);
}

void ImageBrowserView::resizeEvent(QResizeEvent *event)
{
    if (std::exchange(m_layingOut, true)) // the scroll bar came or went
        return QAbstractItemView::resizeEvent(event);
    layOutKeepingPlace([this, event] { QAbstractItemView::resizeEvent(event); });
    m_layingOut = false;
}

void ImageBrowserView::reset()
{
    QAbstractItemView::reset();
    endBand();
    updateGeometries();
    viewport()->update();
}

void ImageBrowserView::rowsInserted(const QModelIndex &parent, int start, int end)
{
    QAbstractItemView::rowsInserted(parent, start, end);
    updateGeometries();
    viewport()->update();
}

void ImageBrowserView::announce()
{
    if (std::exchange(m_announcing, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_announcing = false;
            Q_EMIT visibleItemsChanged();
        },
        Qt::QueuedConnection);
}

// Selection --------------------------------------------------------------------------------------

QItemSelection ImageBrowserView::itemsBetween(int first, int last) const
{
    if (last < first)
        return {};
    return {model()->index(first, 0, rootIndex()), model()->index(last, 0, rootIndex())};
}

QItemSelection ImageBrowserView::itemsInBand(const QRect &band) const
{
    const ImageGrid::Span rows = m_grid.rowsBetween(band.top(), band.bottom());
    const ImageGrid::Span columns = m_grid.columnsBetween(band.left(), band.right());
    const int width = m_grid.columns();
    if (columns.first == 0 && columns.last == width - 1)
        return itemsBetween(rows.first, rows.last);
    QItemSelection items;
    for (int row = rows.first; row <= rows.last; row += width)
        items += itemsBetween(row + columns.first, std::min(row + columns.last, rows.last));
    return items;
}

void ImageBrowserView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QAbstractItemView::currentChanged(current, previous);
    if (!QAccessible::isActive() || !current.isValid() || !hasFocus())
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(current.row());
    QAccessible::updateAccessibility(&event);
}

/// The rubber band takes what it touches; keys and clicks take what lies between two items as one reads.
void ImageBrowserView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    if (!selectionModel())
        return;
    if (state() == DragSelectingState) {
        const QRect band(toDocument(rect.topLeft()), toDocument(rect.bottomRight()));
        selectionModel()->select(itemsInBand(band.normalized()), command);
        return;
    }
    const int from = indexAt(rect.topLeft()).row();
    const int to = indexAt(rect.bottomRight()).row();
    const bool both = from >= 0 && to >= 0;
    selectionModel()->select(
        both ? itemsBetween(std::min(from, to), std::max(from, to)) : QItemSelection(), command);
}

QRegion ImageBrowserView::visualRegionForSelection(const QItemSelection &selection) const
{
    QRegion region;
    const ImageGrid::Span visible = visibleItems();
    for (const QItemSelectionRange &range : selection) {
        const int last = std::min(range.bottom(), visible.last);
        for (int index = std::max(range.top(), visible.first); index <= last; ++index)
            region += toViewport(m_grid.cell(index));
    }
    return region;
}

QList<int> ImageBrowserView::selectedItems() const
{
    QList<int> items;
    if (!selectionModel())
        return items;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int index = range.top(); index <= range.bottom(); ++index)
            items.append(index);
    }
    std::sort(items.begin(), items.end());
    return items;
}

void ImageBrowserView::select(const QList<int> &ascending)
{
    QItemSelection selection;
    for (qsizetype begin = 0; begin < ascending.size();) {
        qsizetype end = begin + 1;
        while (end < ascending.size() && ascending[end] == ascending[end - 1] + 1)
            ++end;
        selection += itemsBetween(ascending[begin], ascending[end - 1]);
        begin = end;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

// Painting ---------------------------------------------------------------------------------------

void ImageBrowserView::paintEvent(QPaintEvent *event)
{
    if (!std::exchange(m_wasPainted, true))
        QMetaObject::invokeMethod(this, &ImageBrowserView::firstPainted, Qt::QueuedConnection);
    QPainter painter(viewport());
    if (m_grid.count() == 0)
        return paintMessage(painter);
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QRect dirty = event->region().boundingRect();
    const ImageGrid::Span span =
        m_grid.rowsBetween(dirty.top() + verticalOffset(), dirty.bottom() + verticalOffset());
    for (int index = span.first; index <= span.last; ++index) {
        const QRect cell = toViewport(m_grid.cell(index));
        if (event->region().intersects(cell)) {
            option.rect = cell;
            paintItem(painter, option, index);
        }
    }
    if (m_band.isNull())
        return;
    QStyleOptionRubberBand band;
    band.initFrom(this);
    band.shape = QRubberBand::Rectangle;
    band.opaque = false;
    band.rect = toViewport(m_band).intersected(viewport()->rect().adjusted(-16, -16, 16, 16));
    style()->drawControl(QStyle::CE_RubberBand, &band, &painter, this);
}

void ImageBrowserView::paintItem(QPainter &painter, QStyleOptionViewItem &option, int index)
{
    const QModelIndex item = model()->index(index, 0, rootIndex());
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(item));
    option.state.setFlag(QStyle::State_HasFocus, hasFocus() && item == currentIndex());
    itemDelegate()->paint(&painter, option, item);
}

void ImageBrowserView::paintMessage(QPainter &painter)
{
    if (m_messageTitle.isEmpty())
        return;
    constexpr int IconPoints = 48;
    constexpr int Widest = 420;
    constexpr int Gap = 8;
    QColor colour = palette().color(QPalette::Text);
    QFont bold = font();
    bold.setPointSizeF(bold.pointSizeF() * 1.3);
    bold.setBold(true);
    const QFontMetrics titleMetrics(bold);
    QRect room(0, 0, std::min(Widest, viewport()->width() - 40), viewport()->height());
    room.moveCenter(viewport()->rect().center());
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const int titleHeight = titleMetrics.boundingRect(room, flags, m_messageTitle).height();
    const int textHeight = fontMetrics().boundingRect(room, flags, m_messageText).height();
    const int height = IconPoints + 2 * Gap + titleHeight + Gap + textHeight;
    room.setTop((viewport()->height() - height) * 2
                / 5); // a little above the middle looks like the middle
    colour.setAlphaF(0.45F);
    if (m_messageIcon) {
        const QPixmap icon = m_messageIcon(colour, devicePixelRatioF());
        painter.drawPixmap(
            QRect(room.center().x() - IconPoints / 2, room.top(), IconPoints, IconPoints), icon);
    }
    room.setTop(room.top() + IconPoints + 2 * Gap);
    painter.setPen(palette().color(QPalette::Text));
    painter.setFont(bold);
    painter.drawText(room, flags, m_messageTitle);
    room.setTop(room.top() + titleHeight + Gap);
    painter.setFont(font());
    painter.drawText(room, flags, m_messageText);
}

} // namespace moravel
