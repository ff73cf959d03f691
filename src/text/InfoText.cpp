// SPDX-License-Identifier: MIT
#include "text/InfoText.h"

#include "text/CharacterSets.h"
#include "text/HTMLTokens.h"

#include <QHash>
#include <QUrl>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace moravel {
namespace {

constexpr qsizetype longestLink = 2048;
constexpr std::size_t deepestNesting = 6; // lists, their items, and quotes
constexpr qsizetype longestTagName = 10;

enum class Format { Bold, Italic, Underlined, Struck, Sub, Super, Small, Code, Count };

constexpr auto formatCount = static_cast<std::size_t>(Format::Count);

constexpr std::array<QLatin1String, formatCount> formatNames{
    QLatin1String("b"),   QLatin1String("i"),   QLatin1String("u"),     QLatin1String("s"),
    QLatin1String("sub"), QLatin1String("sup"), QLatin1String("small"), QLatin1String("code")};

// What a tag means to an info text. Those of other names mean nothing.
enum class Role {
    None,
    Format,
    Link,
    Break,
    Paragraph,
    Heading,
    List,
    Item,
    Quote,
    QuoteMarks,
    Lines,
    Line,
    Cell,
    Skipped
};

struct Meaning
{
    QLatin1String names = {}; // parted by spaces
    Role role = Role::None;
    Format format = Format::Count;
};

constexpr std::array meanings{
    Meaning{QLatin1String("b strong"), Role::Format, Format::Bold},
    Meaning{QLatin1String("i em cite dfn var"), Role::Format, Format::Italic},
    Meaning{QLatin1String("u ins"), Role::Format, Format::Underlined},
    Meaning{QLatin1String("s strike del"), Role::Format, Format::Struck},
    Meaning{QLatin1String("sub"), Role::Format, Format::Sub},
    Meaning{QLatin1String("sup"), Role::Format, Format::Super},
    Meaning{QLatin1String("small"), Role::Format, Format::Small},
    Meaning{QLatin1String("code tt kbd samp"), Role::Format, Format::Code},
    Meaning{QLatin1String("a"), Role::Link},
    Meaning{QLatin1String("br"), Role::Break},
    Meaning{QLatin1String("p"), Role::Paragraph},
    Meaning{QLatin1String("h1 h2 h3 h4 h5 h6"), Role::Heading},
    Meaning{QLatin1String("ul ol"), Role::List},
    Meaning{QLatin1String("li"), Role::Item},
    Meaning{QLatin1String("blockquote"), Role::Quote},
    Meaning{QLatin1String("q"), Role::QuoteMarks},
    Meaning{QLatin1String("pre"), Role::Lines},
    Meaning{
        QLatin1String("address article aside body caption center dd details dir div dl dt "
                      "fieldset figcaption figure footer form header hr html legend main menu nav "
                      "option section summary table tbody tfoot thead tr"),
        Role::Line},
    Meaning{QLatin1String("td th"), Role::Cell},
    Meaning{
        QLatin1String("applet audio canvas embed frameset head iframe math noembed noframes "
                      "noscript object script select style svg template textarea title video xmp"),
        Role::Skipped},
};

QHash<QString, Meaning> meaningsByName()
{
    QHash<QString, Meaning> byName;
    for (const Meaning &meaning : meanings) {
        for (const QLatin1String name : meaning.names.tokenize(QLatin1Char(' ')))
            byName.insert(name, meaning);
    }
    return byName;
}

Meaning meaningOf(const QString &name)
{
    static const QHash<QString, Meaning> byName = meaningsByName();
    return byName.value(name);
}

// Empty: not a link that is followed.
QString safeTarget(const QString &href)
{
    if (href.size() > longestLink)
        return {};
    const QUrl url(href.trimmed());
    const QString scheme = url.scheme();
    const bool isPage = scheme == u"http" || scheme == u"https";
    if (url.isValid() && isPage && !url.host().isEmpty()) {
        const QString target = url.toString(QUrl::FullyEncoded);
        return target.size() <= longestLink ? target : QString();
    }
    return href.contains(updateCaptionTarget) ? QString(updateCaptionTarget) : QString();
}

// Characters that are none: controls, parts of Qt's own documents, and what would turn the direction
// of all that follows.
bool isShown(char32_t c)
{
    const bool isControl = c < 0x20 || (c >= 0x7F && c < 0xA0);
    const bool isNone = (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFE) == 0xFFFE || c == 0xFFFC
        || c == QChar::ByteOrderMark;
    const bool turns = (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
    return !isControl && !isNone && !turns;
}

class Sanitiser
{
public:
    QString result(QStringView html);

private:
    struct Container
    {
        QLatin1String name;
        int number;
    };

    void addText(const QString &text);
    void addCharacter(char32_t character);
    void addTag(HTMLTokens &tokens, const HTMLToken &token);
    void addBlockTag(Role role, const QString &name, bool isStart);
    void addFormat(Format format, bool isStart);
    void openContainer(QLatin1String name);
    void closeContainer(QLatin1String name);
    void startItem(bool isStart);
    void endBlock();
    bool isBareList() const;
    void tellElements();

    InfoWriter m_writer;
    std::vector<Container> m_containers;
    std::array<int, formatCount> m_formats{}; // how many times each is open
    QString m_href;
    int m_number = 0; // the last one given to a block
    int m_paragraph = 0; // number of the open one
    int m_tooDeep = 0; // containers that were not opened, not closed yet
    bool m_isHeading = false;
    bool m_keepsLines = false;
    bool m_isChanged = false; // the elements, since the writer was told
};

QString Sanitiser::result(QStringView html)
{
    HTMLTokens tokens(html);
    while (!m_writer.isFull()) {
        const std::optional<HTMLToken> token = tokens.next();
        if (!token)
            break;
        if (token->kind == HTMLToken::Kind::Text)
            addText(decodedReferences(token->text));
        else
            addTag(tokens, *token);
    }
    return m_writer.takeResult();
}

void Sanitiser::addText(const QString &text)
{
    for (qsizetype i = 0; i < text.size() && !m_writer.isFull(); ++i) {
        const QChar unit = text[i];
        if (!unit.isSurrogate())
            addCharacter(unit.unicode());
        else if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            addCharacter(QChar::surrogateToUcs4(unit, text[++i]));
        else
            addCharacter(QChar::ReplacementCharacter);
    }
}

void Sanitiser::addCharacter(char32_t character)
{
    const bool isUnit = character < 0x10000;
    const bool isSpace = isUnit && isHTMLWhiteSpace(static_cast<char16_t>(character));
    if (!isSpace && !isShown(character))
        return;
    if (isBareList()) {
        if (isSpace)
            return;
        startItem(true);
    }
    tellElements();
    if (isSpace && m_keepsLines && isHTMLNewline(static_cast<char16_t>(character)))
        m_writer.appendBreak();
    else if (isSpace)
        m_writer.appendSpace();
    else
        m_writer.append(character);
}

void Sanitiser::addTag(HTMLTokens &tokens, const HTMLToken &token)
{
    if (token.text.size() > longestTagName)
        return;
    const bool isStart = token.kind == HTMLToken::Kind::StartTag;
    const QString name = token.text.toString().toLower();
    const Meaning meaning = meaningOf(name);
    switch (meaning.role) {
    case Role::None:
        return;
    case Role::Skipped:
        if (isStart)
            tokens.skipPast(token.text);
        return;
    case Role::Format:
        addFormat(meaning.format, isStart);
        return;
    case Role::Link:
        m_href = isStart ? safeTarget(
                     attributeValue(token.attributes, QLatin1String("href")).value_or(QString()))
                         : QString();
        m_isChanged = true;
        return;
    case Role::Cell:
        addCharacter(U' ');
        return;
    case Role::QuoteMarks:
        addCharacter(isStart ? U'\u201C' : U'\u201D');
        return;
    default:
        addBlockTag(meaning.role, name, isStart);
    }
}

void Sanitiser::addFormat(Format format, bool isStart)
{
    int &open = m_formats[static_cast<std::size_t>(format)];
    open = isStart ? open + 1 : std::max(0, open - 1);
    m_isChanged = true;
}

void Sanitiser::addBlockTag(Role role, const QString &name, bool isStart)
{
    if (role == Role::Break) {
        if (isBareList())
            return;
        tellElements();
        m_writer.appendBreak();
        return;
    }
    if (role == Role::List || role == Role::Quote) {
        const QLatin1String kind = role == Role::Quote ? QLatin1String("blockquote")
            : name == u"ul"                            ? QLatin1String("ul")
                                                       : QLatin1String("ol");
        isStart ? openContainer(kind) : closeContainer(kind);
    } else if (role == Role::Item) {
        startItem(isStart);
    }
    if (role == Role::Lines)
        m_keepsLines = isStart;
    if (role != Role::Line && role != Role::Lines)
        endBlock();
    m_writer.endLine();
    if (isStart && (role == Role::Paragraph || role == Role::Heading)) {
        m_paragraph = ++m_number;
        m_isHeading = role == Role::Heading;
    }
}

void Sanitiser::endBlock()
{
    m_paragraph = 0;
    m_isHeading = false;
    m_isChanged = true;
    m_writer.endLine();
}

void Sanitiser::openContainer(QLatin1String name)
{
    if (m_containers.size() >= deepestNesting)
        ++m_tooDeep;
    else
        m_containers.push_back({name, ++m_number});
}

// Ends the innermost one of the name, with all that it holds.
void Sanitiser::closeContainer(QLatin1String name)
{
    if (m_tooDeep > 0) {
        --m_tooDeep;
        return;
    }
    const auto found = std::find_if(m_containers.rbegin(), m_containers.rend(),
                                    [&](const Container &c) { return c.name == name; });
    if (found != m_containers.rend())
        m_containers.erase(found.base() - 1, m_containers.end());
}

// Ends the open item of the innermost list, and starts a new one there. Without a list nothing does.
void Sanitiser::startItem(bool isStart)
{
    const auto list =
        std::find_if(m_containers.rbegin(), m_containers.rend(),
                     [](const Container &c) { return c.name != QLatin1String("li"); });
    if (list == m_containers.rend() || list->name == QLatin1String("blockquote"))
        return;
    m_containers.erase(list.base(), m_containers.end());
    if (isStart)
        m_containers.push_back({QLatin1String("li"), ++m_number});
    endBlock();
}

bool Sanitiser::isBareList() const
{
    return !m_containers.empty() && m_containers.back().name.endsWith(QLatin1Char('l'));
}

void Sanitiser::tellElements()
{
    if (!std::exchange(m_isChanged, false))
        return;
    QList<InfoElement> elements;
    for (const Container &container : m_containers)
        elements.append({container.name, container.number});
    if (m_paragraph != 0)
        elements.append({QLatin1String("p"), m_paragraph});
    if (!m_href.isEmpty())
        elements.append({QLatin1String("a"), 0, m_href});
    for (std::size_t i = 0; i < formatCount; ++i) {
        const bool isBoldHeading = m_isHeading && i == static_cast<std::size_t>(Format::Bold);
        if (m_formats[i] > 0 || isBoldHeading)
            elements.append({formatNames[i]});
    }
    m_writer.setElements(elements);
}

} // namespace

QString sanitisedInfoText(QStringView html)
{
    return Sanitiser().result(html);
}

} // namespace moravel
