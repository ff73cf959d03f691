// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>

#include <functional>
#include <optional>

namespace moravel {

/// Sends @p text to the socket file at @p path on a connection of its own and gives the answer when the
/// other side has closed it, or has been silent for @p quietMs after it said something: some keep it open.
/// Nothing when it cannot be reached, or is silent for 3 seconds, or says more than 64 KiB. Calls @p done
/// once, on the main loop, never from within; not at all when @p context is gone.
void queryUnixSocket(QObject *context, const QString &path, const QByteArray &text, int quietMs,
                     std::function<void(const std::optional<QByteArray> &)> done);

} // namespace moravel
