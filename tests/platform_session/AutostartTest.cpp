// SPDX-License-Identifier: MIT
#include "FakeServices.h"
#include "support/FakePlatform.h"

#include "platform/linux/session/AutostartEntry.h"
#include "platform/linux/session/AutostartPortal.h"
#include "platform/linux/session/AutostartText.h"
#include "platform/linux/session/EndSignals.h"

#include <csignal>

namespace {

const QString Name = u"/org.moravel.Moravel.desktop"_s;
const QStringList Command{u"/opt/my apps/moravel"_s, u"--hidden"_s};

TEST(AutostartText, tellsAndChangesWhatDesktopsRead)
{
    const Table<const char *, bool> cases{
        {"", false},
        {"[Desktop Entry]\nName=x\n", false},
        {"[Desktop Entry]\nExec=x\n", true},
        {"[Desktop Entry]\nExec=x\nHidden=false\nX-GNOME-Autostart-enabled=true\n", true},
        {"# c\n[Desktop Entry]\nExec=x\nHidden = true\n", false},
        {"[Desktop Entry]\nExec=x\nX-GNOME-Autostart-enabled=false\n", false},
        {"[Desktop Entry]\nExec=x\n[Desktop Action y]\nHidden=true\n", true},
        {"[Other]\nExec=x\n", false},
    };

    for (const auto &[text, starts] : cases) {
        SCOPED_TRACE(text);
        const QString entry = QString::fromLatin1(text);
        EXPECT_EQ(startsWithSession(entry), starts);
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

TEST(AutostartPortal, keepsWhatTheUserAnswered)
{
    PrivateBus bus;
    bool allows = true;
    QStringList commandLine;
    FakeService portal(bus.connection(), "org.freedesktop.portal.Desktop",
                       [&](const QDBusMessage &call) {
                           const auto options = qdbus_cast<QVariantMap>(call.arguments().value(1));
                           commandLine = options.value(u"commandline"_s).toStringList();
                           const QVariantMap results{
                               {u"autostart"_s, allows && options.value(u"autostart"_s).toBool()}};
                           const auto respond = [&portal, results] {
                               portal.tell(u"/answers/here org.freedesktop.portal.Request"_s,
                                           "Response", {0U, results});
                           };
                           QMetaObject::invokeMethod(&portal, respond, Qt::QueuedConnection);
                           return QVariant::fromValue(QDBusObjectPath(u"/answers/here"_s));
                       });
    FakeDefaults defaults;
    AutostartPortal autostart(bus.connection(), defaults, Command);
    const Table<bool, bool, bool, bool> cases{
        {true, true, true, true}, {true, false, true, false}, {false, true, false, false}};
    for (const auto &[allowed, on, succeeds, isOn] : cases) {
        allows = allowed;
        std::optional<bool> ok;
        autostart.setOn(on, [&ok](const auto &result) { ok = result.has_value(); });
        MORAVEL_WAIT(ok.has_value());
        EXPECT_EQ(*ok, succeeds);
        EXPECT_EQ(autostart.isOn(), isOn);
    }
    EXPECT_EQ(commandLine, Command);
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
