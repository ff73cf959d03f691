// SPDX-License-Identifier: MIT
#include "base/DatePicker.h"

namespace moravel {

void DatePicker::setMaximumDate(const QDateTime &maximum)
{
    m_maximum = maximum;
    Q_EMIT changed();
}

void DatePicker::setDateValue(const QDateTime &proposed)
{
    const bool tooLate = m_maximum.isValid() && proposed > m_maximum;
    const QDateTime value = tooLate ? m_maximum : proposed;
    if (validator)
        validator(value);
    m_value = value;
    Q_EMIT changed();
}

} // namespace moravel
