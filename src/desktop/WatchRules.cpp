// SPDX-License-Identifier: MIT
#include "desktop/WatchRules.h"

#include "desktop/DesktopUrls.h"

namespace moravel {

WatchAction watchAction(const WatchState &state)
{
    // A desktop that does not tell what it shows has nothing to follow.
    if (state.shownPath.isEmpty())
        return WatchAction::None;
    if (isDesktopFolder(state.shownPath))
        return WatchAction::ShowFolder;
    if (state.currentDesktopPath.isEmpty())
        return WatchAction::ShowFirst;
    const bool same = state.shownPath == state.currentDesktopPath;
    if (state.allSpaces && (state.allScreens || state.onMoravelScreen))
        return same ? WatchAction::None : WatchAction::PutBack;
    return same && state.cellPicPath == state.shownPath ? WatchAction::None : WatchAction::Refresh;
}

} // namespace moravel
