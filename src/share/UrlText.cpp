// SPDX-License-Identifier: MIT
#include "share/UrlText.h"

#include <QUrl>

namespace moravel {

namespace {

// The longest beginning that takes at most that many escaped bytes, an ellipsis included.
QString cutToFit(const QString &text, qsizetype bytes)
{
    const QString ellipsis(QChar(0x2026));
    qsizetype room = bytes - percentEscaped(ellipsis).size();
    qsizetype end = 0;
    while (end < text.size()) {
        const bool isPair = text[end].isHighSurrogate() && end + 1 < text.size();
        const QString next = text.sliced(end, isPair ? 2 : 1);
        room -= percentEscaped(next).size();
        if (room < 0)
            break;
        end += next.size();
    }
    return text.first(end) + ellipsis;
}

} // namespace

QString percentEscaped(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QString fittedUrl(const QString &text, const std::function<QString(const QString &text)> &build)
{
    const QString url = build(text);
    if (url.size() <= LongestUrl)
        return url;
    return build(cutToFit(text, LongestUrl - url.size() + percentEscaped(text).size()));
}

QString inOneLine(QString text)
{
    for (QChar &c : text) {
        const QChar::Category category = c.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line
            || category == QChar::Separator_Paragraph)
            c = u' ';
    }
    return text;
}

} // namespace moravel
