// SPDX-License-Identifier: MIT
#pragma once

#include "base/Dates.h"
#include "base/Preferences.h"
#include "browser/BrowserLook.h"
#include "browser/BrowserPorts.h"
#include "platform/Images.h"
#include "platform/Thumbnails.h"
#include "store/Folders.h"
#include "store/LegacyCaptions.h"
#include "store/PictureLinks.h"
#include "store/RecordFile.h"
#include "store/RecordUpdates.h"
#include "thumb/ThumbCells.h"

#include <QMap>

namespace moravel {

/// What the browser works with; lent for its whole life.
struct BrowserContext
{
    const Files &files; ///< Also used on worker threads.
    const Images &images;
    Thumbnails &thumbnails;
    const Dates &dates;
    Preferences &preferences;
    ThumbCells &cells;
    const QMap<QString, QString> &sourceNames; ///< Short to long.
    Folders &folders;
    LegacyCaptions &legacy;
    RecordFile &records;
    RecordUpdates &updates;
    PictureLinks &links;
    const BrowserPorts &ports; ///< Filled before the window is built.
    const BrowserLook &look;
};

} // namespace moravel
