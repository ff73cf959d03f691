// SPDX-License-Identifier: MIT
#pragma once

#include "mainwindow/PictureLoader.h"
#include "mainwindow/PictureZoom.h"

#include <QWidget>

namespace moravel {

/// Shows one picture file on a dark ground: as large as it fits, or zoomed. The file is decoded elsewhere
/// for the size in which it is shown, whole only while it is zoomed in that far.
class LargeImageView : public QWidget
{
    Q_OBJECT

public:
    /// Surround of a picture that fits, in points.
    static constexpr int SideMargin = 17;
    static constexpr int EdgeMargin = 12;

    explicit LargeImageView(Images &images, QWidget *parent = nullptr);

    /// Shows a file; "" empties the area. The one that is shown already is kept unless @p anew.
    void showFile(const QString &path, bool anew = false);

    QString file() const { return m_loader.file(); }

    const QImage &image() const { return m_loader.image(); }

    /// Pixel size of the file's picture; empty while it is not known.
    QSize pictureSize() const { return m_loader.size(); }

    /// The file is no picture.
    bool failed() const { return m_loader.failed(); }

    double shownScale() const { return m_zoom.shownScale(); }

    bool isZoomed() const { return m_zoom.scale.has_value(); }

    /// Zooms around @p point, or around the middle.
    void zoomTo(double scale, std::optional<QPointF> point = {});
    void zoomIn();
    void zoomOut();
    void zoomToFit();
    void zoomToActualSize();
    /// Moves a picture that is larger than the area, by parts of the area.
    void scrollBy(double right, double down);

Q_SIGNALS:
    /// The file was decoded; @p isPicture says with what success. Comes once for each file.
    void loaded(bool isPicture);
    void doubleClicked();
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void loaderChanged();
    void zoomHasChanged();
    void wantShownSize();
    void moveBy(QPointF distance);
    void followCursor();
    void drawPicture(QPainter &painter);

    PictureLoader m_loader;
    PictureZoom m_zoom;
    std::optional<QPointF> m_dragFrom;
    bool m_told = true;
    bool m_focusShown = false; ///< The keyboard brought the focus here.
};

} // namespace moravel
