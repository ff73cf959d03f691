// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "support/FakePlatform.h"
#include "support/Test.h"

#include "platform/linux/session/AutostartEntry.h"
#include "platform/linux/session/AutostartPortal.h"
#include "platform/linux/session/AutostartText.h"
#include "platform/linux/session/EndSignals.h"

#include <QDBusContext>

#include <csignal>

namespace {

const QString Name = u"/org.moravel.Moravel.desktop"_s;
const QStringList Command{u"/opt/my apps/moravel"_s, u"--hidden"_s};

TEST(AutostartText, tellsAndChangesWhatDesktopsRead)
{
    const struct
    {
        const char *entry;
        bool starts;
    } cases[] = {
        {"", false},
        {"[Desktop Entry]\nName=x\n", false},
        {"[Desktop Entry]\nExec=x\n", true},
        {"[Desktop Entry]\nExec=x\nHidden=false\nX-GNOME-Autostart-enabled=true\n", true},
        {"# c\n[Desktop Entry]\nExec=x\nHidden = true\n", false},
        {"[Desktop Entry]\nExec=x\nX-GNOME-Autostart-enabled=false\n", false},
        {"[Desktop Entry]\nExec=x\n[Desktop Action y]\nHidden=true\n", true},
        {"[Other]\nExec=x\n", false},
    };

    for (const auto &c : cases) {
        SCOPED_TRACE(c.entry);
        const QString entry = QString::fromLatin1(c.entry);
        EXPECT_EQ(startsWithSession(entry), c.starts);
        EXPECT_TRUE(startsWithSession(changedAutostart(entry, true, Command)));
        EXPECT_FALSE(startsWithSession(changedAutostart(entry, false, Command)));
    }
    const QString own = u"[Desktop Entry]\nExec=x --mine\nX-KDE-y=z\n"_s;
    EXPECT_TRUE(changedAutostart(own, false, Command).contains(u"Exec=x --mine\nX-KDE-y=z\n"));
    EXPECT_EQ(execLine({u"/a b/$c%"_s, u"\"\\"_s, u"-x"_s}),
              u"\"/a b/\\\\$c%%\" \"\\\\\"\\\\\\\\\" -x"_s);
}

TEST(AutostartEntry, theUsersEntryCountsBeforeTheSystems)
{
    TempHome home;
    const QStringList folders{home.path(u"user"_s), home.path(u"all"_s)};
    AutostartEntry autostart(Command, folders);
    const auto set = [&autostart](bool on) {
        bool ok = false;
        autostart.setOn(on, [&ok](const auto &result) { ok = result.has_value(); });
        return ok;
    };
    EXPECT_FALSE(autostart.isOn());
    EXPECT_TRUE(set(true) && autostart.isOn());
    EXPECT_TRUE(
        TempHome::read(folders[0] + Name).contains("Exec=\"/opt/my apps/moravel\" --hidden\n"));
    EXPECT_TRUE(set(false) && !autostart.isOn());
    EXPECT_FALSE(QFile::exists(folders[0] + Name)); // nothing is left behind

    home.write(u"all"_s + Name, "[Desktop Entry]\nExec=theirs\n");
    EXPECT_TRUE(autostart.isOn());
    EXPECT_TRUE(set(false) && !autostart.isOn());
    EXPECT_TRUE(set(true) && autostart.isOn());
    EXPECT_TRUE(TempHome::read(folders[0] + Name).contains("Exec=theirs\n"));

    home.write(u"file"_s, "in the way");
    AutostartEntry failing(Command, {home.path(u"file"_s)});
    QString error;
    failing.setOn(true, [&error](const auto &result) { error = result.error(); });
    EXPECT_FALSE(error.isEmpty());
}

/// A portal whose user answers as the test wants.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Background")

public:
    explicit FakePortal(QDBusConnection connection) : m_bus(connection)
    {
        m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                             QDBusConnection::ExportAllSlots);
        m_bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }

    bool allows = true;
    QStringList commandLine;

public Q_SLOTS:

    QDBusObjectPath RequestBackground(const QString &, const QVariantMap &options)
    {
        commandLine = options.value(u"commandline"_s).toStringList();
        const QString object = u"/answers/here"_s;
        QDBusMessage answer =
            QDBusMessage::createSignal(object, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        const QString autostart = u"autostart"_s;
        answer << uint(0) << QVariantMap{{autostart, allows && options.value(autostart).toBool()}};
        QMetaObject::invokeMethod(
            this, [this, answer] { m_bus.send(answer); }, Qt::QueuedConnection);
        return QDBusObjectPath(object);
    }

private:
    QDBusConnection m_bus;
};

TEST(AutostartPortal, keepsWhatTheUserAnswered)
{
    PrivateBus bus;
    FakePortal portal(bus.connection());
    FakeDefaults defaults;
    AutostartPortal autostart(bus.connection(), defaults, Command);
    int answers = 0;
    bool ok = false;
    const auto done = [&](const auto &result) {
        ++answers;
        ok = result.has_value();
    };

    const struct
    {
        bool allows, on, succeeds, isOn;
    } cases[] = {{true, true, true, true}, {true, false, true, false}, {false, true, false, false}};

    for (const auto &c : cases) {
        portal.allows = c.allows;
        autostart.setOn(c.on, done);
        MORAVEL_WAIT(answers == 1);
        EXPECT_EQ(ok, c.succeeds);
        EXPECT_EQ(autostart.isOn(), c.isOn);
        answers = 0;
    }
    EXPECT_EQ(portal.commandLine, Command);
}

TEST(EndSignals, endOnTheMainLoop)
{
    int asked = 0;
    {
        const EndSignals signals([&asked] { ++asked; });
        ::raise(SIGHUP);
        EXPECT_EQ(asked, 0);
        MORAVEL_WAIT(asked == 1);
        struct sigaction now = {};
        ::sigaction(SIGHUP, nullptr, &now);
        EXPECT_EQ(now.sa_handler, SIG_DFL); // the second one ends at once
    }
    ::signal(SIGHUP, SIG_IGN);
    const EndSignals ignoring([&asked] { ++asked; });
    ::raise(SIGHUP);
    QCoreApplication::processEvents();
    EXPECT_EQ(asked, 1);
    ::signal(SIGHUP, SIG_DFL);
}

} // namespace

#include "AutostartTest.moc"
