// SPDX-License-Identifier: MIT
#include "server/core/Answers.h"

#include "server/core/PictureNames.h"
#include "server/core/Text.h"

namespace moravel::server {

namespace {

constexpr qsizetype longestCaption = 300;
constexpr qsizetype longestInfo = 4000;

/// The application takes an empty caption, and one that begins with "No caption", for no picture.
QString captionLine(const DayPicture &day)
{
    const QString caption = oneLine(day.caption, longestCaption);
    const bool usable = !caption.isEmpty() && !caption.startsWith(QLatin1StringView("No caption"));
    return usable ? escaped(caption) : QStringLiteral("Untitled");
}

/// The application shows every underscore of the text as a blank, also in links.
QString linkInText(QString address)
{
    return escaped(address.replace(u'_', QLatin1StringView("%5F")));
}

QString infoLine(const DayLinks &links, const DayPicture &day, const QString &siteName)
{
    const QString text =
        oneLine(day.info, longestInfo) + u' ' + oneLine(day.credit, longestCaption);
    return QStringLiteral("%1 <a href=\"%2\">%3</a>")
        .arg(escaped(text.trimmed()), linkInText(links.page(day)),
             escaped(oneLine(siteName, longestCaption)));
}

} // namespace

DayLinks::DayLinks(QString baseUrl, QString shortName, QDate date)
    : m_baseUrl(std::move(baseUrl)), m_shortName(std::move(shortName)), m_date(date)
{ }

QString DayLinks::page(const DayPicture &day) const
{
    if (!day.elsewhere.page.isEmpty())
        return day.elsewhere.page;
    return m_baseUrl + QLatin1StringView("/pages/") + pictureName(m_shortName, m_date, pageSuffix);
}

QString DayLinks::thumb(const DayPicture &day) const
{
    return picture(day.elsewhere.thumb, thumbSuffix);
}

QString DayLinks::normal(const DayPicture &day) const
{
    return picture(day.elsewhere.normal, normalSuffix);
}

QString DayLinks::full(const DayPicture &day) const
{
    return picture(day.elsewhere.full, day.fullSuffix);
}

QString DayLinks::picture(const QString &elsewhere, const QString &suffix) const
{
    if (!elsewhere.isEmpty())
        return elsewhere;
    return m_baseUrl + QLatin1StringView("/pictures/") + pictureName(m_shortName, m_date, suffix);
}

QString sourcesAnswer(const SourceList &sources)
{
    QString answer;
    for (const auto &source : sources.all())
        answer += oneLine(source->longName(), longestCaption) + u'\t' + source->shortName() + u'\n';
    return answer;
}

QString allAnswer(const DayLinks &links, const DayPicture &day, const QString &siteName)
{
    const QString size = QStringLiteral("%1,%2,%3")
                             .arg(day.fullSize.width())
                             .arg(day.fullSize.height())
                             .arg(day.fullMegabytes, 0, 'f', 2);
    const QStringList lines{links.page(day),
                            captionLine(day),
                            links.thumb(day),
                            links.normal(day),
                            links.full(day),
                            size,
                            infoLine(links, day, siteName)};
    return lines.join(u'\n') + u'\n';
}

QString captionAnswer(const DayLinks &links, const DayPicture &day, const QString &siteName)
{
    return captionLine(day) + u'\n' + infoLine(links, day, siteName) + u'\n';
}

QString errorAnswer(const Unavailable &why)
{
    return QStringLiteral("Error: %1\n").arg(oneLine(why.message, longestCaption));
}

} // namespace moravel::server
