// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "support/Test.h"

#include "platform/linux/session/LinuxSurroundings.h"

#include <QDBusVirtualObject>

namespace {

const QString Properties = u"org.freedesktop.DBus.Properties"_s;

/// Any service with properties, for all of its objects.
class Service : public QDBusVirtualObject
{
public:
    Service(const QDBusConnection &bus, const char *name)
        : m_bus(bus), m_name(QString::fromLatin1(name))
    {
        m_bus.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath);
        m_bus.registerService(m_name);
    }

    ~Service() override { m_bus.unregisterService(m_name); }

    /// Sets a property of "path interface" and tells of it.
    void set(const char *place, const char *key, const QVariant &value)
    {
        const QString where = QString::fromLatin1(place);
        m_values[where].insert(QString::fromLatin1(key), value);
        QDBusMessage signal = QDBusMessage::createSignal(where.section(u' ', 0, 0), Properties,
                                                         u"PropertiesChanged"_s);
        signal << where.section(u' ', 1) << QVariantMap{{QString::fromLatin1(key), value}}
               << QStringList();
        m_bus.send(signal);
        PrivateBus::flush(m_bus);
    }

    void emitActive(const char *path, bool active)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(QString::fromLatin1(path), m_name, u"ActiveChanged"_s);
        m_bus.send(signal << active);
    }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        QVariant answer = true; // GetActive
        if (message.member() == u"GetAll")
            answer = m_values[message.path() + u' ' + message.arguments().value(0).toString()];
        else if (message.member() == u"GetSession")
            answer = QVariant::fromValue(QDBusObjectPath(u"/session/_32"_s));
        else if (message.member() == u"GetStatus")
            answer = QVariantMap{{u"metered"_s, true}};
        return connection.send(message.createReply(answer));
    }

    QString introspect(const QString &) const override { return {}; }

private:
    QDBusConnection m_bus;
    QString m_name;
    QMap<QString, QVariantMap> m_values;
};

class SurroundingsTest : public ::testing::Test
{
protected:
    SurroundingsTest()
    {
        surroundings.onChanged = [this] { ++changes; };
    }

    /// Waits for exactly this state.
    bool becomes(const SurroundingsState &state)
    {
        return waitFor([&] { return surroundings.state() == state; });
    }

    PrivateBus system, session;
    LinuxSurroundings surroundings{system.connection(), session.connection()};
    int changes = 0;
};

const char Daemon[] = "/org/freedesktop/UPower org.freedesktop.UPower";
const char Battery[] =
    "/org/freedesktop/UPower/devices/DisplayDevice org.freedesktop.UPower.Device";
const char Profiles[] = "/net/hadess/PowerProfiles net.hadess.PowerProfiles";
const char Network[] = "/org/freedesktop/NetworkManager org.freedesktop.NetworkManager";
const char Portal[] = "/org/freedesktop/portal/desktop org.freedesktop.portal.PowerProfileMonitor";
const char Session[] = "/session/_32 org.freedesktop.login1.Session";

TEST_F(SurroundingsTest, followsTheBatteryAndItsSaver)
{
    auto profiles = std::make_unique<Service>(system.connection(), "net.hadess.PowerProfiles");
    profiles->set(Profiles, "ActiveProfile", u"balanced"_s);
    profiles->set(Profiles, "ActiveProfile", u"power-saver"_s);
    EXPECT_TRUE(becomes({.powerSaver = true}));
    Service upower(system.connection(), "org.freedesktop.UPower");
    upower.set(Daemon, "OnBattery", false);
    EXPECT_TRUE(becomes({})) << "on mains there is nothing to save";
    upower.set(Daemon, "OnBattery", true);
    EXPECT_TRUE(becomes({.powerSaver = true}));
    profiles.reset(); // the service has gone
    EXPECT_TRUE(becomes({}));
    upower.set(Battery, "WarningLevel", 4U);
    upower.set(Battery, "State", 2U);
    EXPECT_TRUE(becomes({.lowBattery = true}));
    upower.set(Battery, "State", 1U); // it is being charged
    EXPECT_TRUE(becomes({}));
}

TEST_F(SurroundingsTest, followsTheConnection)
{
    Service network(system.connection(), "org.freedesktop.NetworkManager");
    network.set(Network, "State", 20U); // without any connection so far: perhaps it is not its own
    network.set(Network, "Metered", 3U);
    EXPECT_TRUE(becomes({.metered = true}));
    network.set(Network, "Metered", 4U);
    network.set(Network, "State", 70U);
    EXPECT_TRUE(becomes({}));
    network.set(Network, "State", 20U);
    EXPECT_TRUE(becomes({.offline = true}));
    network.set(Network, "State", 60U);
    EXPECT_TRUE(becomes({}));
    EXPECT_EQ(changes, 4);
}

TEST_F(SurroundingsTest, followsLockAndFullScreen)
{
    Service logind(system.connection(), "org.freedesktop.login1");
    logind.set(Session, "LockedHint", true);
    EXPECT_TRUE(becomes({.locked = true}));
    logind.set(Session, "LockedHint", false);
    EXPECT_TRUE(becomes({}));
    {
        Service saver(session.connection(), "org.gnome.ScreenSaver");
        EXPECT_TRUE(becomes({.locked = true})) << "was blanked before";
        saver.emitActive("/org/gnome/ScreenSaver", false);
        EXPECT_TRUE(becomes({}));
        saver.emitActive("/org/gnome/ScreenSaver", true);
        EXPECT_TRUE(becomes({.locked = true}));
    }
    EXPECT_TRUE(becomes({}));
    surroundings.setFullScreen(true);
    EXPECT_TRUE(surroundings.state().fullScreen);
    const int before = changes;
    surroundings.setFullScreen(true);
    EXPECT_EQ(changes, before);
}

TEST_F(SurroundingsTest, asksThePortalInASandbox)
{
    {
        Service portal(session.connection(), "org.freedesktop.portal.Desktop");
        portal.set(Portal, "power-saver-enabled", true);
        EXPECT_TRUE(becomes({.powerSaver = true, .metered = true}));
    }
    EXPECT_TRUE(becomes({}));
}

TEST_F(SurroundingsTest, believesOnlyTheServiceItself)
{
    Service network(system.connection(), "org.freedesktop.NetworkManager");
    network.set(Network, "State", 70U);
    Service liar(system.connection(), "org.example.Liar");
    liar.set(Network, "Metered", 1U);
    network.set(Network, "State", 20U); // arrives after the lie
    EXPECT_TRUE(becomes({.offline = true}));
}

} // namespace
