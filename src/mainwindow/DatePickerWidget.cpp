// SPDX-License-Identifier: MIT
#include "mainwindow/DatePickerWidget.h"

#include <QCalendarWidget>
#include <QRegularExpression>

namespace moravel {

namespace {

/// The user's short form with a full year.
QString displayFormatFor(const QLocale &locale)
{
    static const QRegularExpression shortYear(QStringLiteral("(?<!y)yy(?!y)"));
    QString format = locale.dateFormat(QLocale::ShortFormat);
    return format.replace(shortYear, QStringLiteral("yyyy"));
}

} // namespace

DatePickerWidget::DatePickerWidget(DatePicker &picker, QWidget *parent)
    : QDateEdit(parent), m_picker(picker)
{
    setObjectName(QStringLiteral("datePicker"));
    setAccessibleName(tr("Date of the pictures"));
    setCalendarPopup(true);
    setKeyboardTracking(false); // a date that is still being typed moves nothing
    setDisplayFormat(displayFormatFor(locale()));
    setAlignment(Qt::AlignCenter);
    connect(&m_picker, &DatePicker::changed, this, &DatePickerWidget::follow);
    connect(this, &QDateEdit::dateChanged, this, &DatePickerWidget::offer);
    follow();
}

void DatePickerWidget::follow()
{
    m_following = true;
    const QDate latest = m_picker.maximumDate().date();
    if (latest.isValid())
        setMaximumDate(latest);
    if (m_picker.dateValue().isValid())
        setDate(m_picker.dateValue().date());
    m_following = false;
}

void DatePickerWidget::offer(QDate day)
{
    if (m_following)
        return;
    QDateTime moment = m_picker.dateValue();
    moment.setDate(day);
    m_picker.setDateValue(moment);
}

void DatePickerWidget::beforeCalendar()
{
    m_dayBefore = date();
    if (m_calendar)
        return;
    m_calendar = calendarWidget();
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    // Choosing the shown day again is a proposal too, but no change of date.
    const auto chosen = [this](QDate day) {
        if (day == m_dayBefore)
            offer(day);
    };
    connect(m_calendar, &QCalendarWidget::clicked, this, chosen);
    connect(m_calendar, &QCalendarWidget::activated, this, chosen);
}

void DatePickerWidget::mousePressEvent(QMouseEvent *event)
{
    beforeCalendar();
    QDateEdit::mousePressEvent(event);
}

void DatePickerWidget::keyPressEvent(QKeyEvent *event)
{
    beforeCalendar();
    QDateEdit::keyPressEvent(event);
}

} // namespace moravel
