// SPDX-License-Identifier: MIT
// The texts that the application reads: one value a line.
#pragma once

#include "server/core/SourceList.h"

namespace moravel::server {

/// Absolute addresses of what belongs to a source and day, below @p baseUrl (no slash at its end).
struct DayLinks
{
    DayLinks(QString baseUrl, QString shortName, QDate date);
    QString page() const;
    QString picture(const QString &suffix) const;

private:
    QString m_baseUrl;
    QString m_shortName;
    QDate m_date;
};

/// A line for each source: long name, tab, short name.
QString sourcesAnswer(const SourceList &sources);

/// Seven lines: page, caption, thumbnail, normal picture, full-size picture,
/// "width,height,megabytes" of the full-size picture, information ending with the credit. Caption
/// and information are HTML.
QString allAnswer(const DayLinks &links, const DayPicture &day);

/// Two lines: caption and information as in allAnswer().
QString captionAnswer(const DayPicture &day);

/// The line that stands for all lines when there is no picture.
QString errorAnswer(const Unavailable &why);

} // namespace moravel::server
