// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/X11FullScreen.h"

#include "platform/linux/desktops/DesktopLog.h"

#include <algorithm>
#include <utility>

namespace moravel {

namespace {

void listen(xcb_connection_t *c, xcb_window_t window, quint32 mask)
{
    xcb_change_window_attributes(c, window, XCB_CW_EVENT_MASK, &mask);
}

} // namespace

std::unique_ptr<FullScreenWatch> X11FullScreen::start(qint64 self)
{
    std::optional<x11::Display> display = x11::openDisplay();
    if (!display)
        return nullptr;
    return std::unique_ptr<FullScreenWatch>(new X11FullScreen(std::move(*display), self));
}

// A connection of its own: on the toolkit's, listening to a window of ours would end the toolkit's listening.
X11FullScreen::X11FullScreen(x11::Display display, qint64 self)
    : m_display(std::move(display)), m_self(self)
{
    xcb_connection_t *c = m_display.connection.get();
    m_activeWindow = x11::atom(c, "_NET_ACTIVE_WINDOW");
    m_state = x11::atom(c, "_NET_WM_STATE");
    m_stateFullScreen = x11::atom(c, "_NET_WM_STATE_FULLSCREEN");
    m_process = x11::atom(c, "_NET_WM_PID");
    listen(c, m_display.screen->root, XCB_EVENT_MASK_PROPERTY_CHANGE);
    follow(x11::windowValue(c, m_display.screen->root, m_activeWindow).value_or(XCB_NONE));
    setFullScreen(isActiveFullScreen());
    m_readable =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(c), QSocketNotifier::Read);
    QObject::connect(m_readable.get(), &QSocketNotifier::activated, m_readable.get(),
                     [this] { readEvents(); });
    readEvents();
}

void X11FullScreen::follow(xcb_window_t window)
{
    xcb_connection_t *c = m_display.connection.get();
    const xcb_window_t before = std::exchange(m_active, window);
    if (before == window)
        return;
    if (before != XCB_NONE) // perhaps it is gone: that error is no news
        listen(c, before, XCB_EVENT_MASK_NO_EVENT);
    if (window != XCB_NONE)
        listen(c, window, XCB_EVENT_MASK_PROPERTY_CHANGE);
}

bool X11FullScreen::isActiveFullScreen() const
{
    constexpr quint32 MostStates = 64;
    xcb_connection_t *c = m_display.connection.get();
    if (m_active == XCB_NONE
        || x11::windowValue(c, m_active, m_process) == static_cast<quint32>(m_self))
        return false;
    const x11::Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        c, xcb_get_property(c, 0, m_active, m_state, XCB_ATOM_ATOM, 0, MostStates), nullptr));
    if (!reply || reply->format != 32)
        return false;
    const auto *states = static_cast<const xcb_atom_t *>(xcb_get_property_value(reply.get()));
    const auto count = xcb_get_property_value_length(reply.get()) / int(sizeof(xcb_atom_t));
    return std::find(states, states + count, m_stateFullScreen) != states + count;
}

bool X11FullScreen::takeEvents()
{
    xcb_connection_t *c = m_display.connection.get();
    bool changed = false;
    while (const x11::Reply<xcb_generic_event_t> event{xcb_poll_for_event(c)}) {
        if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
            continue;
        const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
        changed = changed || change->atom == m_activeWindow || change->atom == m_state;
    }
    return changed;
}

// While we wait for answers, further events come, which make no noise at the socket any more.
void X11FullScreen::readEvents()
{
    while (takeEvents())
        look();
    if (xcb_connection_has_error(m_display.connection.get())) {
        qCWarning(desktopsLog) << "the connection to the X display is lost";
        m_readable->setEnabled(false); // a closed socket is readable for ever
    }
}

void X11FullScreen::look()
{
    xcb_connection_t *c = m_display.connection.get();
    follow(x11::windowValue(c, m_display.screen->root, m_activeWindow).value_or(XCB_NONE));
    setFullScreen(isActiveFullScreen());
}

} // namespace moravel
