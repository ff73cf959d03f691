// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/desktops/FullScreenWatch.h"
#include "platform/linux/desktops/Xcb.h"

#include <QSocketNotifier>

namespace moravel {

/// Follows the active window of an X display, by its properties.
class X11FullScreen : public FullScreenWatch
{
public:
    /// Follows the display of the environment; null when there is none.
    static std::unique_ptr<FullScreenWatch> start(qint64 self);

private:
    X11FullScreen(x11::Display display, qint64 self);
    void readEvents();
    bool takeEvents();
    void follow(xcb_window_t window);
    void look();
    bool isActiveFullScreen() const;

    x11::Display m_display;
    qint64 m_self;
    xcb_atom_t m_activeWindow;
    xcb_atom_t m_state;
    xcb_atom_t m_stateFullScreen;
    xcb_atom_t m_process;
    xcb_window_t m_active = XCB_NONE;
    std::unique_ptr<QSocketNotifier> m_readable;
};

} // namespace moravel
