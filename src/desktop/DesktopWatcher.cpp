// SPDX-License-Identifier: MIT
#include "desktop/DesktopWatcher.h"

#include "desktop/DesktopSetter.h"

namespace moravel {

namespace {

constexpr double TickSeconds = 0.5;

// A desktop that goes on showing what was to be covered is not pressed twice a second.
constexpr qint64 PutBackAgainSeconds = 5;

} // namespace

DesktopWatcher::DesktopWatcher(const DesktopContext &context, DesktopSetter &setter,
                               DesktopCell &cell, DockTile &dockTile)
    : m_context(context), m_setter(setter), m_cell(cell), m_dockTile(dockTile)
{ }

void DesktopWatcher::checkCurrentDesktop()
{
    if (!m_currentDesktopTimer)
        m_currentDesktopTimer =
            m_context.platform.loop.every(TickSeconds, [this] { checkCurrentDesktop(); });
    // What the desktop shows while it takes a picture is neither the old nor the new state.
    if (m_setter.isBusy())
        return;
    const QString shown = m_setter.shownPath();
    const Preferences &preferences = m_context.preferences;
    const WatchState state{shown,
                           m_setter.currentDesktopPath(),
                           m_context.cells.desktopThumb().picPath(),
                           preferences.doSetAllSpaces(),
                           preferences.doSetAllScreens(),
                           m_setter.moravelScreen() == m_context.mainScreen().id};
    if (shown == state.currentDesktopPath)
        m_putBackOver.clear();
    execute(watchAction(state), shown);
}

void DesktopWatcher::execute(WatchAction action, const QString &shown)
{
    switch (action) {
    case WatchAction::None:
        return;
    case WatchAction::ShowFolder:
        m_setter.setCurrentDesktopPath(shown);
        m_cell.showFolder();
        return;
    case WatchAction::ShowFirst:
        m_dockTile.showInDock();
        m_cell.showDesktopThumb(shown);
        m_setter.setCurrentDesktopPath(shown);
        return;
    case WatchAction::PutBack:
        putBack(shown);
        return;
    case WatchAction::Refresh:
        m_dockTile.showInDock();
        m_cell.showDesktopThumb(shown);
        return;
    }
}

void DesktopWatcher::putBack(const QString &shown)
{
    const QDateTime now = m_context.platform.loop.now();
    // The clock may have been set back meanwhile.
    const bool pressed = shown == m_putBackOver && now >= m_putBackSince
        && m_putBackSince.secsTo(now) < PutBackAgainSeconds;
    if (pressed)
        return;
    m_putBackOver = shown;
    m_putBackSince = now;
    m_setter.setDesktopToFile(m_setter.currentDesktopPath());
}

} // namespace moravel
