// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// Who draws the tray icon and its menu.
enum class TrayKind {
    StatusNotifier, ///< The desktop's panel, over the bus.
    Embedded ///< Qt, in a window embedded in the tray.
};

/// The text of a menu action that shows @p title as it is: one line of at most 100 characters, none of
/// them taken for a keyboard mark.
QString trayLabel(const QString &title, TrayKind kind);

} // namespace moravel
