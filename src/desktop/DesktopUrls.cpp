// SPDX-License-Identifier: MIT
#include "desktop/DesktopUrls.h"

#include <QByteArray>
#include <QUrl>

namespace moravel {

namespace {

const QLatin1String FileHost("file://localhost");

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// QByteArray::fromPercentEncoding() makes bytes out of what is no escape, too.
QByteArray unescaped(const QByteArray &text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool room = text[i] == '%' && i + 2 < text.size();
        const int high = room ? hexDigit(text[i + 1]) : -1;
        const int low = room ? hexDigit(text[i + 2]) : -1;
        if (high < 0 || low < 0) {
            bytes.append(text[i]);
            continue;
        }
        bytes.append(static_cast<char>(high * 16 + low));
        i += 2;
    }
    return bytes;
}

} // namespace

QString withoutFileHost(const QString &url)
{
    QString path = url;
    return path.remove(FileHost);
}

QString desktopPathFromUrl(const QString &url)
{
    return QString::fromUtf8(unescaped(withoutFileHost(url).toUtf8()));
}

QString desktopUrlFromPath(const QString &path)
{
    return FileHost + QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
}

bool isDesktopFolder(const QString &path)
{
    return path.endsWith(u'/');
}

} // namespace moravel
