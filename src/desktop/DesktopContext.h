// SPDX-License-Identifier: MIT
#pragma once

#include "base/Dates.h"
#include "base/Preferences.h"
#include "desktop/DesktopPorts.h"
#include "platform/DesktopPictures.h"
#include "platform/Platform.h"
#include "store/Folders.h"
#include "store/PictureLinks.h"
#include "store/RecordFile.h"
#include "thumb/ThumbCells.h"

namespace moravel {

/// What desktop management works with; lent for its whole life.
struct DesktopContext
{
    Platform &platform;
    DesktopPictures &pictures;
    const Dates &dates;
    Preferences &preferences;
    ThumbCells &cells;
    Folders &folders;
    RecordFile &records;
    PictureLinks &links;
    const DesktopPorts &ports; ///< May be filled after the construction.

    /// The screen with the menus and panels; an empty one when there is no display.
    DesktopScreen mainScreen() const;
    /// Size of a file in units of 1024 x 1024 bytes; 0 when there is none.
    double fileSizeMB(const QString &path) const;
};

/// Megabytes above which a picture is not put onto the desktop without asking.
inline constexpr double LargestQuietMB = 10.0;

} // namespace moravel
