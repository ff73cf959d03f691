// SPDX-License-Identifier: MIT
#pragma once

#include "text/HTMLEscapeTables.h"

#include <QString>
#include <QStringView>

#include <span>

namespace moravel {

// NOLINTBEGIN(readability-identifier-naming): the operations keep their established names

/// Whether escaping writes units from 128 up that have no row in the table as "&#<decimal>;".
enum class EscapingUnicode { No, Yes };

/// Escapes the units of \a table's rows in \a text by their entities, and with EscapingUnicode::Yes
/// all other units from 128 up by decimal references. A character beyond the Basic Multilingual
/// Plane becomes two references, one per surrogate. \a table must ascend by unit; of several rows
/// for a unit the first counts.
QString gtm_stringByEscapingHTMLUsingTable(QStringView text, std::span<const HTMLEscapeRow> table,
                                           EscapingUnicode escapingUnicode);

/// Escapes markup and typographic characters (shortHTMLEscapeTable); all else passes through.
QString gtm_stringByEscapingForHTML(QStringView text);

/// Escapes to pure ASCII: entities where fullHTMLEscapeTable has one, else decimal references.
QString gtm_stringByEscapingForAsciiHTML(QStringView text);

/// Replaces each character reference in \a text (named, decimal, hexadecimal) by its code unit, one
/// level deep: "&amp;lt;" gives "&lt;". A reference is 4 to 10 units long from "&" through ";";
/// names are case-sensitive; numbers run from 1 to 65534. All else stays as it is. Linear in the
/// length.
QString gtm_stringByUnescapingFromHTML(QStringView text);

// NOLINTEND(readability-identifier-naming)

/// Does what gtm_stringByUnescapingFromHTML() does within \a text itself, which only ever gets
/// shorter.
void unescapeHTMLInPlace(QString &text);

} // namespace moravel
