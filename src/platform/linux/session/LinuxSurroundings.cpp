// SPDX-License-Identifier: MIT
#include "platform/linux/session/LinuxSurroundings.h"

#include "platform/linux/session/Log.h"

namespace moravel {

namespace {

BusProperties::Place place(const char *service, const char *path, const char *interface)
{
    return {QString::fromLatin1(service), QString::fromLatin1(path),
            QString::fromLatin1(interface)};
}

} // namespace

LinuxSurroundings::LinuxSurroundings(const QDBusConnection &systemBus,
                                     const QDBusConnection &sessionBus)
    : m_upower(systemBus,
               place("org.freedesktop.UPower", "/org/freedesktop/UPower", "org.freedesktop.UPower"))
    , m_battery(systemBus,
                place("org.freedesktop.UPower", "/org/freedesktop/UPower/devices/DisplayDevice",
                      "org.freedesktop.UPower.Device"))
    , m_profiles(systemBus,
                 place("org.freedesktop.UPower.PowerProfiles",
                       "/org/freedesktop/UPower/PowerProfiles",
                       "org.freedesktop.UPower.PowerProfiles"))
    , m_olderProfiles(systemBus,
                      place("net.hadess.PowerProfiles", "/net/hadess/PowerProfiles",
                            "net.hadess.PowerProfiles"))
    , m_network(systemBus,
                place("org.freedesktop.NetworkManager", "/org/freedesktop/NetworkManager",
                      "org.freedesktop.NetworkManager"))
    , m_portalPower(sessionBus,
                    place("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                          "org.freedesktop.portal.PowerProfileMonitor"))
    , m_portalNetwork(sessionBus)
    , m_lock(systemBus, sessionBus)
{
    for (const BusProperties *one :
         {&m_upower, &m_battery, &m_profiles, &m_olderProfiles, &m_network, &m_portalPower})
        connect(one, &BusProperties::changed, this, &LinuxSurroundings::update);
    connect(&m_portalNetwork, &PortalNetwork::changed, this, &LinuxSurroundings::update);
    connect(&m_lock, &SessionLock::changed, this, &LinuxSurroundings::update);
}

void LinuxSurroundings::setFullScreen(bool fullScreen)
{
    m_fullScreen = fullScreen;
    update();
}

// On mains the same profile only means a quiet machine.
bool LinuxSurroundings::savesPower() const
{
    const QVariant onBattery = m_upower.value(QStringLiteral("OnBattery"));
    if (onBattery.isValid() && !onBattery.toBool())
        return false;
    const QString key = QStringLiteral("ActiveProfile");
    return m_profiles.value(key) == QStringLiteral("power-saver")
        || m_olderProfiles.value(key) == QStringLiteral("power-saver")
        || m_portalPower.value(QStringLiteral("power-saver-enabled")).toBool();
}

bool LinuxSurroundings::isBatteryLow() const
{
    constexpr uint Discharging = 2;
    constexpr uint LowWarning = 3; // above: critical, and about to switch off
    return m_battery.value(QStringLiteral("State")).toUInt() == Discharging
        && m_battery.value(QStringLiteral("WarningLevel")).toUInt() >= LowWarning;
}

bool LinuxSurroundings::isMetered() const
{
    constexpr uint Yes = 1;
    constexpr uint GuessYes = 3; // a telephone's connection, for one
    const uint metered = m_network.value(QStringLiteral("Metered")).toUInt();
    return metered == Yes || metered == GuessYes || m_portalNetwork.isMetered();
}

// A network service that never had a connection may leave the network to somebody else.
bool LinuxSurroundings::isOffline()
{
    constexpr uint BeyondThisMachine = 60; // at least the site; 70 is the internet
    const QVariant state = m_network.value(QStringLiteral("State"));
    const bool online = state.toUInt() >= BeyondThisMachine;
    m_wasOnline = state.isValid() && (m_wasOnline || online);
    return m_wasOnline && !online;
}

void LinuxSurroundings::update()
{
    const SurroundingsState now{savesPower(), isBatteryLow(), isMetered(),
                                isOffline(),  m_fullScreen,   m_lock.isLocked()};
    if (now == m_state)
        return;
    m_state = now;
    qCDebug(lcSession) << "power saver" << now.powerSaver << "battery low" << now.lowBattery
                       << "metered" << now.metered << "offline" << now.offline << "full screen"
                       << now.fullScreen << "locked" << now.locked;
    if (onChanged)
        onChanged();
}

} // namespace moravel
