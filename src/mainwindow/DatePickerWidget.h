// SPDX-License-Identifier: MIT
#pragma once

#include "base/DatePicker.h"

#include <QDateEdit>

namespace moravel {

/// The day of a DatePicker as a field with a calendar. It changes the day only: the moment keeps its
/// time of day, so that the latest allowed moment stays reachable.
class DatePickerWidget : public QDateEdit
{
    Q_OBJECT

public:
    explicit DatePickerWidget(DatePicker &picker, QWidget *parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void follow();
    void offer(QDate day);
    void beforeCalendar();
    void openCalendar();

    DatePicker &m_picker;
    bool m_following = false;
    QCalendarWidget *m_calendar = nullptr; ///< Made when it may open for the first time.
    QDate m_dayBefore;
};

} // namespace moravel
