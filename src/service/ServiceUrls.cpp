// SPDX-License-Identifier: MIT
#include "service/ServiceUrls.h"

namespace moravel {

namespace {

QString escapedDay(QString day)
{
    return day.replace(u'/', QLatin1String("%2F"));
}

const QLatin1String Refresh("&refresh=true");

} // namespace

ServiceUrls::ServiceUrls(QString base) : m_base(std::move(base))
{ }

QString ServiceUrls::query(const QString &option, const QString &shortSource,
                           const QString &day) const
{
    return QStringLiteral("%1/defs/moravel.irev?option=%2&source=%3&date=%4")
        .arg(m_base, option, shortSource, day);
}

QString ServiceUrls::sources() const
{
    return m_base + QLatin1String("/defs/getSources.irev");
}

QString ServiceUrls::news(const QDateTime &moment) const
{
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    return QStringLiteral("%1/defs/getNews.irev?timestamp=%2")
        .arg(m_base, QString::number(reference.secsTo(moment)));
}

QString ServiceUrls::all(const QString &shortSource, const QString &day) const
{
    return query(QStringLiteral("all"), shortSource, escapedDay(day));
}

QString ServiceUrls::refreshAll(const QString &shortSource, const QString &day) const
{
    return all(shortSource, day) + Refresh;
}

QString ServiceUrls::parent(const QString &shortSource, const QString &day) const
{
    return query(QStringLiteral("parent"), shortSource, day);
}

QString ServiceUrls::thumb(const QString &shortSource, const QString &day) const
{
    return query(QStringLiteral("thumb"), shortSource, day);
}

QString ServiceUrls::captionPlusText(const QString &shortSource, const QString &day) const
{
    return query(QStringLiteral("captionPlusText"), shortSource, day) + Refresh;
}

} // namespace moravel
