// SPDX-License-Identifier: MIT
#include "share/ShareTexts.h"

#include "share/UrlText.h"
#include "thumb/OriginalPage.h"

namespace moravel {

namespace {

QString title(const SharedPicture &picture)
{
    return QStringLiteral("%1 picture of the day for %2")
        .arg(picture.longSourceName, picture.dateString);
}

} // namespace

SharedPicture::SharedPicture(const ThumbView &cell)
    : shortSourceName(cell.shortSourceName())
    , longSourceName(cell.longSourceName())
    , dateString(cell.dateString())
    , captionString(cell.captionString())
    , page(originalPage(cell.shortSourceName(), cell.parentPath()))
{ }

QString clipboardText(const SharedPicture &picture)
{
    return title(picture) + QLatin1String(", shared using Moravel.");
}

QString facebookUrl(const QString &host, const SharedPicture &picture)
{
    return QStringLiteral("https://%1/sharer.php?u=%2&t=%3")
        .arg(host, percentEscaped(picture.page), percentEscaped(title(picture)));
}

QString twitterUrl(const QString &host, const SharedPicture &picture)
{
    return fittedUrl(picture.captionString, [&](const QString &caption) {
        const QString text = QStringLiteral("%1 - %2 PoD - %3, shared via Moravel.")
                                 .arg(caption, picture.longSourceName, picture.dateString);
        return QStringLiteral("http://%1/share?url=%2&text=%3")
            .arg(host, percentEscaped(picture.page), percentEscaped(text));
    });
}

QString emailUrl(const QString &home, const SharedPicture &picture)
{
    return fittedUrl(picture.captionString, [&](const QString &caption) {
        const QString body = QStringLiteral("%1, shared using Moravel <%2>.\n%3\n%4\n")
                                 .arg(title(picture), home, caption, picture.page);
        return QStringLiteral("mailto:?body=%1&subject=%2")
            .arg(percentEscaped(body), percentEscaped(inOneLine(title(picture))));
    });
}

} // namespace moravel
