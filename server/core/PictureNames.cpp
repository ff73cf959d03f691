// SPDX-License-Identifier: MIT
#include "server/core/PictureNames.h"

#include <QRegularExpression>

namespace moravel::server {

namespace {

const QString dateForm = QStringLiteral("yyyyMMdd");

}

QString pictureName(const QString &shortName, QDate date, const QString &suffix)
{
    return QStringLiteral("%1-%2-%3").arg(shortName.toLower(), date.toString(dateForm), suffix);
}

std::optional<PictureName> parsePictureName(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("\\A([a-z]{1,32})-([0-9]{8})-([a-z0-9]{1,16}\\.[a-z0-9]{1,5})\\z"));
    constexpr int longest = 80;
    if (name.size() > longest)
        return std::nullopt;
    const auto match = form.match(name);
    const QDate date = QDate::fromString(match.captured(2), dateForm);
    if (!match.hasMatch() || !date.isValid())
        return std::nullopt;
    return PictureName{match.captured(1), date, match.captured(3)};
}

} // namespace moravel::server
