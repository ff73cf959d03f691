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

QString infoLine(const DayPicture &day)
{
    return escaped(oneLine(day.info + u' ' + day.credit, longestInfo));
}

} // namespace

DayLinks::DayLinks(QString baseUrl, QString shortName, QDate date)
    : m_baseUrl(std::move(baseUrl)), m_shortName(std::move(shortName)), m_date(date)
{ }

QString DayLinks::page() const
{
    return m_baseUrl + QLatin1StringView("/pages/") + pictureName(m_shortName, m_date, pageSuffix);
}

QString DayLinks::picture(const QString &suffix) const
{
    return m_baseUrl + QLatin1StringView("/pictures/") + pictureName(m_shortName, m_date, suffix);
}

QString sourcesAnswer(const SourceList &sources)
{
    QString answer;
    for (const auto &source : sources.all())
        answer += oneLine(source->longName(), longestCaption) + u'\t' + source->shortName() + u'\n';
    return answer;
}

QString allAnswer(const DayLinks &links, const DayPicture &day)
{
    const QString size = QStringLiteral("%1,%2,%3")
                             .arg(day.fullSize.width())
                             .arg(day.fullSize.height())
                             .arg(day.fullMegabytes, 0, 'f', 2);
    const QStringList lines{links.page(),
                            captionLine(day),
                            links.picture(thumbSuffix),
                            links.picture(normalSuffix),
                            links.picture(day.fullSuffix),
                            size,
                            infoLine(day)};
    return lines.join(u'\n') + u'\n';
}

QString captionAnswer(const DayPicture &day)
{
    return captionLine(day) + u'\n' + infoLine(day) + u'\n';
}

QString errorAnswer(const Unavailable &why)
{
    return QStringLiteral("Error: %1\n").arg(oneLine(why.message, longestCaption));
}

} // namespace moravel::server
