// SPDX-License-Identifier: MIT
#pragma once

#include "thumb/ThumbView.h"

#include <QScrollArea>

#include <vector>

namespace moravel {

class CellWidget;

/// Scrolls the grid. It puts the cells where it is told; a cell gets its widget when it is shown for the
/// first time. While there is nothing to show, a panel covers it.
class GridView : public QScrollArea
{
    Q_OBJECT

public:
    explicit GridView(QWidget *parent = nullptr);

    /// Width of the document in points; room for the scroll bar is always kept free, so that the width
    /// does not depend on the height.
    int documentWidth() const;

    int documentHeight() const { return widget()->height(); }

    void setDocumentHeight(int height);

    /// Appends a cell, in grid order; it must outlive the view.
    void addCell(ThumbView &cell);
    /// Moves the cell's upper left corner, measured from the document's upper left (leading) corner.
    void place(std::size_t index, QPoint topLeft);

    /// Returns the widget of a cell, or null while it has never been shown.
    CellWidget *cellWidget(std::size_t index) const { return m_slots.at(index).widget; }

    /// Covers the grid with @p panel, which it takes over; null uncovers it.
    void setPanel(QWidget *panel);

    QWidget *panel() const { return m_panel; }

    /// Moves the keyboard's focus from the cell that has it to a neighbour; false when there is none.
    bool moveFocus(int key);

    /// Takes what it has of the desktop's colours; for the window, which hears of a change.
    void followPalette();

Q_SIGNALS:
    /// The view itself has another size; a scroll bar that comes or goes does not count.
    void resized();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Slot
    {
        ThumbView *cell;
        CellWidget *widget;
        QPoint topLeft;
    };

    void makeWidget(std::size_t index);
    void apply(const Slot &slot);
    const Slot *focusedSlot() const;

    std::vector<Slot> m_slots;
    QWidget *m_panel = nullptr;
    QSize m_lastSize;
};

} // namespace moravel
