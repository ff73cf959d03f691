// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

namespace moravel {

/// Tags of the sizing menu, and the values of its preference.
namespace sizing {
inline constexpr int Auto = 1000;
inline constexpr int FitToScreen = 1001;
inline constexpr int FillScreen = 1002;
inline constexpr int Center = 1003;
} // namespace sizing

/// Chooses how a picture is laid onto the screens. An unknown @p setting means auto: a picture smaller
/// than the screen in both directions keeps its size, one larger in both fills the screen, any other is
/// fitted. Sizes are pixels of the picture (0 x 0 when it cannot be read) and of the main screen.
DesktopScaling desktopScaling(QSize picture, QSize screen, int setting);

/// Returns the name of a sizing rule: "auto", "fit to screen", "fill screen", "center", or "unknown".
QString desktopSizeString(int setting);

} // namespace moravel
