// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

namespace moravel::server {

/// Reads "M/d/yyyy" (7/4/2011): no leading zeros, no blanks, a day that exists.
std::optional<QDate> parseDay(const QString &text);

/// The latest date that any place on earth has at @p now (UTC+14).
QDate latestDay(const QDateTime &now);

/// The first day that can be asked for.
inline QDate earliestDay()
{
    return {1900, 1, 1};
}

} // namespace moravel::server
