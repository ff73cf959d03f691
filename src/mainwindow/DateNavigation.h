// SPDX-License-Identifier: MIT
#pragma once

#include "base/DatePicker.h"
#include "platform/MainLoop.h"

#include <functional>

namespace moravel {

/// Which of the three date buttons can be pressed.
struct DateButtons
{
    bool prevDayButton = true;
    bool nextDayButton = false;
    bool todayButton = false;
    bool operator==(const DateButtons &) const = default;
};

/// What a change of the day means to the loading of the cells.
struct DateNavigationPorts
{
    std::function<void()> forgetDataCheck; ///< lastDataCheck becomes none.
    /// Sets thumbIndex to 0 and runs loadNextThumb after so many seconds.
    std::function<void(double seconds)> restartPass;
};

/// Moves the date whose pictures the grid shows, and decides what each move means.
class DateNavigation : public QObject
{
    Q_OBJECT

public:
    /// Becomes the picker's validator. All references must outlive this object.
    DateNavigation(DatePicker &datePicker, MainLoop &loop, DateNavigationPorts ports);
    ~DateNavigation() override;

    void moveToPreviousDay();
    void moveToNextDay();
    void moveToToday();

    /// Sees a proposed date while the picker still has the old one. Instants are compared with the
    /// limits, days with the shown day.
    void datePickerCellValidateProposedDateValue(const QDateTime &proposed);

    const DateButtons &buttons() const { return m_buttons; }

Q_SIGNALS:
    void buttonsChanged();

private:
    void moveBy(qint64 seconds);
    DateButtons buttonsFor(const QDateTime &proposed) const;
    void setButtons(const DateButtons &buttons);

    DatePicker &m_datePicker;
    MainLoop &m_loop;
    DateNavigationPorts m_ports;
    DateButtons m_buttons;
};

} // namespace moravel
