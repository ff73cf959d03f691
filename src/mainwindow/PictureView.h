// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QImage>
#include <QPixmap>

namespace moravel {

/// Shows a picture scaled proportionally into its area, smoothly and at the screen's own resolution.
/// The scaled copy is made at the first painting and kept until picture, size or screen change.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(QWidget *parent = nullptr);

    void setImage(const QImage &image);

    /// Whether an empty area shows a faint sign that a picture belongs there.
    void setPlaceholderShown(bool shown);

    /// Rounding of the upper corners, in points.
    static constexpr int CornerRadius = 9;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void refreshScaled();

    QImage m_image;
    QPixmap m_scaled;
    bool m_placeholderShown = true;
};

/// The transparent button over a picture: counts clicks, and takes the keyboard's focus for the cell.
class Clicker : public QAbstractButton
{
    Q_OBJECT

public:
    explicit Clicker(QWidget *parent = nullptr);

Q_SIGNALS:
    /// Pressed with the left mouse button for the @p clickCount-th time in a row; a key or an assistive
    /// tool counts as a double click.
    void clickCounted(int clickCount);
    /// The space key: a quick look at the picture.
    void lookWanted();

protected:
    void paintEvent(QPaintEvent *) override { }

    void mousePressEvent(QMouseEvent *event) override;

    void mouseReleaseEvent(QMouseEvent *) override { }

    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
};

} // namespace moravel
