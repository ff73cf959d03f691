// SPDX-License-Identifier: MIT
#include "platform/linux/session/NotificationText.h"

#include <QStringList>

namespace moravel {

namespace {

constexpr qsizetype LongestTitle = 200; // characters
constexpr qsizetype LongestBody = 1000; // characters before escaping
constexpr qsizetype MostLines = 10;
constexpr qsizetype LongestRead = 8 * LongestBody; // what is looked at of a text without end

// A cut never leaves half of a surrogate pair.
QString cut(const QString &text, qsizetype longest)
{
    if (text.size() <= longest)
        return text;
    const qsizetype end = longest - 1;
    return text.left(text.at(end - 1).isHighSurrogate() ? end - 1 : end) + QChar(0x2026);
}

// Control characters are not allowed in markup, and no service has a use for them.
QString oneLine(QStringView text)
{
    QString line;
    for (const QChar c : text)
        line += c.category() == QChar::Other_Control || c.isNonCharacter() ? QChar(u' ') : c;
    return line.simplified();
}

QString withoutLoneSurrogates(const QString &text)
{
    return QString::fromUtf8(text.toUtf8());
}

} // namespace

QString notificationTitle(const QString &text)
{
    return cut(withoutLoneSurrogates(oneLine(QStringView(text).left(LongestRead))), LongestTitle);
}

QString notificationBody(const QString &text, BodyFormat format)
{
    QStringList lines;
    for (const QStringView part : QStringView(text).left(LongestRead).split(u'\n')) {
        const QString line = oneLine(part);
        if (lines.size() < MostLines && !line.isEmpty())
            lines.append(line);
    }
    const QString body = cut(withoutLoneSurrogates(lines.join(u'\n')), LongestBody);
    if (format == BodyFormat::Plain)
        return body;
    QString escaped = body;
    return escaped.replace(u'&', QLatin1String("&amp;"))
        .replace(u'<', QLatin1String("&lt;"))
        .replace(u'>', QLatin1String("&gt;"));
}

} // namespace moravel
