// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace moravel {

/// Bytes of the longest address that another program can be started with: the system takes 128 KiB in one
/// argument.
inline constexpr qsizetype LongestUrl = 130'000;

/// Escapes @p text for a value of a query, as the percent-escaped bytes of its UTF-8. Only A-Z a-z 0-9
/// and "-._~" stay: what ASCII cannot hold and what has a meaning in an address ("&", "#", "+", "%",
/// "=", quotes, blanks, line ends, control characters) can neither end the value nor begin another.
QString percentEscaped(const QString &text);

/// Builds an address around a text that it holds once, escaped. Where it would be longer than
/// LongestUrl, the text is cut at its end.
QString fittedUrl(const QString &text, const std::function<QString(const QString &text)> &build);

/// Returns @p text without line ends and other control characters, fit for a line of a mail's head.
QString inOneLine(QString text);

} // namespace moravel
