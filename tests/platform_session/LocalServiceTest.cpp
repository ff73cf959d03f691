// SPDX-License-Identifier: MIT
#include "platform/linux/session/LocalService.h"

#include "support/FakeMainLoop.h"
#include "support/Test.h"

#include <QHostAddress>
#include <QTcpServer>

#include <csignal>

namespace {

// A stand-in for the service leaves its process id and its arguments.
TEST(LocalService, startsWhereNobodyAnswersAndEnds)
{
    const TempHome home;
    FakeMainLoop loop;
    const QString started = home.path(u"started"_s);
    const auto program = [&](const QString &name, const char *end) {
        const QString path =
            home.write(name, "#!/bin/sh\necho $$ \"$@\" >" + started.toUtf8() + "\n" + end + "\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
        return path;
    };
    const QString good = program(u"good"_s, "echo listening on; exec sleep 60");
    const QString bad = program(u"bad"_s, "exit 1");
    QTcpServer server, other;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost) && other.listen(QHostAddress::LocalHost));
    const QString taken = QString::number(server.serverPort());
    const QString free = QString::number(other.serverPort());
    other.close();
    const Table<QString, QString, bool> table{
        {u"http://127.0.0.1:"_s + taken, good, false},
        {u"http://192.0.2.1:"_s + free, good, false},
        {u"http://127.0.0.1:"_s + free, home.path(u"none"_s), false},
        {u"http://127.0.0.1:"_s + free, bad, true},
        {u"http://localhost:"_s + free, good, true},
    };
    for (const auto &[host, path, starts] : table) {
        SCOPED_TRACE(qPrintable(host + path));
        QFile::remove(started);
        int done = 0;
        {
            LocalService service({QUrl(host + u"/potd"_s), path, {}}, loop);
            service.ensure([&done] { ++done; });
            EXPECT_EQ(done, 0);
            loop.advance(0);
            MORAVEL_WAIT(done > 0);
            loop.advance(10);
        }
        EXPECT_EQ(done, 1);
        const QString line = QString::fromUtf8(TempHome::read(started)).trimmed();
        EXPECT_EQ(line.section(u' ', 1), starts ? u"--bind 127.0.0.1 --port "_s + free : QString());
        if (starts) {
            EXPECT_EQ(::kill(line.section(u' ', 0, 0).toInt(), 0), -1); // it ended with its owner
        }
    }
}

TEST(LocalService, startsAgainWhatEndedByItself)
{
    const TempHome home;
    FakeMainLoop loop;
    const QString starts = home.path(u"starts"_s);
    const QString path =
        home.write(u"p"_s, "#!/bin/sh\necho >>" + starts.toUtf8() + "\necho listening on\n");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
    LocalService service({QUrl(u"http://127.0.0.1:1/potd"_s), path, {}}, loop);
    service.ensure([] {});
    const QDateTime start = loop.now();
    MORAVEL_WAIT((loop.advance(1), TempHome::read(starts).size() == 3));
    EXPECT_GE(start.secsTo(loop.now()), 120);
}

} // namespace
