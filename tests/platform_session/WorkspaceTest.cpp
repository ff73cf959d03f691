// SPDX-License-Identifier: MIT
#include "FakeServices.h"
#include "PrivateBus.h"
#include "support/TempHome.h"
#include "support/Wait.h"

#include "platform/linux/session/LinuxWorkspace.h"

#include <QDesktopServices>

namespace moravel {

namespace {

using namespace moravel::testing;

TEST(Workspace, showsAFileInTheFileManagerOrElseItsFolder)
{
    const QString path = QString::fromUtf8("/p q/\xC3\xBC 100%41 #\"'.jpg");
    PrivateBus bus;
    LinuxWorkspace workspace(bus.connection());
    FakeOpener opener;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &opener, "open");
    workspace.revealInFileManager(path);
    MORAVEL_WAIT(!opener.opened.isEmpty());
    EXPECT_EQ(opener.opened, QList<QUrl>{QUrl::fromLocalFile(QStringLiteral("/p q"))});

    FakeFileManager manager(bus.connection());
    workspace.revealInFileManager(path);
    MORAVEL_WAIT(!manager.shown.isEmpty());
    EXPECT_EQ(manager.shown,
              QStringList{QStringLiteral("file:///p%20q/%C3%BC%20100%2541%20%23%22'.jpg")});
    EXPECT_EQ(opener.opened.size(), 1);
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

TEST(Workspace, tellsWhatTheSettingsScriptSays)
{
    const TempHome home;

    const struct
    {
        const char *script;
        QString error;
    } rows[] = {
        {"exit 0", {}},
        {"echo notes >&2; echo out", {}},
        {"echo '  No <b>way</b>. ' >&2; exit 3", QStringLiteral("No <b>way</b>.")},
        {"exit 3", QStringLiteral("The script ended with error 3.")},
        {"kill -9 $$", QStringLiteral("Process crashed")},
        {"while :; do echo x; done | head -c 5000 >&2; exit 1",
         QStringLiteral("x\n").repeated(1000).trimmed()},
    };

    for (const auto &row : rows) {
        SCOPED_TRACE(row.script);
        LinuxWorkspace workspace(QDBusConnection(QStringLiteral("none")),
                                 home.write(QStringLiteral("script"), row.script));
        QStringList errors;
        for (int i = 0; i < 2; ++i) // the second waits for the first
            workspace.openDesktopSettings([&errors](const QString &e) { errors.append(e); });
        EXPECT_TRUE(errors.isEmpty());
        MORAVEL_WAIT(errors.size() == 2);
        EXPECT_EQ(errors, (QStringList{row.error, row.error}));
    }
    LinuxWorkspace without(QDBusConnection(QStringLiteral("none")),
                           home.path(QStringLiteral("missing")));
    QString error;
    without.openDesktopSettings([&error](const QString &e) { error = e; });
    MORAVEL_WAIT(!error.isEmpty());
    EXPECT_EQ(error, QStringLiteral("No such file or directory"));
}

} // namespace

} // namespace moravel
