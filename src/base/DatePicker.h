// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QObject>

#include <functional>
#include <optional>

namespace moravel {

/// The chosen moment whose day the grid shows, with its limits: the model behind the date picker widget.
/// The moment carries a time of day; only its day is shown.
class DatePicker : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    QDateTime dateValue() const { return m_value; }

    QDateTime maximumDate() const { return m_maximum; }

    std::optional<QDateTime> minimumDate() const { return std::nullopt; } ///< There is none.

    void setMaximumDate(const QDateTime &maximum);

    /// Offers a new date. A date after the maximum becomes the maximum; then validator sees it, with
    /// the old value still in place; then it is taken.
    void setDateValue(const QDateTime &proposed);

    /// Sees every proposed date before it is accepted.
    std::function<void(const QDateTime &proposed)> validator;

    /// The program itself is setting the date; lasts for one change (the validation clears it).
    bool autoChangeDate = false;
    /// The user has moved away from today; the program then does not move on at midnight.
    bool userChangeDate = false;

Q_SIGNALS:
    /// The value or the maximum is another one.
    void changed();

private:
    QDateTime m_value;
    QDateTime m_maximum;
};

} // namespace moravel
