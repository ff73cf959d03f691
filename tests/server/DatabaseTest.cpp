// SPDX-License-Identifier: MIT
// Several services on one real database.
#include "server/ScriptedUpstream.h"
#include "support/TempHome.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpSocket>

#include <csignal>
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

namespace moravel::server {

namespace {

constexpr int patienceMs = 30'000;
constexpr int deadlineMs = 20'000;

/// A database server in a private folder, run by an ordinary user as it insists.
class Database
{
public:
    Database()
    {
        const QDir versions(QStringLiteral("/usr/lib/postgresql"));
        m_programs =
            versions.filePath(versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0))
            + QStringLiteral("/bin/");
        if (const passwd *user = ::geteuid() == 0 ? ::getpwnam("postgres") : nullptr) {
            m_as = {QStringLiteral("setpriv"), QStringLiteral("--reuid=%1").arg(user->pw_uid),
                    QStringLiteral("--regid=%1").arg(user->pw_gid),
                    QStringLiteral("--clear-groups")};
            EXPECT_EQ(::chown(qPrintable(m_home.path()), user->pw_uid, user->pw_gid), 0);
        }
        QProcess setUp;
        run(setUp,
            {m_programs + QStringLiteral("initdb"), QStringLiteral("-D"), data(),
             QStringLiteral("-A"), QStringLiteral("trust"), QStringLiteral("-U"),
             QStringLiteral("moravel"), QStringLiteral("--no-sync")});
        EXPECT_TRUE(setUp.waitForFinished(patienceMs));
        start();
    }

    ~Database() { stop(); }

    void start()
    {
        m_server = std::make_unique<QProcess>();
        m_server->setProcessChannelMode(QProcess::MergedChannels);
        run(*m_server,
            {m_programs + QStringLiteral("postgres"), QStringLiteral("-D"), data(),
             QStringLiteral("-k"), m_home.path(), QStringLiteral("-c"),
             QStringLiteral("listen_addresses="), QStringLiteral("-c"),
             QStringLiteral("fsync=off")});
        QByteArray log;
        while (!log.contains("ready to accept connections")
               && m_server->waitForReadyRead(patienceMs))
            log += m_server->readAll();
        EXPECT_TRUE(log.contains("ready to accept connections")) << log.toStdString();
    }

    void stop() const
    {
        if (m_server->processId() > 0) // 0 would end ourselves.
            ::kill(static_cast<pid_t>(m_server->processId()), SIGINT); // Ends all sessions.
        EXPECT_TRUE(m_server->waitForFinished(patienceMs));
    }

    QString address() const
    {
        return QStringLiteral("postgresql:///postgres?user=moravel&host=") + m_home.path();
    }

private:
    void run(QProcess &process, QStringList command) const
    {
        command = m_as + command;
        process.setWorkingDirectory(m_home.path());
        process.start(command.takeFirst(), command);
    }

    QString data() const { return m_home.path(QStringLiteral("data")); }

    testing::TempHome m_home;
    QString m_programs;
    QStringList m_as;
    std::unique_ptr<QProcess> m_server;
};

struct Instance
{
    QProcess process;
    quint16 port = 0;

    explicit Instance(const QString &config)
    {
        process.start(
            QStringLiteral(MORAVEL_SERVICE_PROGRAM),
            {QStringLiteral("--config"), config, QStringLiteral("--port"), QStringLiteral("0")});
        while (!process.canReadLine() && process.waitForReadyRead(patienceMs)) { }
        const QRegularExpression form(QStringLiteral(":(\\d+)/potd"));
        port = form.match(QString::fromUtf8(process.readLine())).captured(1).toUShort();
        EXPECT_GT(port, 0) << process.readAllStandardError().toStdString();
    }

    ~Instance()
    {
        process.terminate();
        process.waitForFinished(patienceMs);
    }

    void killNow()
    {
        process.kill();
        process.waitForFinished(patienceMs);
    }
};

struct Asker
{
    QTcpSocket socket;

    Asker(const Instance &instance, const QByteArray &source)
    {
        socket.connectToHost(QStringLiteral("127.0.0.1"), instance.port);
        socket.write("GET /potd/defs/moravel.irev?option=all&source=" + source
                     + "&date=1/14/2024 HTTP/1.1\r\nHost: h\r\nConnection: close\r\n\r\n");
        socket.waitForBytesWritten(patienceMs);
    }

    QByteArray answer()
    {
        while (socket.waitForReadyRead(deadlineMs)) { }
        return socket.readAll();
    }
};

struct TwoServices : ::testing::Test
{
    ScriptedUpstream upstream{
        {{"/f",
          "<rss><channel><title>F</title><item><title>A new day</title><pubDate>Sun, 14 Jan 2024 "
          "06:00:00 GMT</pubDate><enclosure url='/e.jpg' "
          "type='image/jpeg'/></item></channel></rss>"},
         {"/e.jpg", "JPEG"}}};
    testing::TempHome home;
    Database database;
    QString config;

    TwoServices()
    {
        QByteArray text =
            R"({"store": "#", "feedSources": [
                {"shortName": "One", "longName": "1", "address": "@/f", "private": true},
                {"shortName": "Two", "longName": "2", "address": "@/f?2", "private": true},
                {"shortName": "Three", "longName": "3", "address": "@/f?3", "private": true}]})";
        text.replace('#', database.address().toUtf8()).replace('@', upstream.base());
        config = home.write(QStringLiteral("c.json"), text);
        for (const char *target : {"/f?2", "/f?3"})
            upstream.set({target, "<rss><channel/></rss>"});
    }

    /// False when the source is not asked that often in time.
    bool isAsked(const QByteArray &target, int count)
    {
        const QDeadlineTimer end(patienceMs);
        while (upstream.count(target) < count && !end.hasExpired())
            std::this_thread::yield();
        return upstream.count(target) >= count;
    }
};

} // namespace

TEST_F(TwoServices, AskOnceForManyAndSurviveEachOtherAndTheDatabase)
{
    auto first = std::make_unique<Instance>(config);
    auto second = std::make_unique<Instance>(config);
    ASSERT_TRUE(first->port > 0 && second->port > 0);
    upstream.hold();
    constexpr int each = 100;
    std::vector<std::unique_ptr<Asker>> askers;
    for (int i = 0; i < each; ++i) {
        askers.push_back(std::make_unique<Asker>(*first, "One"));
        askers.push_back(std::make_unique<Asker>(*second, "One"));
    }
    ASSERT_TRUE(isAsked("/f", 1));
    upstream.letGo();
    for (const auto &asker : askers)
        EXPECT_TRUE(asker->answer().contains("A new day"));
    EXPECT_EQ(upstream.count("/f"), 1);

    // The one that is asking dies; the other takes over and answers its own askers.
    upstream.hold();
    Asker lost(*first, "Two");
    ASSERT_TRUE(isAsked("/f?2", 1));
    Asker kept(*second, "Two");
    first->killNow();
    ASSERT_TRUE(isAsked("/f?2", 2));
    upstream.letGo();
    EXPECT_TRUE(kept.answer().contains("Error: 2 has nothing for that day."));

    // One that waits for the other's answer dies: the other does not notice, and its answer stays.
    upstream.hold();
    Asker asking(*second, "Three");
    ASSERT_TRUE(isAsked("/f?3", 1));
    auto waiting = std::make_unique<Instance>(config);
    const Asker gone(*waiting, "Three");
    waiting->killNow();
    upstream.letGo();
    EXPECT_TRUE(asking.answer().contains("Error: 3 has nothing for that day."));
    second->killNow();
    const Instance later(config);
    EXPECT_TRUE(Asker(later, "Three").answer().contains("Error: 3 has nothing for that day."));
    EXPECT_EQ(upstream.count("/f?3"), 1);

    // What was stored is there for one that has never seen it, also while the database restarts.
    database.stop();
    const Instance third(config);
    Asker patient(third, "One");
    database.start();
    EXPECT_TRUE(patient.answer().contains("A new day"));
    EXPECT_EQ(upstream.count("/f"), 1);
}

} // namespace moravel::server
