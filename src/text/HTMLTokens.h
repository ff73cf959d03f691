// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace moravel {

/// A piece of HTML: a run of text, or a tag.
struct HTMLToken
{
    enum class Kind { Text, StartTag, EndTag };

    Kind kind = Kind::Text;
    QStringView text; ///< The run of text, references not decoded; or the tag's name as written.
    QStringView attributes = {}; ///< What stands between a tag's name and its end.
};

/// Takes HTML of any kind apart, forwards and in linear time. A "<" that begins no tag, or that no ">" follows, is text.
/// Comments and declarations are passed over; an unclosed one swallows the rest. Quotes in a tag
/// hide a ">", unless no quote ends them.
class HTMLTokens
{
public:
    explicit HTMLTokens(QStringView html);

    /// Returns the next piece; nothing at the end.
    std::optional<HTMLToken> next();

    /// Passes over everything up to the end tag of \a name, which comes next; over all the rest when
    /// there is none.
    void skipPast(QStringView name);

private:
    bool isTagAt(qsizetype at) const;
    HTMLToken takeTag();
    void skipThrough(QStringView text);
    qsizetype endOfTag(qsizetype from) const;

    QStringView m_html;
    qsizetype m_at = 0;
    qsizetype m_lastGreater; ///< Nothing behind it can be a tag.
};

/// Returns \a text with each character reference that it knows replaced, those beyond the Basic
/// Multilingual Plane included; all else stays as it is.
QString decodedReferences(QStringView text);

/// Returns the decoded value of the first attribute \a name; nothing when there is none.
std::optional<QString> attributeValue(QStringView attributes, QLatin1String name);

} // namespace moravel
