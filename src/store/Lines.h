// SPDX-License-Identifier: MIT
// Lines of a text in memory, found without splitting it. A text that ends with a separator has an empty
// last line. Nothing here finds a prefix or part that itself holds a separator.
#pragma once

#include <QtGlobal>

#include <optional>
#include <string>
#include <string_view>

namespace moravel {

/// Where a line lies in its text: the offsets of its first byte and of its separator.
struct Line
{
    std::size_t begin = 0;
    std::size_t end = 0;

    std::string_view in(std::string_view text) const { return text.substr(begin, end - begin); }
};

struct NumberedLine : Line
{
    qsizetype number = 0; ///< From 0.
};

/// Returns the first line that begins with @p prefix.
std::optional<NumberedLine> firstLineStartingWith(std::string_view text, std::string_view prefix,
                                                  char separator = '\n');

/// Returns the first line at or after the offset @p from that contains @p part (not empty).
std::optional<Line> firstLineContaining(std::string_view text, std::string_view part,
                                        char separator = '\n', std::size_t from = 0);

/// Returns @p text without the lines equal to @p line.
std::string withoutLine(std::string_view text, std::string_view line, char separator = '\n');

} // namespace moravel
