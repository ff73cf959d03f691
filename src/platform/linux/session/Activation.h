// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

class QWindow;

namespace moravel {

// A desktop lets a window come to the front when the user asked for it. What proves that travels with the
// request: a token of the Wayland compositor, or the id that a launcher of X11 gave to the start.

/// What this process was given for its own start, as "platform data" of org.freedesktop.Application. Before
/// the QApplication, which uses it up.
QVariantMap activationFromEnvironment();

/// Takes what came with a request: the next window to be activated uses the token. Returns the startup id,
/// "" when there is none that can be used.
QString useActivation(const QVariantMap &platformData);

/// Returns the moment of the user's click that a startup id ends with, in the X server's milliseconds.
std::optional<quint32> timeOfStartupId(const QString &id);

/// Asks the window manager of X11 to activate @p window as of the user's click.
void activateByStartupId(QWindow &window, const QString &id);

/// Tells the launcher on X11 that what it started is there, which ends its busy pointer.
void endStartup(const QString &id);

} // namespace moravel
