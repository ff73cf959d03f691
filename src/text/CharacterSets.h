// SPDX-License-Identifier: MIT
// The character classes of the HTML operations. Explicit lists, unlike QChar::isSpace(): a no-break
// space is content, not white space.
#pragma once

namespace moravel {

/// The units that end a line: LF, CR, FF, NEL, line separator, paragraph separator.
constexpr bool isHTMLNewline(char16_t unit)
{
    return unit == u'\n' || unit == u'\r' || unit == u'\f' || unit == 0x85 || unit == 0x2028
        || unit == 0x2029;
}

/// The units that separate words: the newlines, space and tab.
constexpr bool isHTMLWhiteSpace(char16_t unit)
{
    return unit == u' ' || unit == u'\t' || isHTMLNewline(unit);
}

/// The letters of a tag's name: ASCII, and no digits (h1 reads as h).
constexpr bool isHTMLTagNameLetter(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

} // namespace moravel
