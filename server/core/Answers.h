// SPDX-License-Identifier: MIT
// The texts that the application reads: one value a line.
#pragma once

#include "server/core/SourceList.h"

namespace moravel::server {

/// Absolute addresses of what belongs to a source and day: those elsewhere where there are some,
/// else our own below @p baseUrl (no slash at its end).
class DayLinks
{
public:
    DayLinks(QString baseUrl, QString shortName, QDate date);
    QString page(const DayPicture &day) const;
    QString thumb(const DayPicture &day) const;
    QString normal(const DayPicture &day) const;
    QString full(const DayPicture &day) const;

private:
    QString picture(const QString &elsewhere, const QString &suffix) const;

    QString m_baseUrl;
    QString m_shortName;
    QDate m_date;
};

/// A line for each source: long name, tab, short name.
QString sourcesAnswer(const SourceList &sources);

/// Seven lines: page, caption, thumbnail, normal picture, full-size picture,
/// "width,height,megabytes" of the full-size picture, information ending with the credit and a link
/// to the page, called @p siteName. Caption and information are HTML.
QString allAnswer(const DayLinks &links, const DayPicture &day, const QString &siteName);

/// Two lines: caption and information as in allAnswer().
QString captionAnswer(const DayLinks &links, const DayPicture &day, const QString &siteName);

/// The line that stands for all lines when there is no picture.
QString errorAnswer(const Unavailable &why);

} // namespace moravel::server
