// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/desktops/Xcb.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace moravel {

/// Tells whether another program fills the screen: whether the active window of an X display is in full
/// screen, and not one of ours. Looks only when the window manager says that something has changed.
/// Main thread only.
class FullScreenWatch
{
public:
    /// Follows the display of the environment; null when there is none.
    static std::unique_ptr<FullScreenWatch> start();

    bool isFullScreen() const { return m_fullScreen; }

    std::function<void()> onChanged;

private:
    explicit FullScreenWatch(x11::Display display);
    void readEvents();
    bool takeEvents();
    void follow(xcb_window_t window);
    void look();
    bool isActiveFullScreen() const;

    x11::Display m_display;
    xcb_atom_t m_activeWindow;
    xcb_atom_t m_state;
    xcb_atom_t m_stateFullScreen;
    xcb_atom_t m_process;
    xcb_window_t m_active = XCB_NONE;
    bool m_fullScreen = false;
    std::unique_ptr<QSocketNotifier> m_readable;
};

} // namespace moravel
