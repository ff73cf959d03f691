// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MainLoop.h"
#include "platform/linux/session/BusName.h"
#include "platform/linux/session/TrayLabel.h"

namespace moravel {

/// Waits for a tray to show an icon in. Qt decides at its first icon, once for the life of the program,
/// whether it speaks to the panel over the bus or embeds a window; so the first icon must not be made
/// before a tray is there.
class TrayHosts : public QObject
{
    Q_OBJECT

public:
    TrayHosts(const QDBusConnection &sessionBus, MainLoop &loop);

    /// Says that a tray for embedded windows is there. Panels that offer both kinds announce the other
    /// one a moment later, which is preferred.
    void embeddingTrayIsThere();

Q_SIGNALS:
    /// Once, when it is known which tray to use.
    void found(moravel::TrayKind kind);

private:
    void find(TrayKind kind);

    MainLoop &m_loop;
    BusName m_watcher;
    DelayedCallHandle m_patience;
    bool m_found = false;
};

} // namespace moravel
