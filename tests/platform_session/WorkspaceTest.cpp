// SPDX-License-Identifier: MIT
#include "FakeServices.h"
#include "support/UrlRecorder.h"

#include "platform/linux/session/LinuxWorkspace.h"

namespace {

TEST(Workspace, showsAFileInTheFileManagerOrElseItsFolder)
{
    const QString path = QString::fromUtf8("/p q/\xC3\xBC 100%41 #\"'.jpg");
    PrivateBus bus;
    LinuxWorkspace workspace(bus.connection());
    UrlRecorder opener({u"file"_s});
    workspace.revealInFileManager(path);
    MORAVEL_WAIT(!opener.opened.isEmpty());
    EXPECT_EQ(opener.opened, QStringList{u"file:///p%20q"_s});

    QStringList shown;
    const FakeService manager(bus.connection(), "org.freedesktop.FileManager1",
                              [&shown](const QDBusMessage &call) {
                                  shown += call.arguments().value(0).toStringList();
                                  return QVariant();
                              });
    workspace.revealInFileManager(path);
    MORAVEL_WAIT(!shown.isEmpty());
    EXPECT_EQ(shown, QStringList{u"file:///p%20q/%C3%BC%20100%2541%20%23%22'.jpg"_s});
    EXPECT_EQ(opener.opened.size(), 1);
}

TEST(Workspace, tellsWhatTheSettingsScriptSays)
{
    const TempHome home;

    const Table<const char *, QString> rows{
        {"exit 0", {}},
        {"echo notes >&2; echo out", {}},
        {"echo '  No <b>way</b>. ' >&2; exit 3", u"No <b>way</b>."_s},
        {"exit 3", u"The script ended with error 3."_s},
        {"kill -9 $$", u"Process crashed"_s},
        {"while :; do echo x; done | head -c 5000 >&2; exit 1", u"x\n"_s.repeated(1000).trimmed()},
    };
    for (const auto &[script, error] : rows) {
        SCOPED_TRACE(script);
        LinuxWorkspace workspace(QDBusConnection(u"none"_s), home.write(u"script"_s, script));
        QStringList errors;
        for (int i = 0; i < 2; ++i) // the second waits for the first
            workspace.openDesktopSettings([&errors](const QString &e) { errors.append(e); });
        EXPECT_TRUE(errors.isEmpty());
        MORAVEL_WAIT(errors.size() == 2);
        EXPECT_EQ(errors, (QStringList{error, error}));
    }
    LinuxWorkspace without(QDBusConnection(u"none"_s), home.path(u"missing"_s));
    QString error;
    without.openDesktopSettings([&error](const QString &e) { error = e; });
    MORAVEL_WAIT(!error.isEmpty());
    EXPECT_EQ(error, u"No such file or directory"_s);
}

} // namespace
