// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace moravel {

/// How the user wants programs to look.
struct DesktopLook
{
    bool reducesMotion = false;
    std::optional<bool> dark; ///< Nothing where no preference is told.
    bool operator==(const DesktopLook &) const = default;
};

} // namespace moravel
