// SPDX-License-Identifier: MIT
#include "server/sources/net/Html.h"

#include "server/core/Text.h"

#include "text/HTMLText.h"

#include <QRegularExpression>

namespace moravel::server {

namespace {

constexpr qsizetype longestHtml = 1 << 20;
constexpr qsizetype longestText = 65'536; ///< More of it is never shown.

/// Calls @p take with the text of each tag of a name, without its angle brackets, until it is false.
template <typename Take>
void eachTag(const QString &html, QLatin1StringView name, Take take)
{
    const QString start = u'<' + name;
    for (qsizetype at = html.indexOf(start, 0, Qt::CaseInsensitive); at >= 0 && at < longestHtml;
         at = html.indexOf(start, at + 1, Qt::CaseInsensitive)) {
        constexpr qsizetype longestTag = 8192;
        const qsizetype end = html.indexOf(u'>', at);
        const QChar next = html.size() > at + start.size() ? html.at(at + start.size()) : QChar();
        if (end < 0)
            return;
        if (next.isSpace() && end - at < longestTag && !take(html.mid(at + 1, end - at - 1)))
            return;
    }
}

} // namespace

QString plainText(const QString &html)
{
    return oneLine(stringByConvertingHTMLToPlainText(html.left(longestText)), longestText);
}

QString attributeOf(const QString &tag, const QString &name)
{
    const QRegularExpression form(
        QStringLiteral("\\s%1\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)'|([^\\s\"'>]+))").arg(name),
        QRegularExpression::CaseInsensitiveOption);
    const auto match = form.match(tag);
    for (int group = 1; group <= 3; ++group) {
        if (!match.captured(group).isEmpty())
            return stringByDecodingHTMLEntities(match.captured(group)).trimmed();
    }
    return {};
}

std::vector<QUrl> imagesIn(const QString &html, const QUrl &base)
{
    constexpr std::size_t most = 50;
    std::vector<QUrl> images;
    eachTag(html, QLatin1StringView("img"), [&](const QString &tag) {
        const QString source = attributeOf(tag, QStringLiteral("src"));
        if (!source.isEmpty())
            images.push_back(base.resolved(QUrl(source)));
        return images.size() < most;
    });
    return images;
}

QString metaContent(const QString &html, const QString &property)
{
    QString content;
    eachTag(html, QLatin1StringView("meta"), [&](const QString &tag) {
        if (attributeOf(tag, QStringLiteral("property")) == property
            || attributeOf(tag, QStringLiteral("name")) == property)
            content = attributeOf(tag, QStringLiteral("content"));
        return content.isEmpty();
    });
    return content;
}

} // namespace moravel::server
