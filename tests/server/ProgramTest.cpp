// SPDX-License-Identifier: MIT
// The program itself as a child process.
#include "support/TempHome.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>

#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

namespace moravel::server {

namespace {

constexpr int patienceMs = 30'000;

struct Program : QProcess
{
    testing::TempHome home;

    explicit Program(const QStringList &arguments)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char *folder : {"XDG_STATE_HOME", "XDG_CACHE_HOME"})
            environment.insert(QString::fromLatin1(folder), home.path());
        setProcessEnvironment(environment);
        start(QStringLiteral(MORAVEL_SERVICE_PROGRAM), arguments);
    }

    /// The port of the line that says it is ready; 0 when it ends without.
    int port()
    {
        while (!canReadLine() && waitForReadyRead(patienceMs)) { }
        const QString line = QString::fromUtf8(readLine());
        const QRegularExpression form(QStringLiteral(
            "\\Amoravel-service: listening on http://127\\.0\\.0\\.1:(\\d+)/potd\n\\z"));
        return form.match(line).captured(1).toInt();
    }
};

QByteArray fetch(int port, const QByteArray &path)
{
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("127.0.0.1"), static_cast<quint16>(port));
    socket.write("GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\nConnection: close\r\n\r\n");
    QByteArray all;
    while (socket.waitForReadyRead(patienceMs))
        all += socket.readAll();
    return all;
}

} // namespace

TEST(Program, ServesAFolderAndEndsCleanlyOnEachSignal)
{
    const testing::TempHome home;
    QDir(home.path()).mkpath(QStringLiteral("pics"));
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::green);
    ASSERT_TRUE(image.save(home.path(QStringLiteral("pics/a.png"))));
    const QString config = home.write(
        QStringLiteral("c.json"),
        R"({"folderSources": [{"shortName": "Ours", "longName": "Our own", "path": "pics"}]})");
    for (const int signal : {SIGTERM, SIGINT}) {
        Program program(
            {QStringLiteral("--config"), config, QStringLiteral("--port"), QStringLiteral("0")});
        const int port = program.port();
        ASSERT_GT(port, 0);
        EXPECT_TRUE(fetch(port, "/potd/defs/getSources.irev").contains("Our own\tOurs\n"));
        EXPECT_TRUE(
            fetch(port, "/potd/pictures/ours-20200101-thumb.jpg").contains("\r\n\r\n\xff\xd8\xff"));
        ::kill(static_cast<pid_t>(program.processId()), signal);
        ASSERT_TRUE(program.waitForFinished(patienceMs));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 0);
        EXPECT_EQ(program.readAllStandardError().toStdString(), "");
    }
}

TEST(Program, TakesTheSocketOfTheServiceManager)
{
    QTcpServer listening;
    ASSERT_TRUE(listening.listen(QHostAddress::LocalHost));
    const int handed = ::dup(static_cast<int>(listening.socketDescriptor())); // Inherited.
    QProcess program;
    program.start(
        QStringLiteral("bash"),
        {QStringLiteral("-c"),
         QStringLiteral("export LISTEN_PID=$$ LISTEN_FDS=1; exec \"$0\" 3<&%1").arg(handed),
         QStringLiteral(MORAVEL_SERVICE_PROGRAM)});
    EXPECT_TRUE(fetch(listening.serverPort(), "/health").endsWith("\r\n\r\nok\n"));
    program.terminate();
    EXPECT_TRUE(program.waitForFinished(patienceMs));
    ::close(handed);
}

TEST(Program, SaysWhyItCannotRun)
{
    const testing::TempHome home;
    Program first({QStringLiteral("--config"), QStringLiteral(MORAVEL_SERVICE_PACKAGED_CONFIG),
                   QStringLiteral("--port"), QStringLiteral("0")});
    const QString taken = QString::number(first.port());
    const QString unknown =
        home.write(QStringLiteral("c.json"), R"({"computedSources": {"Nothing": true}})");

    const struct
    {
        QStringList arguments;
        int status;
        const char *says;
    } cases[] = {{{QStringLiteral("--port"), taken}, 1, "Address already in use"},
                 {{QStringLiteral("--config"), unknown}, 2, "\"Nothing\""},
                 {{QStringLiteral("--prot")}, 2, "Unknown option"}};

    for (const auto &[arguments, status, says] : cases) {
        Program program(arguments);
        ASSERT_TRUE(program.waitForFinished(patienceMs));
        EXPECT_EQ(program.exitCode(), status);
        EXPECT_TRUE(program.readAllStandardError().contains(says)) << says;
    }
    first.terminate();
    EXPECT_TRUE(first.waitForFinished(patienceMs));
}

} // namespace moravel::server
