// SPDX-License-Identifier: MIT
#pragma once

#include "thumb/ThumbView.h"

#include <QWidget>

namespace moravel {

class CaptionLabel;
class CellButton;
class CellButtonBar;
class CellNotice;
class Clicker;
class PictureView;
class Spinner;

/// Shows one cell as a card: picture, name, date and caption, with buttons that appear while the mouse
/// is over the cell or the keyboard's focus is in it. It follows the ThumbView and forwards gestures to it.
class CellWidget : public QWidget
{
    Q_OBJECT

public:
    /// @p view must outlive the widget.
    explicit CellWidget(ThumbView &view, QWidget *parent = nullptr);

    /// The widgets that take the keyboard's focus, in tab order.
    QList<QWidget *> focusChain() const;
    /// Gives the keyboard's focus to the picture.
    void takeFocus();

    ThumbView &view() const { return m_view; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildPicture();
    void buildTexts();
    void buildButtons();
    CellButton *addButton(const QString &objectName, const QString &iconName, const QString &name,
                          std::function<void()> command);
    void follow();
    void followState();
    void followToolTips();
    void followButtons();
    bool hasFocusInside() const;

    ThumbView &m_view;
    PictureView *m_picture = nullptr;
    Clicker *m_clicker = nullptr;
    Spinner *m_spinner = nullptr;
    CellNotice *m_notice = nullptr;
    CellButtonBar *m_bar = nullptr;
    CellButton *m_deleteBtn = nullptr;
    CellButton *m_infoButton = nullptr;
    CellButton *m_refreshButton = nullptr;
    CellButton *m_newDesktopBtn = nullptr;
    CellButton *m_prevDesktopBtn = nullptr;
    CaptionLabel *m_sourceField = nullptr;
    CaptionLabel *m_dateField = nullptr;
    CaptionLabel *m_captionField = nullptr;
};

/// Returns the cell that has the keyboard's focus, or null.
ThumbView *focusedCell();

} // namespace moravel
