// SPDX-License-Identifier: MIT
// The settings of the running desktop are opened for real; their window is looked for.
#include "support/Test.h"

#include "platform/linux/session/LinuxWorkspace.h"

#include <QHash>
#include <QProcess>

namespace {

TEST(SettingsLab, opensTheWindow)
{
    // Part of the window's class, by desktop.
    const QHash<QByteArray, QByteArray> windows{{"XFCE", "xfdesktop-settings"},
                                                {"MATE", "mate-appearance-properties"}};
    const QByteArray window = windows.value(qgetenv("XDG_CURRENT_DESKTOP"));
    ASSERT_FALSE(window.isEmpty());
    LinuxWorkspace workspace(QDBusConnection::sessionBus());
    std::optional<QString> error;
    workspace.openDesktopSettings([&error](const QString &text) { error = text; });
    EXPECT_FALSE(error);
    MORAVEL_WAIT(error.has_value());
    EXPECT_EQ(*error, QString());
    const auto isThere = [&window] {
        QProcess list;
        list.start(u"xlsclients"_s, {u"-l"_s});
        return list.waitForFinished() && list.readAllStandardOutput().toLower().contains(window);
    };
    EXPECT_TRUE(waitFor(isThere));
}

} // namespace
