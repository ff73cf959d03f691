// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace moravel {

inline constexpr qsizetype shortestHTMLReference = 4; // "&lt;"
inline constexpr qsizetype longestHTMLReference = 10; // "&thetasym;"

/// The code unit that \a reference stands for ("&", name or "#" and number, ";"), or 0 when it
/// stands for none. \a reference has shortestHTMLReference to longestHTMLReference units.
char16_t unitOfHTMLReference(QStringView reference);

} // namespace moravel
