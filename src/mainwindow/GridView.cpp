// SPDX-License-Identifier: MIT
#include "mainwindow/GridView.h"

#include "mainwindow/CellWidget.h"
#include "mainwindow/FlippedClipView.h"
#include "mainwindow/GridLayout.h"

#include <QKeyEvent>
#include <QScrollBar>

namespace moravel {

GridView::GridView(QWidget *parent) : QScrollArea(parent)
{
    setObjectName(QStringLiteral("scrollParent"));
    setAccessibleName(tr("Pictures of the day"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    followPalette();
    setViewport(new FlippedClipView);
    verticalScrollBar()->setSingleStep(30);
    auto *document = new QWidget;
    document->setObjectName(QStringLiteral("scrollerView"));
    setWidget(document);
    document->setAutoFillBackground(false); // the clip view's grey shows through
}

int GridView::documentWidth() const
{
    return std::max(1, width() - verticalScrollBar()->sizeHint().width());
}

void GridView::setDocumentHeight(int height)
{
    widget()->resize(documentWidth(), height);
}

void GridView::addCell(ThumbView &cell)
{
    m_slots.push_back({&cell, nullptr, {}});
}

void GridView::place(std::size_t index, QPoint topLeft)
{
    Slot &slot = m_slots.at(index);
    slot.topLeft = topLeft;
    if (!slot.widget && !slot.cell->isHidden())
        makeWidget(index);
    apply(slot);
}

void GridView::makeWidget(std::size_t index)
{
    Slot &slot = m_slots.at(index);
    slot.widget = new CellWidget(*slot.cell, widget());
    slot.widget->resize(grid::CellWidth, grid::CellHeight);
    QWidget *before = widget();
    for (std::size_t i = index; i-- > 0 && before == widget();) {
        if (m_slots[i].widget)
            before = m_slots[i].widget->focusChain().last();
    }
    for (QWidget *next : slot.widget->focusChain()) {
        QWidget::setTabOrder(before, next);
        before = next;
    }
    slot.widget->setVisible(!slot.cell->isHidden());
}

void GridView::apply(const Slot &slot)
{
    if (!slot.widget)
        return;
    QPoint at = slot.topLeft;
    if (isRightToLeft())
        at.setX(documentWidth() - at.x() - grid::CellWidth);
    slot.widget->move(at);
}

void GridView::setPanel(QWidget *panel)
{
    if (m_panel) {
        if (m_panel->isAncestorOf(focusWidget() ? focusWidget() : this))
            setFocus(); // else the first cell would get it
        m_panel->hide();
        m_panel->deleteLater();
    }
    m_panel = panel;
    if (!m_panel)
        return;
    m_panel->setParent(viewport());
    m_panel->setGeometry(viewport()->rect());
    m_panel->show();
}

void GridView::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    if (m_panel)
        m_panel->setGeometry(viewport()->rect());
    if (size() == m_lastSize)
        return;
    m_lastSize = size();
    widget()->resize(documentWidth(), widget()->height());
    if (isRightToLeft()) {
        for (const Slot &slot : m_slots)
            apply(slot);
    }
    Q_EMIT resized();
}

void GridView::followPalette()
{
    setPalette(FlippedClipView::lightPalette());
}

const GridView::Slot *GridView::focusedSlot() const
{
    const QWidget *focus = widget()->focusWidget();
    for (const Slot &slot : m_slots) {
        if (focus && slot.widget && slot.widget->isAncestorOf(focus))
            return &slot;
    }
    return nullptr;
}

bool GridView::moveFocus(int key)
{
    const Slot *from = focusedSlot();
    if (!from)
        return false;
    const int forward = isRightToLeft() ? -grid::ColumnPitch : grid::ColumnPitch;
    QPoint to = from->topLeft;
    switch (key) {
    case Qt::Key_Left:
        to.rx() -= forward;
        break;
    case Qt::Key_Right:
        to.rx() += forward;
        break;
    case Qt::Key_Up:
        to.ry() -= grid::RowPitch;
        break;
    case Qt::Key_Down:
        to.ry() += grid::RowPitch;
        break;
    default:
        return false;
    }
    for (const Slot &slot : m_slots) {
        if (slot.topLeft == to && slot.widget && !slot.cell->isHidden()) {
            slot.widget->takeFocus();
            ensureWidgetVisible(slot.widget, 0, 10);
            return true;
        }
    }
    return false;
}

void GridView::keyPressEvent(QKeyEvent *event)
{
    if (!moveFocus(event->key()))
        QScrollArea::keyPressEvent(event);
}

} // namespace moravel
