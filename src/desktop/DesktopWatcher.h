// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/DesktopCell.h"
#include "desktop/DesktopContext.h"
#include "desktop/WatchRules.h"

namespace moravel {

class DesktopSetter;

/// Follows what is really on the desktop, twice a second.
class DesktopWatcher
{
public:
    DesktopWatcher(const DesktopContext &context, DesktopSetter &setter, DesktopCell &cell,
                   DockTile &dockTile);

    /// One look at the desktop; the first one starts the clock.
    void checkCurrentDesktop();

private:
    void execute(WatchAction action, const QString &shown);
    void putBack(const QString &shown);

    const DesktopContext &m_context;
    DesktopSetter &m_setter;
    DesktopCell &m_cell;
    DockTile &m_dockTile;
    DelayedCallHandle m_currentDesktopTimer;
    QString m_putBackOver; ///< What was covered last, while it is not known to be gone.
    QDateTime m_putBackSince;
};

} // namespace moravel
