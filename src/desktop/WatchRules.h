// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// What the watcher sees at a tick.
struct WatchState
{
    QString shownPath; ///< What the main screen shows.
    QString currentDesktopPath; ///< What the program holds to be the desktop.
    QString cellPicPath; ///< What the desktop cell shows.
    bool allSpaces = false;
    bool allScreens = false;
    bool onMoravelScreen = false; ///< The main screen is the one that was set.
};

enum class WatchAction {
    None,
    ShowFolder, ///< The desktop takes its pictures from a folder.
    ShowFirst, ///< First look after the start.
    PutBack, ///< Another workspace shows another picture.
    Refresh ///< The desktop shows what the program did not set.
};

WatchAction watchAction(const WatchState &state);

} // namespace moravel
