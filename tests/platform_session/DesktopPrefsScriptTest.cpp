// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "platform/linux/session/LinuxWorkspace.h"

#include <QDBusConnection>

namespace {

// A PATH that holds what the script itself uses, and the named programs, which note how they were called.
class Programs
{
public:
    explicit Programs(const QStringList &names, int exitCode = 0)
    {
        for (const char *tool : {"tr", "sleep"})
            QFile::link(u"/usr/bin/"_s + QLatin1String(tool), m_home.path(QLatin1String(tool)));
        for (const QString &name : names) {
            const QString path =
                m_home.write(name,
                             "#!/bin/sh\necho \"${0##*/} $*\" >> '" + log().toUtf8() + "'\nexit "
                                 + QByteArray::number(exitCode) + '\n');
            QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
        }
        qputenv("PATH", m_home.path().toUtf8());
    }

    ~Programs() { qputenv("PATH", m_before); }

    Q_DISABLE_COPY_MOVE(Programs)

    QString called() const { return QString::fromUtf8(TempHome::read(log())).trimmed(); }

private:
    QString log() const { return m_home.path(u"log"_s); }

    const QByteArray m_before = qgetenv("PATH");
    const TempHome m_home;
};

QString errorOf(const char *desktop)
{
    qputenv("XDG_CURRENT_DESKTOP", desktop);
    LinuxWorkspace workspace(QDBusConnection(u"none"_s));
    std::optional<QString> error;
    workspace.openDesktopSettings([&error](const QString &text) { error = text; });
    EXPECT_TRUE(waitFor([&error] { return error.has_value(); }));
    qunsetenv("XDG_CURRENT_DESKTOP");
    return error.value_or(u"(no answer)"_s);
}

TEST(DesktopPrefsScript, opensTheSettingsOfTheRunningDesktop)
{
    const Table<const char *, const char *, const char *> rows{
        {"GNOME", "gnome-control-center xfdesktop-settings", "gnome-control-center background"},
        {"ubuntu:GNOME", "gnome-control-center", "gnome-control-center background"},
        {"GNOME-Flashback:GNOME", "gnome-control-center", "gnome-control-center background"},
        {"Budgie:GNOME", "budgie-control-center gnome-control-center",
         "budgie-control-center background"},
        {"Budgie:GNOME", "gnome-control-center", "gnome-control-center background"},
        {"Unity:Unity7:ubuntu", "unity-control-center", "unity-control-center appearance"},
        {"Pantheon", "io.elementary.switchboard", "io.elementary.switchboard settings://desktop"},
        {"KDE", "systemsettings", "systemsettings"},
        {"KDE", "kcmshell6 systemsettings", "systemsettings kcm_wallpaper"},
        {"KDE", "systemsettings5", "systemsettings5"},
        {"xfce", "xfdesktop-settings nitrogen", "xfdesktop-settings"},
        {"X-Cinnamon", "cinnamon-settings", "cinnamon-settings backgrounds"},
        {"MATE", "mate-appearance-properties", "mate-appearance-properties --show-page=background"},
        {"LXQt", "pcmanfm-qt lxqt-config-appearance", "pcmanfm-qt --desktop-pref=bg"},
        {"LXQt", "lxqt-config-appearance", "lxqt-config-appearance"},
        {"LXDE", "pcmanfm", "pcmanfm --desktop-pref"},
        {"sway", "waypaper", "waypaper"},
        {"", "nitrogen xfdesktop-settings", "nitrogen"},
    };

    qunsetenv("WAYLAND_DISPLAY");
    for (const auto &[desktop, installed, called] : rows) {
        SCOPED_TRACE(::testing::Message() << desktop << ", " << installed);
        const Programs programs(QString::fromLatin1(installed).split(u' '));
        EXPECT_EQ(errorOf(desktop), QString());
        EXPECT_EQ(programs.called(), QString::fromLatin1(called));
    }
}

TEST(DesktopPrefsScript, saysWhatFailed)
{
    {
        const Programs failing({u"xfdesktop-settings"_s}, 7);
        EXPECT_EQ(errorOf("XFCE"), u"The program xfdesktop-settings ended with error 7."_s);
    }
    const Programs none({});
    for (const char *desktop : {"$(touch x):*:%s\\n;-e", "this desktop"})
        EXPECT_EQ(errorOf(desktop == std::string("this desktop") ? "" : desktop),
                  u"No desktop settings were found for %1 (looked for waypaper nitrogen)."_s.arg(
                      QLatin1String(desktop)));
}

} // namespace
