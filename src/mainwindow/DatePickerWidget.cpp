// SPDX-License-Identifier: MIT
#include "mainwindow/DatePickerWidget.h"

#include "mainwindow/Icons.h"

#include <QCalendarWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyleOptionComboBox>
#include <QTextCharFormat>
#include <QToolButton>

namespace moravel {

namespace {

/// The user's short form with a full year.
QString displayFormatFor(const QLocale &locale)
{
    static const QRegularExpression shortYear(QStringLiteral("(?<!y)yy(?!y)"));
    QString format = locale.dateFormat(QLocale::ShortFormat);
    return format.replace(shortYear, QStringLiteral("yyyy"));
}

/// A calendar without week numbers and alarm colours that shows which days cannot be chosen.
class QuietCalendar : public QCalendarWidget
{
public:
    QuietCalendar()
    {
        setVerticalHeaderFormat(NoVerticalHeader);
        setGridVisible(false);
        for (const auto day : {Qt::Saturday, Qt::Sunday})
            setWeekdayTextFormat(day, {});
        const QColor colour = palette().color(QPalette::HighlightedText);
        for (const auto &[button, icon] : {std::pair("qt_calendar_prevmonth", "previous-day"),
                                           std::pair("qt_calendar_nextmonth", "next-day")}) {
            const QPixmap arrow = iconPixmap(QLatin1String(icon), 16, colour, devicePixelRatioF());
            if (auto *arrowButton = findChild<QToolButton *>(QLatin1String(button)))
                arrowButton->setIcon(arrow);
        }
    }

protected:
    void paintCell(QPainter *painter, const QRect &rect, QDate date) const override
    {
        if (date > maximumDate())
            painter->setOpacity(0.35);
        QCalendarWidget::paintCell(painter, rect, date);
        painter->setOpacity(1);
    }
};

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
    m_calendar = new QuietCalendar;
    m_calendar->setLocale(locale());
    setCalendarWidget(m_calendar);
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
    const bool isAltDown =
        event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
    if (isAltDown || event->key() == Qt::Key_F4)
        return openCalendar();
    beforeCalendar();
    QDateEdit::keyPressEvent(event);
}

// By the keys that open a combo box. Qt knows the mouse only.
void DatePickerWidget::openCalendar()
{
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.editable = true;
    const QPointF arrow =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this)
            .center();
    QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    mousePressEvent(&press);
}

} // namespace moravel
