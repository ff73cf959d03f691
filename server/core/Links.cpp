// SPDX-License-Identifier: MIT
#include "server/core/Links.h"

#include <QRegularExpression>

namespace moravel::server {

bool isUsableLink(const QUrl &url)
{
    // A name of letters, digits and a few marks, not one that many pictures have.
    static const QRegularExpression name(
        QStringLiteral("\\A[A-Za-z0-9][A-Za-z0-9._-]{7,119}\\.(?:jpe?g|png|webp)\\z"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression common(
        QStringLiteral(
            "\\A(?:default|original|thumbnail|fullsize|wallpaper|background)[0-9._-]*\\."),
        QRegularExpression::CaseInsensitiveOption);
    const QString address = webAddress(url);
    const QString last = url.path(QUrl::FullyEncoded).section(u'/', -1);
    return !address.isEmpty() && !url.hasQuery()
        && address.lastIndexOf(QLatin1StringView("http")) == 0 && name.match(last).hasMatch()
        && !common.match(last).hasMatch();
}

QString webAddress(const QUrl &url)
{
    constexpr qsizetype longest = 2000;
    const bool web = url.isValid() && (url.scheme() == u"http" || url.scheme() == u"https")
        && !url.host().isEmpty() && url.userInfo().isEmpty();
    const QByteArray address = web ? url.toEncoded() : QByteArray();
    return address.size() <= longest ? QString::fromLatin1(address) : QString();
}

} // namespace moravel::server
