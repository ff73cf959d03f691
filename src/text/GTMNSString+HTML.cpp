// SPDX-License-Identifier: MIT
#include "text/GTMNSString+HTML.h"
#include "text/HTMLReference.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace moravel {
namespace {

constexpr char16_t asciiEnd = 128;

const HTMLEscapeRow *findRow(std::span<const HTMLEscapeRow> table, char16_t unit)
{
    const auto row = std::ranges::lower_bound(table, unit, {}, &HTMLEscapeRow::unit);
    return row != table.end() && row->unit == unit ? &*row : nullptr;
}

// Most text is ASCII without any row; this spares it the bisection.
std::array<bool, asciiEnd> asciiUnitsOf(std::span<const HTMLEscapeRow> table)
{
    std::array<bool, asciiEnd> has{};
    for (const HTMLEscapeRow &row : table) {
        if (row.unit < asciiEnd)
            has[row.unit] = true;
    }
    return has;
}

void appendDecimalReference(QString &output, char16_t unit)
{
    std::array<char, 8> reference{'&', '#'};
    char *end = std::to_chars(&reference[2], &reference[7], unsigned{unit}).ptr;
    *end++ = ';';
    output += QLatin1String(reference.data(), end - reference.data());
}

// Length of the reference that \a text starts with ("&" through ";" without another "&" between), 0
// if none.
qsizetype referenceLength(QStringView text)
{
    const qsizetype end = std::min(text.size(), longestHTMLReference);
    for (qsizetype i = 1; i < end && text[i] != u'&'; ++i) {
        if (text[i] == u';')
            return i + 1 < shortestHTMLReference ? 0 : i + 1;
    }
    return 0;
}

} // namespace

QString gtm_stringByEscapingHTMLUsingTable(QStringView text, std::span<const HTMLEscapeRow> table,
                                           EscapingUnicode escapingUnicode)
{
    const std::array<bool, asciiEnd> inTable = asciiUnitsOf(table);
    QString output;
    output.reserve(text.size());
    qsizetype pending = 0; // start of the unchanged units not yet in the output
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit < asciiEnd && !inTable[unit])
            continue;
        const HTMLEscapeRow *row = findRow(table, unit);
        if (!row && escapingUnicode == EscapingUnicode::No)
            continue;
        output += text.sliced(pending, i - pending);
        pending = i + 1;
        if (row) {
            output += QStringView(row->entity);
        } else {
            Q_ASSERT_X(unit >= asciiEnd, Q_FUNC_INFO, "Illegal Character");
            appendDecimalReference(output, unit);
        }
    }
    output += text.sliced(pending);
    return output;
}

QString gtm_stringByEscapingForHTML(QStringView text)
{
    return gtm_stringByEscapingHTMLUsingTable(text, shortHTMLEscapeTable, EscapingUnicode::No);
}

QString gtm_stringByEscapingForAsciiHTML(QStringView text)
{
    return gtm_stringByEscapingHTMLUsingTable(text, fullHTMLEscapeTable, EscapingUnicode::Yes);
}

QString gtm_stringByUnescapingFromHTML(QStringView text)
{
    QString output = text.toString();
    unescapeHTMLInPlace(output);
    return output;
}

// References never overlap, since none holds a second "&", and what one yields is not read again:
// going forwards once finds the same ones as going backwards, and moves each unit once at most.
void unescapeHTMLInPlace(QString &text)
{
    qsizetype next = text.indexOf(u'&');
    if (next < 0)
        return;
    QChar *const begin = text.data();
    const QStringView input(begin, text.size()); // the writes below never overtake the reads
    QChar *out = begin + next;
    while (next < input.size()) {
        const qsizetype length = referenceLength(input.sliced(next));
        const char16_t unit =
            length ? unitOfHTMLReference(input.sliced(next, length)) : char16_t{0};
        if (unit)
            *out++ = QChar(unit);
        const qsizetype from = unit ? next + length : next;
        next = input.indexOf(u'&', next + 1);
        if (next < 0)
            next = input.size();
        std::memmove(out, begin + from, static_cast<std::size_t>(next - from) * sizeof(QChar));
        out += next - from;
    }
    text.truncate(out - begin);
}

} // namespace moravel
