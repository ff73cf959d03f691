// SPDX-License-Identifier: MIT
#pragma once

#include "base/DatePicker.h"
#include "thumb/ThumbView.h"

#include <QAction>
#include <QPushButton>
#include <QWidget>

namespace moravel {

class CaptionLabel;

/// The commands that the side bar's date buttons share with the menus.
struct DateActions
{
    QAction *previousDay = nullptr;
    QAction *nextDay = nullptr;
    QAction *today = nullptr;
};

/// The pane at the side: the current desktop, when it changes next, the date, and unread news.
class SideBar : public QWidget
{
    Q_OBJECT

public:
    SideBar(ThumbView &desktopThumb, DatePicker &datePicker, const DateActions &actions,
            QWidget *parent = nullptr);

    /// Shows when the desktop changes next, as plain text; an empty text takes no room.
    void setNextChange(const QString &text);

    /// Shows or hides the button that keeps this desktop for an hour.
    void setKeepButtonVisible(bool visible);

    /// Shows or hides the button that opens the news.
    void setNewsButtonVisible(bool visible);

Q_SIGNALS:
    void keepButtonClicked();
    void newsButtonClicked();

private:
    QWidget *makeDateRow(DatePicker &datePicker, const DateActions &actions);

    CaptionLabel *m_nextChange;
    QPushButton *m_keepButton;
    QPushButton *m_newsButton;
};

} // namespace moravel
