// SPDX-License-Identifier: MIT
#include "text/HTMLText.h"

#include "text/CharacterSets.h"
#include "text/GTMNSString+HTML.h"

#include <algorithm>
#include <array>
#include <utility>

namespace moravel {
namespace {

constexpr std::array<QLatin1String, 11> inlineTagNames{
    QLatin1String("a"),    QLatin1String("b"),       QLatin1String("i"),      QLatin1String("q"),
    QLatin1String("span"), QLatin1String("em"),      QLatin1String("strong"), QLatin1String("cite"),
    QLatin1String("abbr"), QLatin1String("acronym"), QLatin1String("label")};

constexpr std::array<QStringView, 8> tagsStrippedToNothing{
    u"<a>", u"</a>", u"<span>", u"</span>", u"<strong>", u"</strong>", u"<em>", u"</em>"};

// A forward pass over the input that writes a result no longer than it: the room is taken once.
class Pass
{
public:
    explicit Pass(QStringView input)
        : m_input(input), m_result(input.size(), Qt::Uninitialized), m_out(m_result.data())
    { }

    bool atEnd() const { return m_at == m_input.size(); }

    char16_t current() const { return m_input[m_at].unicode(); }

    template <typename Predicate>
    void copyUntil(Predicate stop)
    {
        while (!atEnd() && !stop(current()))
            *m_out++ = m_input[m_at++];
    }

    template <typename Predicate>
    QStringView takeWhile(Predicate wanted)
    {
        const qsizetype from = m_at;
        while (!atEnd() && wanted(current()))
            ++m_at;
        return m_input.sliced(from, m_at - from);
    }

    bool skipIfNext(QStringView text)
    {
        if (!m_input.sliced(m_at).startsWith(text))
            return false;
        m_at += text.size();
        return true;
    }

    // Skips through the next \a text; all the rest when there is none.
    QStringView takeThrough(QStringView text)
    {
        const qsizetype from = m_at;
        const qsizetype found =
            text.size() == 1 ? m_input.indexOf(text.front(), m_at) : m_input.indexOf(text, m_at);
        m_at = found < 0 ? m_input.size() : found + text.size();
        return m_input.sliced(from, m_at - from);
    }

    void append(QStringView text) { m_out = std::copy(text.begin(), text.end(), m_out); }

    // Appends the space that parts two words, which needs a word before and input behind.
    void appendSpaceBetweenWords()
    {
        if (m_out != m_result.constData() && !atEnd())
            *m_out++ = u' ';
    }

    QString takeResult()
    {
        m_result.truncate(m_out - m_result.constData());
        return std::move(m_result);
    }

private:
    QStringView m_input;
    QString m_result;
    QChar *m_out;
    qsizetype m_at = 0;
};

bool isInlineTagName(QStringView name)
{
    return std::ranges::any_of(inlineTagNames, [name](QLatin1String inlineName) {
        return name.size() == inlineName.size()
            && name.compare(inlineName, Qt::CaseInsensitive) == 0;
    });
}

// The pass stands behind a "<". Whether a space comes is settled before the ">" is passed, so a
// closing tag at the very end still leaves one.
void skipMarkup(Pass &pass)
{
    if (pass.skipIfNext(u"!--")) {
        pass.takeThrough(u"-->");
        return;
    }
    if (pass.skipIfNext(u"/") && !isInlineTagName(pass.takeWhile(isHTMLTagNameLetter)))
        pass.appendSpaceBetweenWords();
    pass.takeThrough(u">");
}

} // namespace

QString stringByConvertingHTMLToPlainText(QStringView html)
{
    Pass pass(html);
    while (true) {
        pass.copyUntil([](char16_t unit) { return unit == u'<' || isHTMLWhiteSpace(unit); });
        if (pass.atEnd())
            break;
        if (pass.skipIfNext(u"<")) {
            skipMarkup(pass);
        } else {
            pass.takeWhile(isHTMLWhiteSpace);
            pass.appendSpaceBetweenWords();
        }
    }
    QString result = pass.takeResult();
    unescapeHTMLInPlace(result); // last, so that "&lt;b&gt;" survives as text
    return result;
}

QString stringByDecodingHTMLEntities(QStringView text)
{
    return gtm_stringByUnescapingFromHTML(text);
}

QString stringByEncodingHTMLEntities(QStringView text)
{
    return gtm_stringByEscapingForAsciiHTML(text);
}

QString stringWithNewLinesAsBRs(QStringView text)
{
    QString result;
    result.reserve(text.size());
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype from = at;
        while (at < text.size() && !isHTMLNewline(text[at].unicode()))
            ++at;
        result += text.sliced(from, at - from);
        if (text.sliced(at).startsWith(u"\r\n")) {
            at += 2;
            result += u"<br />";
            continue;
        }
        for (; at < text.size() && isHTMLNewline(text[at].unicode()); ++at)
            result += u"<br />";
    }
    return result;
}

QString stringByRemovingNewLinesAndWhitespace(QStringView text)
{
    Pass pass(text);
    while (!pass.atEnd()) {
        pass.copyUntil(isHTMLWhiteSpace);
        if (!pass.takeWhile(isHTMLWhiteSpace).isEmpty())
            pass.appendSpaceBetweenWords();
    }
    return pass.takeResult();
}

// Tags are told apart by their text: what lies between one ">" and the next holds at most one of
// them, from its first "<" on, so one pass replaces the same as replacing each distinct tag
// everywhere, longest first.
QString stringByStrippingTags(QStringView html)
{
    if (!html.contains(u'<'))
        return html.toString();
    Pass pass(html);
    while (true) {
        pass.copyUntil([](char16_t unit) { return unit == u'<'; });
        if (pass.atEnd())
            break;
        const QStringView tag = pass.takeThrough(u">");
        if (!tag.endsWith(u'>'))
            pass.append(tag); // unclosed: stays
        else if (std::ranges::find(tagsStrippedToNothing, tag) == tagsStrippedToNothing.end())
            pass.append(u" ");
    }
    return stringByRemovingNewLinesAndWhitespace(pass.takeResult());
}

} // namespace moravel
