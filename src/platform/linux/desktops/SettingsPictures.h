// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <memory>

namespace moravel {

/// Makes the pictures of a desktop that keeps them in GSettings or in its file manager's settings.
/// @param currentDesktop XDG_CURRENT_DESKTOP; its first word that is known counts.
/// @param supportFolder the program's own data folder, without a closing slash; copies of large
/// pictures are kept in its folder "desktop".
/// Null when no word is known, or the desktop's settings are not installed (logged).
std::unique_ptr<DesktopPictures> makeSettingsPictures(const QString &currentDesktop,
                                                      const QString &supportFolder);

} // namespace moravel
