// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Surroundings.h"
#include "platform/linux/session/BusProperties.h"
#include "platform/linux/session/PortalNetwork.h"
#include "platform/linux/session/SessionLock.h"

namespace moravel {

/// Asks UPower, the power profiles, NetworkManager, the log-in service and the screen savers, once, and
/// follows their signals from then on; in a sandbox, which hides most of them, the desktop's portal. Who is
/// not there is not missed.
class LinuxSurroundings : public QObject, public Surroundings
{
    Q_OBJECT

public:
    LinuxSurroundings(const QDBusConnection &systemBus, const QDBusConnection &sessionBus);

    SurroundingsState state() const override { return m_state; }

    /// What the window system tells; false where it does not.
    void setFullScreen(bool fullScreen);

private:
    void update();
    bool savesPower() const;
    bool isBatteryLow() const;
    bool isMetered() const;
    bool isOffline();

    BusProperties m_upower;
    BusProperties m_battery; ///< All batteries together.
    BusProperties m_profiles;
    BusProperties m_olderProfiles; ///< The same service by its first name.
    BusProperties m_network;
    BusProperties m_portalPower;
    PortalNetwork m_portalNetwork;
    SessionLock m_lock;
    bool m_fullScreen = false;
    bool m_wasOnline = false; ///< The network service does know our connection.
    SurroundingsState m_state;
};

} // namespace moravel
