// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QVariantMap>

#include <tl/expected.hpp>

namespace moravel {

/// Why another process could not be asked.
struct RemoteError
{
    bool notRunning = false; ///< Else it has refused or does not answer.
    QString text; ///< One sentence for standard error.
};

/// Asks the running program for an action; an empty one asks it to come to the front. @p platformData lets it
/// (see activationFromEnvironment()). Waits for its answer, 5 seconds at most; starts nothing.
tl::expected<void, RemoteError> askRunningProgram(const QDBusConnection &sessionBus,
                                                  const QString &action,
                                                  const QVariantList &arguments,
                                                  const QVariantMap &platformData);

/// Asks the running program what the desktop shows, in the same way. The texts come from another process.
tl::expected<QVariantMap, RemoteError> askForCurrentPicture(const QDBusConnection &sessionBus);

} // namespace moravel
