// SPDX-License-Identifier: MIT
// Names of the files and pages that are served. Clients store a picture under the last part of its
// link, so each name is unique over all sources, days and sizes.
#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace moravel::server {

inline constexpr QLatin1StringView thumbSuffix("thumb.jpg");
inline constexpr QLatin1StringView normalSuffix("1920x1080.jpg");
inline constexpr QLatin1StringView pageSuffix("page.html");

/// The parts of "moon-20260101-thumb.jpg".
struct PictureName
{
    QString slug; ///< The source's short name in lower case.
    QDate date;
    QString suffix;
};

/// "moon-20260101-thumb.jpg" for the source "Moon".
QString pictureName(const QString &shortName, QDate date, const QString &suffix);

/// Takes a name apart again; none when it is no such name.
std::optional<PictureName> parsePictureName(const QString &name);

} // namespace moravel::server
