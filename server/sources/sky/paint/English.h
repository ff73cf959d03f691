// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

namespace moravel::server::sky {

/// "22 November 2026", whatever the locale of the machine.
QString longDate(QDate date);

/// @p value with @p digits digits after the point.
QString decimal(double value, int digits);

/// Rounded to a whole number, with commas between thousands.
QString grouped(double value);

} // namespace moravel::server::sky
