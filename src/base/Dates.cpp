// SPDX-License-Identifier: MIT
#include "base/Dates.h"

#include "base/Logging.h"

#include <mutex>
#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

namespace moravel {

namespace {

constexpr double msecsPerDay = 86400000.0;
constexpr int lastYear = 9999;

qint64 epochJulianDay()
{
    return QDate(1970, 1, 1).toJulianDay();
}

std::optional<QDate> existing(int year, int month, int day)
{
    const QDate date(year, month, day);
    if (year < 1 || year > lastYear || !date.isValid())
        return std::nullopt;
    return date;
}

std::optional<QDate> dayOf(const QDateTime &moment)
{
    if (!moment.isValid())
        return std::nullopt;
    const QDate date = moment.toLocalTime().date();
    return existing(date.year(), date.month(), date.day());
}

/// Reads 1 to @p maxDigits ASCII digits; -1 for anything else. (QString::toInt takes signs, spaces
/// and leading zeros without end.)
int number(QStringView text, qsizetype maxDigits)
{
    if (text.isEmpty() || text.size() > maxDigits)
        return -1;
    int value = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

std::optional<QDate> parseShort(QStringView text)
{
    const qsizetype first = text.indexOf(u'/');
    const qsizetype second = first < 0 ? -1 : text.indexOf(u'/', first + 1);
    if (second < 0)
        return std::nullopt;
    return existing(number(text.sliced(second + 1), 4), number(text.sliced(0, first), 2),
                    number(text.sliced(first + 1, second - first - 1), 2));
}

std::optional<QDate> parseSql(QStringView text)
{
    if (text.size() != 8)
        return std::nullopt;
    return existing(number(text.first(4), 4), number(text.sliced(4, 2), 2),
                    number(text.last(2), 2));
}

QString formatShort(QDate date)
{
    return QStringLiteral("%1/%2/%3").arg(date.month()).arg(date.day()).arg(date.year());
}

QString formatSql(QDate date)
{
    return QStringLiteral("%1").arg(date.year() * 10000 + date.month() * 100 + date.day(), 8, 10,
                                    QLatin1Char('0'));
}

/// The locale of dates as POSIX chooses it; the C locale writes dates as American English does.
QByteArray userLocale()
{
    for (const char *name : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (value.isEmpty())
            continue;
        const bool plain = value == "C" || value == "POSIX" || value.startsWith("C.");
        return plain ? QByteArray("en_US") : value;
    }
    return "en_US";
}

} // namespace

/// ICU's long date style. Making one takes hundreds of times as long as using it, so it is made
/// once; it reckons in UTC days, which keeps summer time out of it. The lock is there because ICU's
/// formatters are not thread-safe even where they are const.
class Dates::LongStyle
{
public:
    explicit LongStyle(const QByteArray &localeName)
    {
        icu::Locale locale = icu::Locale::createCanonical(localeName.constData());
        if (locale.isBogus())
            locale = icu::Locale::getUS();
        m_format.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kLong, locale));
        if (!m_format) {
            qCWarning(lcBase, "no long date style for locale %s", localeName.constData());
            return;
        }
        m_format->setTimeZone(*icu::TimeZone::getGMT());
        m_format->setLenient(false);
    }

    QString format(QDate date)
    {
        const std::scoped_lock lock(m_mutex);
        return m_format ? write(double(date.toJulianDay() - epochJulianDay()) * msecsPerDay)
                        : QString();
    }

    std::optional<QDate> parse(const QString &text)
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_format || text.isEmpty())
            return std::nullopt;
        const icu::UnicodeString source(false, text.utf16(), int32_t(text.size()));
        icu::ParsePosition end(0);
        const UDate moment = m_format->parse(source, end);
        // ICU overlooks case, missing dots and extra white space even when it is not lenient;
        // writing the day again tells.
        if (end.getIndex() != source.length() || write(moment) != text)
            return std::nullopt;
        const QDate date = QDate::fromJulianDay(qint64(moment / msecsPerDay) + epochJulianDay());
        return existing(date.year(), date.month(), date.day());
    }

private:
    QString write(UDate moment) const
    {
        icu::UnicodeString text;
        m_format->format(moment, text);
        return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
    }

    std::mutex m_mutex;
    std::unique_ptr<icu::DateFormat> m_format;
};

Dates::Dates(const QString &localeName)
    : m_long(std::make_shared<LongStyle>(localeName.isEmpty() ? userLocale() : localeName.toUtf8()))
{ }

QString Dates::shortDate(const QDateTime &moment) const
{
    const auto day = dayOf(moment);
    return day ? formatShort(*day) : QString();
}

QString Dates::longDate(const QDateTime &moment) const
{
    const auto day = dayOf(moment);
    return day ? m_long->format(*day) : QString();
}

std::optional<QDateTime> Dates::dateFromLocalString(const QString &localDate) const
{
    const auto day = m_long->parse(localDate);
    return day ? std::optional(day->startOfDay()) : std::nullopt;
}

std::optional<QDateTime> Dates::dateFromShortString(const QString &shortDate) const
{
    const auto day = parseShort(shortDate);
    return day ? std::optional(day->startOfDay()) : std::nullopt;
}

QString Dates::shortDateFromLocalDate(const QString &localDate) const
{
    const auto day = m_long->parse(localDate);
    return day ? formatShort(*day) : QString();
}

QString Dates::localDateFromShortDate(const QString &shortDate) const
{
    const auto day = parseShort(shortDate);
    return day ? m_long->format(*day) : QString();
}

QString Dates::sqlDateFromShortDate(const QString &shortDate) const
{
    const auto day = parseShort(shortDate);
    return day ? formatSql(*day) : QString();
}

QString Dates::localDateFromSqlDate(const QString &sqlDate) const
{
    const auto day = parseSql(sqlDate);
    return day ? m_long->format(*day) : QString();
}

} // namespace moravel
