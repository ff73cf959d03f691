// SPDX-License-Identifier: MIT
// Turns HTML into plain text and plain text into simple HTML. Every operation accepts any text,
// works on UTF-16 code units and takes time linear in the length.
#pragma once

#include <QString>
#include <QStringView>

namespace moravel {

/// Removes tags and comments, replaces each run of white space by one space (none at the start or
/// end of the input) and decodes the character references of what is left. The closing tag of a
/// block leaves one more space; opening tags and the closing tags of inline elements (a, b, i, q,
/// span, em, strong, cite, abbr, acronym, label) leave nothing. An unclosed tag or comment swallows
/// the rest.
QString stringByConvertingHTMLToPlainText(QStringView html);

/// Replaces character references by what they stand for (gtm_stringByUnescapingFromHTML).
QString stringByDecodingHTMLEntities(QStringView text);

/// Escapes markup and everything outside ASCII (gtm_stringByEscapingForAsciiHTML).
QString stringByEncodingHTMLEntities(QStringView text);

/// Replaces each line break by "<br />". A CR LF counts as one break where it follows other text,
/// but within a run of line breaks each unit counts.
QString stringWithNewLinesAsBRs(QStringView text);

/// Replaces each run of white space by one space and removes it at both ends.
QString stringByRemovingNewLinesAndWhitespace(QStringView text);

/// Replaces the tags a, span, strong and em without attributes by nothing and every other tag by a
/// space, then cleans up as stringByRemovingNewLinesAndWhitespace(); text without any "<" comes
/// back untouched.
QString stringByStrippingTags(QStringView html);

} // namespace moravel
