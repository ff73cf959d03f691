// SPDX-License-Identifier: MIT
// What the users of the X protocol share.
#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <vector>
#include <xcb/xcb.h>

namespace moravel::x11 {

struct Free
{
    void operator()(void *memory) const { std::free(memory); }
};

/// A reply, an error or an event, which xcb allocates with malloc.
template <typename T>
using Reply = std::unique_ptr<T, Free>;

struct Disconnect
{
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};

using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

struct Display
{
    Connection connection;
    xcb_screen_t *screen = nullptr; ///< Lives as long as the connection.
};

/// Connects to the display of the environment; nothing when there is none.
std::optional<Display> openDisplay();

/// Returns the atom of a name, made if need be; 0 when the connection is broken.
xcb_atom_t atom(xcb_connection_t *connection, const QByteArray &name);

/// Returns the first 32-bit value of a property of any type.
std::optional<quint32> windowValue(xcb_connection_t *connection, xcb_window_t window,
                                   xcb_atom_t name);

/// The monitors by the names that the toolkit gives its screens, in device pixels of the root window.
std::map<QString, QRect> monitors(const Display &display);

} // namespace moravel::x11
