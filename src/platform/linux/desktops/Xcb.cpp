// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/Xcb.h"

#include <xcb/randr.h>

namespace moravel::x11 {

std::optional<Display> openDisplay()
{
    int number = 0;
    Display display{Connection(xcb_connect(nullptr, &number))};
    if (xcb_connection_has_error(display.connection.get()))
        return std::nullopt;
    auto it = xcb_setup_roots_iterator(xcb_get_setup(display.connection.get()));
    for (; number > 0 && it.rem > 1; --number)
        xcb_screen_next(&it);
    display.screen = it.data;
    return display;
}

xcb_atom_t atom(xcb_connection_t *connection, const QByteArray &name)
{
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<quint16>(name.size()), name.constData());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

std::optional<quint32> windowValue(xcb_connection_t *connection, xcb_window_t window,
                                   xcb_atom_t name)
{
    const auto cookie = xcb_get_property(connection, 0, window, name, XCB_ATOM_ANY, 0, 1);
    const Reply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4)
        return std::nullopt;
    return *static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
}

std::map<QString, QRect> monitors(const Display &display)
{
    xcb_connection_t *c = display.connection.get();
    const Reply<xcb_randr_get_monitors_reply_t> reply(xcb_randr_get_monitors_reply(
        c, xcb_randr_get_monitors(c, display.screen->root, 1), nullptr));
    std::map<QString, QRect> all;
    if (!reply)
        return all;
    for (auto it = xcb_randr_get_monitors_monitors_iterator(reply.get()); it.rem;
         xcb_randr_monitor_info_next(&it)) {
        const Reply<xcb_get_atom_name_reply_t> name(
            xcb_get_atom_name_reply(c, xcb_get_atom_name(c, it.data->name), nullptr));
        if (name)
            all[QString::fromUtf8(xcb_get_atom_name_name(name.get()),
                                  xcb_get_atom_name_name_length(name.get()))] =
                QRect(it.data->x, it.data->y, it.data->width, it.data->height);
    }
    return all;
}

} // namespace moravel::x11
