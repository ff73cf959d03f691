// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/FileUrls.h"

#include <QByteArray>
#include <QUrl>

namespace moravel {

QString fileUrl(const QString &path)
{
    if (!path.startsWith(u'/') || path.contains(QChar(u'\0')))
        return {};
    return QLatin1String("file://localhost")
        + QString::fromLatin1(QUrl::toPercentEncoding(path, QByteArrayLiteral("/")));
}

QString pathOfUrl(const QString &text)
{
    if (text.startsWith(u'/'))
        return text.contains(QChar(u'\0')) ? QString() : text;
    if (!text.startsWith(QLatin1String("file:"), Qt::CaseInsensitive))
        return {};
    QString rest = text.mid(5);
    if (rest.startsWith(QLatin1String("//"))) {
        const qsizetype afterHost = rest.indexOf(u'/', 2);
        rest = afterHost < 0 ? QString() : rest.mid(afterHost);
    }
    const QString path = QUrl::fromPercentEncoding(rest.toUtf8());
    return path.startsWith(u'/') && !path.contains(QChar(u'\0')) ? path : QString();
}

QString folderUrlOf(const QString &path)
{
    return fileUrl(path.left(path.lastIndexOf(u'/') + 1));
}

} // namespace moravel
