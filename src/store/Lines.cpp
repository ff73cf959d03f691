// SPDX-License-Identifier: MIT
#include "store/Lines.h"

#include <algorithm>
#include <cstring>

namespace moravel {

namespace {

std::size_t lineEnd(std::string_view text, std::size_t from, char separator)
{
    return std::min(text.find(separator, from), text.size());
}

/// memmem is far faster than std::string_view::find on a long text.
std::size_t find(std::string_view text, std::string_view part, std::size_t from)
{
    const void *at = ::memmem(text.data() + from, text.size() - from, part.data(), part.size());
    return at != nullptr ? std::size_t(static_cast<const char *>(at) - text.data())
                         : std::string_view::npos;
}

} // namespace

std::optional<NumberedLine> firstLineStartingWith(std::string_view text, std::string_view prefix,
                                                  char separator)
{
    if (prefix.find(separator) != std::string_view::npos)
        return std::nullopt;
    std::size_t begin = 0;
    for (qsizetype number = 0; begin <= text.size(); ++number) {
        if (text.substr(begin).starts_with(prefix))
            return NumberedLine{{begin, lineEnd(text, begin, separator)}, number};
        begin = lineEnd(text, begin, separator) + 1;
    }
    return std::nullopt;
}

std::optional<Line> firstLineContaining(std::string_view text, std::string_view part,
                                        char separator, std::size_t from)
{
    if (part.empty() || from >= text.size() || part.find(separator) != std::string_view::npos)
        return std::nullopt;
    const std::size_t at = find(text, part, from);
    if (at == std::string_view::npos)
        return std::nullopt;
    const std::size_t before = text.rfind(separator, at);
    return Line{before == std::string_view::npos ? 0 : before + 1, lineEnd(text, at, separator)};
}

std::string withoutLine(std::string_view text, std::string_view line, char separator)
{
    std::string kept;
    kept.reserve(text.size());
    bool first = true;
    for (std::size_t begin = 0; begin <= text.size();) {
        const Line next{begin, lineEnd(text, begin, separator)};
        begin = next.end + 1;
        if (next.in(text) == line)
            continue;
        if (!first)
            kept += separator;
        kept += next.in(text);
        first = false;
    }
    return kept;
}

} // namespace moravel
