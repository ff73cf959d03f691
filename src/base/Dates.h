// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>

namespace moravel {

/// Converts between the three written forms of a day:
/// - short date: "M/d/y", month and day without leading zeros, full year (7/4/2011);
/// - local date: the long date style of the user's locale, in its own calendar and digits, without
/// a
///   weekday or time (July 4, 2011);
/// - SQL date: "yyyyMMdd" (20110704).
///
/// Short and SQL dates have ASCII digits whatever the locale. Days are days of the system's time
/// zone in the years 1 to 9999. Parsing is strict: the whole text must be a day that exists, and a
/// local date must be written exactly as longDate() writes it. What does not parse gives no date,
/// and a null string from the conversions.
///
/// Immutable; copies share the formatter and may be used from any thread.
class Dates
{
public:
    /// @param localeName a locale as ICU or the environment names it ("de_AT", "fa_IR.UTF-8");
    /// empty
    ///        for the user's, from LC_ALL, LC_TIME or LANG.
    explicit Dates(const QString &localeName = {});

    QString shortDate(const QDateTime &moment) const;
    QString longDate(const QDateTime &moment) const;

    /// Returns the start of the day in the system's time zone: midnight, or the first moment after
    /// it where summer time begins at midnight.
    std::optional<QDateTime> dateFromLocalString(const QString &localDate) const;
    std::optional<QDateTime> dateFromShortString(const QString &shortDate) const;

    QString shortDateFromLocalDate(const QString &localDate) const;
    QString localDateFromShortDate(const QString &shortDate) const;
    QString sqlDateFromShortDate(const QString &shortDate) const;
    QString localDateFromSqlDate(const QString &sqlDate) const;

private:
    class LongStyle;
    std::shared_ptr<LongStyle> m_long;
};

} // namespace moravel
