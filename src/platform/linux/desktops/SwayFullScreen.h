// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/desktops/FullScreenWatch.h"

#include <QLocalSocket>

#include <optional>

namespace moravel {

/// Follows sway's focused window over its socket (sway-ipc(7)): asks for the tree of windows at the start
/// and whenever the focus or a window's full screen has changed.
class SwayFullScreen : public FullScreenWatch
{
public:
    /// @param socket path of sway's socket file.
    SwayFullScreen(const QString &socket, qint64 self);

private:
    void read();
    void take(quint32 type, const QByteArray &payload);
    void ask();
    void giveUp(const QString &why);

    qint64 m_self;
    QByteArray m_bytes; ///< Of a message that has not come wholly.
    bool m_isAsking = false;
    bool m_isStale = false; ///< Something changed while the answer was on its way.
    QLocalSocket m_socket;
};

/// Tells from sway's tree of windows, as JSON, whether the focused one is in full screen and not one of the
/// process @p self; nothing when the text is no tree.
std::optional<bool> isFocusFullScreen(const QByteArray &tree, qint64 self);

} // namespace moravel
