// SPDX-License-Identifier: MIT
#include "server/core/Days.h"

#include <QRegularExpression>

namespace moravel::server {

std::optional<QDate> parseDay(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("\\A([1-9][0-9]?)/([1-9][0-9]?)/([0-9]{4})\\z"));
    if (text.size() > 10)
        return std::nullopt;
    const auto match = form.match(text);
    const QDate day(match.captured(3).toInt(), match.captured(1).toInt(),
                    match.captured(2).toInt());
    if (!match.hasMatch() || !day.isValid())
        return std::nullopt;
    return day;
}

QDate latestDay(const QDateTime &now)
{
    constexpr int easternmostOffset = 14 * 3600;
    return now.toOffsetFromUtc(easternmostOffset).date();
}

} // namespace moravel::server
