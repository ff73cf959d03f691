// SPDX-License-Identifier: MIT
#include "FakeServices.h"

#include "platform/linux/session/LinuxSurroundings.h"

namespace {

/// Any service with properties, for all of its objects.
class Service : public FakeService
{
public:
    Service(const QDBusConnection &connection, const char *name)
        : FakeService(connection, name, [this](const QDBusMessage &call) { return answer(call); })
    { }

    /// Sets a property of "path interface" and tells of it.
    void set(const char *place, const char *key, const QVariant &value)
    {
        const QString where = QString::fromLatin1(place);
        const QVariantMap change{{QLatin1String(key), value}};
        m_values[where].insert(change);
        tell(where.section(u' ', 0, 0) + u" org.freedesktop.DBus.Properties"_s, "PropertiesChanged",
             {where.section(u' ', 1), change, QStringList()});
        PrivateBus::flush(bus);
    }

private:
    QVariant answer(const QDBusMessage &call) const
    {
        if (call.member() == u"GetAll")
            return m_values[call.path() + u' ' + call.arguments().value(0).toString()];
        if (call.member() == u"GetSession")
            return QVariant::fromValue(QDBusObjectPath(u"/session/_32"_s));
        if (call.member() == u"GetStatus")
            return QVariantMap{{u"metered"_s, true}};
        return true; // GetActive
    }

    QMap<QString, QVariantMap> m_values;
};

struct SurroundingsTest : ::testing::Test
{
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
        const QString place = u"/org/gnome/ScreenSaver org.gnome.ScreenSaver"_s;
        EXPECT_TRUE(becomes({.locked = true})) << "was blanked before";
        saver.tell(place, "ActiveChanged", {false});
        EXPECT_TRUE(becomes({}));
        saver.tell(place, "ActiveChanged", {true});
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
