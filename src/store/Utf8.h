// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace moravel {

/// Returns true when @p text is well-formed UTF-8: no overlong forms, no surrogates, nothing above
/// U+10FFFF. Runs through ASCII at about the speed of memory.
bool isValidUtf8(std::string_view text);

} // namespace moravel
