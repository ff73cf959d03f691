// SPDX-License-Identifier: MIT
#pragma once

#include "browser/ImageGrid.h"

#include <QAbstractItemView>

#include <functional>

namespace moravel {

class ImageDelegate;

/// The image browser: a scrolling grid of pictures with zoom, selection and rubber band.
///
/// A view of its own, as QListView lays out every item again at each change of the model: for a hundred
/// thousand of them longer than a keystroke may take. Here the place of an item is arithmetic.
class ImageBrowserView : public QAbstractItemView
{
    Q_OBJECT

public:
    /// @p delegate paints the items; the view takes it over.
    explicit ImageBrowserView(ImageDelegate *delegate, QWidget *parent = nullptr);

    void setCellTitleFont(const QFont &font);
    void setZoomValue(double zoom);

    double zoomValue() const { return m_zoom; }

    /// Sets what stands in the middle while there are no items; empty for nothing.
    void setMessage(const QString &title, const QString &text);

    /// Sets the icon above the message.
    void setMessageIcon(const std::function<QPixmap(const QColor &, qreal scale)> &icon);

    /// Largest size of a picture in pixels of the screen.
    QSize framePixels() const;

    /// True once the window has been on screen.
    bool wasPainted() const { return m_wasPainted; }

    ImageGrid::Span visibleItems() const;

    const ImageGrid &grid() const { return m_grid; }

    QList<int> selectedItems() const; ///< Ascending.
    void select(const QList<int> &ascending);
    /// A command by key is for the item that the focus is on where none is selected.
    void selectCurrent();

    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint &point) const override;
    void keyboardSearch(const QString &text) override;
    void reset() override;

Q_SIGNALS:
    /// Other items may be visible, or the same ones in another size; comes later than the change.
    void visibleItemsChanged();
    /// Comes once, later than the first painting.
    void firstPainted();
    /// Return was pressed.
    void openWanted();
    void menuWanted(QPoint globalPos);
    void zoomWanted(int steps); ///< Larger for positive ones.
    void typed(const QString &text);
    /// Files or folders were dropped.
    void dropped(const QStringList &paths);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

    int horizontalOffset() const override { return 0; }

    int verticalOffset() const override;

    bool isIndexHidden(const QModelIndex &) const override { return false; }

    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void rowsInserted(const QModelIndex &parent, int start, int end) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void paintItem(QPainter &painter, QStyleOptionViewItem &option, int index);
    void paintMessage(QPainter &painter);
    QItemSelection itemsInBand(const QRect &band) const;
    QItemSelection itemsBetween(int first, int last) const;
    QRect toViewport(const QRect &rect) const;
    QPoint toDocument(QPoint point) const;
    void stretchBand(QPoint to);
    void endBand();
    int anchorItem() const;
    void layOutKeepingPlace(const std::function<void()> &change);
    void announce();

    ImageDelegate *m_delegate;
    double m_zoom = UsualZoom;
    ImageGrid m_grid;
    QPoint m_pressed; ///< In coordinates of the document.
    QRect m_band; ///< In coordinates of the document; empty while there is no rubber band.
    QString m_messageTitle;
    QString m_messageText;
    std::function<QPixmap(const QColor &, qreal)> m_messageIcon;
    bool m_announcing = false;
    bool m_layingOut = false;
    bool m_wasPainted = false;
};

} // namespace moravel
