// SPDX-License-Identifier: MIT
// Two processes on a private bus: this one is the running program, the other one the real executable.
#include "platform/linux/session/ProgramInstance.h"

#include "PrivateBus.h"
#include "support/Test.h"

#include <QProcess>

namespace {

class ProgramInstanceTest : public ::testing::Test
{
protected:
    ProgramInstanceTest()
    {
        instance.onActivate = [this] { asked.append(u"activate"_s); };
        instance.onAction = [this](const QString &action,
                                   const QVariantList &arguments) -> tl::expected<void, QString> {
            QStringList call{action};
            for (const QVariant &argument : arguments)
                call.append(argument.toString());
            asked.append(call.join(u'|'));
            if (action == u"no")
                return tl::unexpected(u"I won't."_s);
            return {};
        };
    }

    /// Starts the executable; the call returns at once.
    void start(const char *arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        other.setProcessEnvironment(environment);
        other.start(QStringLiteral(MORAVEL_EXECUTABLE),
                    QProcess::splitCommand(QString::fromLatin1(arguments)));
    }

    int end()
    {
        EXPECT_TRUE(waitFor([this] { return other.state() == QProcess::NotRunning; }));
        return other.exitCode();
    }

    PrivateBus bus;
    ProgramInstance instance{bus.connection()};
    QStringList asked;
    QProcess other;
};

TEST_F(ProgramInstanceTest, answersOtherProcesses)
{
    const Table<const char *, int, const char *, const char *> table{
        {"--command next", 0, "", "next"},
        {"--command=no", 1, "moravel: I won't.", "no"},
        {"", 0, "", "activate"},
        {"--sources \"One, Two words\"", 0, "", "sources|One|Two words"},
        {"--command", 2, "moravel: --command needs next, previous or hold", ""},
    };

    start("--command next");
    EXPECT_EQ(end(), 3);
    EXPECT_TRUE(other.readAllStandardError().contains("moravel: Moravel is not running\n"));
    ASSERT_EQ(instance.claim(), ProgramInstance::Claim::First);
    instance.ready();
    for (const auto &[arguments, exitCode, error, calls] : table) {
        SCOPED_TRACE(arguments);
        asked.clear();
        start(arguments);
        EXPECT_EQ(end(), exitCode);
        EXPECT_TRUE(other.readAllStandardError().contains(error));
        EXPECT_EQ(asked.join(u';'), QLatin1String(calls));
    }
}

TEST_F(ProgramInstanceTest, requestsWaitUntilItIsReady)
{
    ASSERT_EQ(instance.claim(), ProgramInstance::Claim::First);
    ProgramInstance second(bus.connection());
    EXPECT_EQ(second.claim(), ProgramInstance::Claim::Second);
    start("--command hold");
    QDBusConnection caller = bus.connection();
    auto call = QDBusMessage::createMethodCall(u"org.moravel.Moravel"_s, u"/org/moravel/Moravel"_s,
                                               u"org.freedesktop.Application"_s, u"Activate"_s);
    call << QVariantMap();
    QList<QDBusPendingCall> calls;
    for (int i = 0; i <= ProgramInstance::MostWaiting; ++i)
        calls.append(caller.asyncCall(call));
    MORAVEL_WAIT(calls.last().isFinished());
    EXPECT_TRUE(calls.last().isError()); // one too many
    EXPECT_FALSE(calls.first().isFinished());
    EXPECT_EQ(asked, QStringList());
    instance.ready();
    MORAVEL_WAIT(calls.first().isFinished());
    EXPECT_FALSE(calls.first().isError());
    end();
}

} // namespace
