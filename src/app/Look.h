// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopLook.h"

namespace moravel {

/// Has the program look as the user wants: spinners that stand still, and dark colours where Qt does not
/// take them from the desktop by itself.
void applyLook(const DesktopLook &look);

} // namespace moravel
