// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/desktops/Xcb.h"

#include <QList>
#include <QSocketNotifier>

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace moravel {

/// Follows properties of the X root window on a connection of its own. Reading costs memory access only.
/// Main thread only.
class RootWatch
{
public:
    /// Connects to the display of the environment; null when there is none.
    static std::unique_ptr<RootWatch> start(const QList<QByteArray> &properties);

    /// The first 32-bit value of one of the followed properties.
    std::optional<quint32> value(const QByteArray &property) const;

    /// Asks the server for the present values, and drops the news of all changes up to now.
    void refresh();

    /// Removes a property from the root window.
    void remove(const QByteArray &property);

    /// A property was set, perhaps to the value that it had, or removed.
    std::function<void(const QByteArray &property)> onChanged;

private:
    RootWatch(x11::Display display, const QList<QByteArray> &properties);
    void readEvents();

    struct Property
    {
        QByteArray name;
        std::optional<quint32> value;
    };

    x11::Display m_display;
    std::map<xcb_atom_t, Property> m_properties;
    std::unique_ptr<QSocketNotifier> m_readable;
};

} // namespace moravel
