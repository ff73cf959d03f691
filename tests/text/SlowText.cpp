// SPDX-License-Identifier: MIT
#include "text/SlowText.h"

#include "text/HTMLEscapeTables.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace moravel::testing {
namespace {

const QString whiteSpace = QStringLiteral(" \t\n\r\u0085\f\u2028\u2029");

qsizetype nextOf(const QString &set, const QString &text, qsizetype from)
{
    while (from < text.size() && !set.contains(text.at(from)))
        ++from;
    return from;
}

qsizetype endOfRun(const QString &set, const QString &text, qsizetype from)
{
    while (from < text.size() && set.contains(text.at(from)))
        ++from;
    return from;
}

qsizetype behind(const QString &what, const QString &text, qsizetype from)
{
    const qsizetype found = text.indexOf(what, from);
    return found < 0 ? text.size() : found + what.size();
}

int slowUnit(const QString &candidate)
{
    static const QRegularExpression hexadecimal(
        QStringLiteral("\\A&#[xX][ \\t\\n\\r\\x{85}\\f\\x{2028}\\x{2029}]*([0-9A-Fa-f]+);\\z"));
    static const QRegularExpression decimal(
        QStringLiteral("\\A&#[ \\t\\n\\r\\x{85}\\f\\x{2028}\\x{2029}]*([+-]?[0-9]+);\\z"));
    if (candidate.at(1) != u'#') {
        for (const HTMLEscapeRow &row : fullHTMLEscapeTable) {
            if (candidate == QStringView(row.entity))
                return row.unit;
        }
        return 0;
    }
    const bool isHexadecimal = candidate.at(2).toLower() == u'x';
    const auto match = (isHexadecimal ? hexadecimal : decimal).match(candidate);
    const int value =
        match.hasMatch() ? match.captured(1).toInt(nullptr, isHexadecimal ? 16 : 10) : 0;
    return value >= 1 && value <= 65534 ? value : 0;
}

} // namespace

QString slowlyUnescaped(const QString &text)
{
    QString copy = text;
    for (qsizetype limit = text.size(); limit > 0;) {
        const qsizetype start = text.lastIndexOf(u'&', limit - 1);
        if (start < 0)
            break;
        const qsizetype end = text.indexOf(u';', start);
        const qsizetype length = end - start + 1;
        if (end >= 0 && end < limit && length >= 4 && length <= 10) {
            if (const int unit = slowUnit(text.mid(start, length)))
                copy.replace(start, length, QChar(unit));
        }
        limit = start;
    }
    return copy;
}

QString slowlyPlainText(const QString &html)
{
    static const QStringList inlineNames =
        QStringLiteral("a b i q span em strong cite abbr acronym label").split(u' ');
    const QString stops = u'<' + whiteSpace;
    QString result;
    qsizetype at = 0;
    const auto appendSpace = [&] {
        if (!result.isEmpty() && at < html.size())
            result += u' ';
    };
    while (at < html.size()) {
        const qsizetype stop = nextOf(stops, html, at);
        result += html.mid(at, stop - at);
        at = stop;
        if (at == html.size())
            break;
        if (html.at(at) != u'<') {
            at = endOfRun(whiteSpace, html, at);
            appendSpace();
            continue;
        }
        ++at;
        if (html.mid(at, 3) == u"!--") {
            at = behind(QStringLiteral("-->"), html, at + 3);
            continue;
        }
        if (at < html.size() && html.at(at) == u'/') {
            QString name;
            for (++at; at < html.size() && html.at(at).unicode() < 128 && html.at(at).isLetter();
                 ++at)
                name += html.at(at).toLower();
            if (!inlineNames.contains(name))
                appendSpace();
        }
        at = behind(QStringLiteral(">"), html, at);
    }
    return slowlyUnescaped(result);
}

QString slowlyWithoutWhiteSpace(const QString &text)
{
    QString spaced = text;
    for (const QChar unit : whiteSpace)
        spaced.replace(unit, u' ');
    return spaced.split(u' ', Qt::SkipEmptyParts).join(u' ');
}

QString slowlyStrippedOfTags(const QString &html)
{
    static const QStringList removed =
        QStringLiteral("<a> </a> <span> </span> <strong> </strong> <em> </em>").split(u' ');
    if (!html.contains(u'<'))
        return html;
    QSet<QString> tags;
    for (qsizetype at = nextOf(QStringLiteral("<"), html, 0); at < html.size();) {
        const qsizetype end = nextOf(QStringLiteral(">"), html, at);
        tags.insert(html.mid(at, end - at) + u'>');
        at = nextOf(QStringLiteral("<"), html, end);
    }
    QStringList longestFirst = tags.values();
    std::ranges::sort(longestFirst, std::greater{}, [](const QString &tag) { return tag.size(); });
    QString stripped = html;
    for (const QString &tag : longestFirst)
        stripped.replace(tag, removed.contains(tag) ? QString() : QStringLiteral(" "));
    return slowlyWithoutWhiteSpace(stripped);
}

} // namespace moravel::testing
