// SPDX-License-Identifier: MIT
#include "mainwindow/DateNavigation.h"

namespace moravel {

namespace {

constexpr qint64 SecondsPerDay = 86400;
constexpr double RestartDelay = 0.1; // seconds: the picker finishes its own change first

} // namespace

DateNavigation::DateNavigation(DatePicker &datePicker, MainLoop &loop, DateNavigationPorts ports)
    : m_datePicker(datePicker), m_loop(loop), m_ports(std::move(ports))
{
    m_datePicker.validator = [this](const QDateTime &proposed) {
        datePickerCellValidateProposedDateValue(proposed);
    };
}

DateNavigation::~DateNavigation()
{
    m_datePicker.validator = nullptr;
}

void DateNavigation::moveBy(qint64 seconds)
{
    m_datePicker.setDateValue(m_datePicker.dateValue().addSecs(seconds));
}

void DateNavigation::moveToPreviousDay()
{
    moveBy(-SecondsPerDay);
}

void DateNavigation::moveToNextDay()
{
    moveBy(SecondsPerDay);
}

void DateNavigation::moveToToday()
{
    const QDateTime now = m_loop.now();
    if (now.date() > m_datePicker.maximumDate().date()) // a new day has begun since the start
        m_datePicker.setMaximumDate(now);
    m_datePicker.setDateValue(now);
}

void DateNavigation::datePickerCellValidateProposedDateValue(const QDateTime &proposed)
{
    if (m_datePicker.autoChangeDate) {
        m_datePicker.autoChangeDate = false;
        return;
    }
    m_datePicker.userChangeDate = true;
    if (m_ports.forgetDataCheck)
        m_ports.forgetDataCheck();
    if (proposed.date() == m_datePicker.dateValue().date()) {
        m_datePicker.userChangeDate = false;
        DateButtons sameDay = m_buttons;
        sameDay.todayButton = false;
        setButtons(sameDay);
        return;
    }
    setButtons(buttonsFor(proposed));
    if (m_ports.restartPass)
        m_ports.restartPass(RestartDelay);
}

DateButtons DateNavigation::buttonsFor(const QDateTime &proposed) const
{
    if (proposed == m_datePicker.maximumDate())
        return {.prevDayButton = true, .nextDayButton = false, .todayButton = false};
    const bool atMinimum = proposed == m_datePicker.minimumDate();
    return {.prevDayButton = !atMinimum, .nextDayButton = true, .todayButton = true};
}

void DateNavigation::setButtons(const DateButtons &buttons)
{
    if (m_buttons == buttons)
        return;
    m_buttons = buttons;
    Q_EMIT buttonsChanged();
}

} // namespace moravel
