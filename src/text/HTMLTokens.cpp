// SPDX-License-Identifier: MIT
#include "text/HTMLTokens.h"

#include "text/CharacterSets.h"
#include "text/HTMLReference.h"

#include <algorithm>

namespace moravel {
namespace {

constexpr bool isQuote(QChar unit)
{
    return unit == u'"' || unit == u'\'';
}

constexpr bool isTagNameUnit(char16_t unit)
{
    return isHTMLTagNameLetter(unit) || (unit >= u'0' && unit <= u'9');
}

// "&#128512;": what unitOfHTMLReference() cannot give, as it takes two units.
char32_t characterBeyondUnits(QStringView reference)
{
    if (reference[1] != u'#')
        return 0;
    const bool isHexadecimal = reference[2] == u'x' || reference[2] == u'X';
    const QStringView digits = reference.sliced(isHexadecimal ? 3 : 2).chopped(1);
    bool isNumber = false;
    const char32_t value = digits.toUInt(&isNumber, isHexadecimal ? 16 : 10);
    return isNumber && value > 0xFFFF && value <= QChar::LastValidCodePoint ? value : 0;
}

// A forward pass over the attributes of one tag.
class Attributes
{
public:
    explicit Attributes(QStringView text) : m_text(text) { }

    bool atEnd() const { return m_at == m_text.size(); }

    template <typename Predicate>
    QStringView takeWhile(Predicate wanted)
    {
        const qsizetype from = m_at;
        while (!atEnd() && wanted(m_text[m_at]))
            ++m_at;
        return m_text.sliced(from, m_at - from);
    }

    bool skipIfNext(QChar unit)
    {
        const bool isNext = !atEnd() && m_text[m_at] == unit;
        m_at += isNext ? 1 : 0;
        return isNext;
    }

    void skipSpace()
    {
        takeWhile([](QChar unit) { return isHTMLWhiteSpace(unit.unicode()); });
    }

    QStringView takeValue()
    {
        for (const QChar quote : {u'"', u'\''}) {
            if (!skipIfNext(quote))
                continue;
            const QStringView value = takeWhile([quote](QChar unit) { return unit != quote; });
            skipIfNext(quote);
            return value;
        }
        return takeWhile([](QChar unit) { return !isHTMLWhiteSpace(unit.unicode()); });
    }

private:
    QStringView m_text;
    qsizetype m_at = 0;
};

} // namespace

HTMLTokens::HTMLTokens(QStringView html) : m_html(html), m_lastGreater(html.lastIndexOf(u'>'))
{ }

std::optional<HTMLToken> HTMLTokens::next()
{
    while (m_at < m_html.size()) {
        if (!isTagAt(m_at)) {
            const qsizetype from = m_at++;
            while (m_at < m_html.size() && !isTagAt(m_at))
                ++m_at;
            return HTMLToken{HTMLToken::Kind::Text, m_html.sliced(from, m_at - from)};
        }
        if (m_html.sliced(m_at).startsWith(u"<!--"))
            skipThrough(u"-->");
        else if (m_html[m_at + 1] == u'!' || m_html[m_at + 1] == u'?')
            skipThrough(u">");
        else
            return takeTag();
    }
    return std::nullopt;
}

bool HTMLTokens::isTagAt(qsizetype at) const
{
    if (m_html[at] != u'<' || at >= m_lastGreater)
        return false;
    const char16_t next = m_html[at + 1].unicode();
    return next == u'!' || next == u'?' || isHTMLTagNameLetter(next)
        || (next == u'/' && isHTMLTagNameLetter(m_html[at + 2].unicode()));
}

HTMLToken HTMLTokens::takeTag()
{
    const bool isEnd = m_html[m_at + 1] == u'/';
    const qsizetype name = m_at + (isEnd ? 2 : 1);
    qsizetype behindName = name;
    while (isTagNameUnit(m_html[behindName].unicode())) // stopped by the ">" at the latest
        ++behindName;
    const qsizetype end = endOfTag(behindName);
    m_at = end + 1;
    return {isEnd ? HTMLToken::Kind::EndTag : HTMLToken::Kind::StartTag,
            m_html.sliced(name, behindName - name), m_html.sliced(behindName, end - behindName)};
}

// Where no quote ends what one has begun, the first ">" counts; there is one.
qsizetype HTMLTokens::endOfTag(qsizetype from) const
{
    for (qsizetype at = from; at < m_html.size(); ++at) {
        if (m_html[at] == u'>')
            return at;
        if (!isQuote(m_html[at]))
            continue;
        at = m_html.indexOf(m_html[at], at + 1);
        if (at < 0)
            break;
    }
    return m_html.indexOf(u'>', from);
}

void HTMLTokens::skipThrough(QStringView text)
{
    const qsizetype found = m_html.indexOf(text, m_at);
    m_at = found < 0 ? m_html.size() : found + text.size();
}

void HTMLTokens::skipPast(QStringView name)
{
    QString end = QStringLiteral("</");
    end += name;
    const qsizetype found = m_html.indexOf(end, m_at, Qt::CaseInsensitive);
    m_at = found < 0 ? m_html.size() : found;
}

QString decodedReferences(QStringView text)
{
    QString result;
    result.reserve(text.size());
    while (true) {
        const qsizetype start = text.indexOf(u'&');
        if (start < 0)
            break;
        result += text.first(start);
        text = text.sliced(start);
        const qsizetype length =
            text.first(std::min(text.size(), longestHTMLReference)).indexOf(u';') + 1;
        char32_t character = 0;
        if (length >= shortestHTMLReference) {
            const QStringView reference = text.first(length);
            character = unitOfHTMLReference(reference);
            if (character == 0)
                character = characterBeyondUnits(reference);
        }
        const qsizetype taken = character == 0 ? 1 : length;
        if (character == 0)
            result += u'&';
        else
            result += QString::fromUcs4(&character, 1);
        text = text.sliced(taken);
    }
    return result += text;
}

std::optional<QString> attributeValue(QStringView attributes, QLatin1String name)
{
    Attributes pass(attributes);
    const auto isBetween = [](QChar unit) {
        return isHTMLWhiteSpace(unit.unicode()) || unit == u'/' || unit == u'=' || isQuote(unit);
    };
    while (!pass.atEnd()) {
        pass.takeWhile(isBetween);
        const QStringView found = pass.takeWhile([&](QChar unit) { return !isBetween(unit); });
        pass.skipSpace();
        if (!pass.skipIfNext(u'='))
            continue;
        pass.skipSpace();
        const QStringView value = pass.takeValue();
        if (found.compare(name, Qt::CaseInsensitive) == 0)
            return decodedReferences(value);
    }
    return std::nullopt;
}

} // namespace moravel
