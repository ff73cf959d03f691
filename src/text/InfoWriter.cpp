// SPDX-License-Identifier: MIT
#include "text/InfoWriter.h"

#include <algorithm>

namespace moravel {
namespace {

constexpr char32_t zeroWidthSpace = 0x200B;
constexpr qsizetype zeroWidthSpaceBytes = 3;
constexpr int longestCluster = 20; // marks that a long word takes along before it is broken
const QLatin1String lineBreak("<br>");

QString escaped(char32_t character)
{
    switch (character) {
    case U'&':
        return QStringLiteral("&amp;");
    case U'<':
        return QStringLiteral("&lt;");
    case U'>':
        return QStringLiteral("&gt;");
    case U'"':
        return QStringLiteral("&quot;");
    default:
        return QString::fromUcs4(&character, 1);
    }
}

qsizetype bytesOf(char32_t character)
{
    if (character < 0x80)
        return 1;
    return character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
}

// Belongs to the character before it.
bool isMark(char32_t character)
{
    constexpr char32_t joiner = 0x200D;
    return character == joiner || QChar::isMark(character);
}

} // namespace

QString InfoElement::startTag() const
{
    if (href.isEmpty())
        return QStringLiteral("<%1>").arg(name);
    return QStringLiteral("<%1 href=\"%2\">").arg(name, href.toHtmlEscaped());
}

QString InfoElement::endTag() const
{
    return QStringLiteral("</%1>").arg(name);
}

void InfoWriter::endLine()
{
    m_isLineOver = m_isLineOver || !m_isLineEmpty;
}

InfoWriter::Change InfoWriter::change() const
{
    const auto differs =
        std::mismatch(m_open.begin(), m_open.end(), m_elements.begin(), m_elements.end());
    const auto isBlock = [](const InfoElement &element) { return element.isBlock(); };
    Change result{differs.first - m_open.begin(), 0,
                  std::any_of(differs.first, m_open.end(), isBlock)
                      || std::any_of(differs.second, m_elements.end(), isBlock)};
    for (auto it = differs.second; it != m_elements.end(); ++it)
        result.bytes += it->startTag().size() + it->endTag().size(); // ASCII all of it
    return result;
}

bool InfoWriter::isRoomFor(qsizetype bytes)
{
    m_isFull = m_isFull || m_bytes + bytes > largestInfoText;
    return !m_isFull;
}

void InfoWriter::close(qsizetype kept)
{
    while (m_open.size() > kept)
        m_result += m_open.takeLast().endTag();
}

void InfoWriter::carryOut(const Change &change)
{
    close(change.kept);
    m_bytes += change.bytes;
    for (qsizetype i = change.kept; i < m_elements.size(); ++i) {
        m_result += m_elements[i].startTag();
        m_open.append(m_elements[i]);
    }
    if (!change.isNewBlock)
        return;
    m_isLineOver = false;
    m_isLineEmpty = true;
    m_endsInSpace = false;
    m_word = 0;
}

void InfoWriter::appendWantedBreak()
{
    m_result += lineBreak;
    m_bytes += lineBreak.size();
    ++m_breaks;
    m_isLineOver = false;
    m_isLineEmpty = true;
    m_endsInSpace = false;
    m_word = 0;
}

void InfoWriter::append(char32_t character)
{
    const Change change = this->change();
    const bool wantsBreak = m_isLineOver && !change.isNewBlock;
    const bool startsLine = m_isLineOver || change.isNewBlock;
    const int longestWord = longestInfoWord + (isMark(character) ? longestCluster : 0);
    const bool isLong = !startsLine && character != zeroWidthSpace && m_word >= longestWord;
    const QString text = escaped(character);
    const qsizetype textBytes = text.size() > 2 ? text.size() : bytesOf(character);
    if (character == zeroWidthSpace && (startsLine || m_word == 0))
        return;
    if (!isRoomFor(change.bytes + (wantsBreak ? lineBreak.size() : 0)
                   + (isLong ? zeroWidthSpaceBytes : 0) + textBytes))
        return;
    carryOut(change);
    if (wantsBreak)
        appendWantedBreak();
    if (isLong) {
        m_result += QChar(zeroWidthSpace);
        m_bytes += zeroWidthSpaceBytes;
        m_word = 0;
    }
    m_result += text;
    m_bytes += textBytes;
    m_word = character == zeroWidthSpace ? 0 : m_word + 1;
    m_breaks = 0;
    m_isLineEmpty = false;
    m_endsInSpace = false;
}

void InfoWriter::appendSpace()
{
    if (m_isLineEmpty || m_isLineOver || m_endsInSpace)
        return;
    const Change change = this->change();
    if (!isRoomFor(change.bytes + 1))
        return;
    carryOut(change);
    m_result += u' ';
    ++m_bytes;
    m_endsInSpace = true;
    m_word = 0;
}

void InfoWriter::appendBreak()
{
    constexpr int mostBreaks = 2;
    const Change change = this->change();
    const bool wantsBreak = m_isLineOver && !change.isNewBlock;
    if (m_breaks + (wantsBreak ? 1 : 0) >= mostBreaks)
        return;
    if (!isRoomFor(change.bytes + (wantsBreak ? 2 : 1) * lineBreak.size()))
        return;
    carryOut(change);
    if (wantsBreak)
        appendWantedBreak();
    appendWantedBreak();
}

QString InfoWriter::takeResult()
{
    close(0);
    return std::move(m_result);
}

} // namespace moravel
