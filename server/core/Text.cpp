// SPDX-License-Identifier: MIT
#include "server/core/Text.h"

#include <QRegularExpression>

namespace moravel::server {

QString escaped(const QString &text)
{
    QString out = text.toHtmlEscaped();
    out.replace(u'\'', QLatin1StringView("&#39;"));
    return out;
}

QString oneLine(const QString &text, qsizetype longest)
{
    QString out = text.left(2 * longest);
    for (QChar &c : out) {
        if (!c.isPrint() && !c.isSurrogate())
            c = u' ';
    }
    out = out.simplified();
    if (out.size() <= longest)
        return out;
    out.truncate(longest - 1);
    if (out.back().isHighSurrogate())
        out.chop(1);
    return out + QChar(0x2026);
}

bool isPlainHost(const QByteArray &host)
{
    static const QRegularExpression form(
        QStringLiteral("\\A(?:[A-Za-z0-9](?:[A-Za-z0-9.-]{0,251}[A-Za-z0-9])?|\\[[0-9A-Fa-f:.]{2,"
                       "45}\\])(?::([0-9]{1,5}))?\\z"));
    constexpr int longest = 260;
    if (host.size() > longest)
        return false;
    const auto match = form.match(QString::fromLatin1(host));
    constexpr int maxPort = 65535;
    return match.hasMatch() && match.captured(1).toInt() <= maxPort;
}

} // namespace moravel::server
