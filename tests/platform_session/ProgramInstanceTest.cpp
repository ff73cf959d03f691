// SPDX-License-Identifier: MIT
// Two processes on a private bus: this one is the running program, the other one the real executable.
#include "platform/linux/session/ProgramInstance.h"

#include "PrivateBus.h"
#include "support/Wait.h"

#include <QProcess>

namespace moravel {

namespace {

using namespace moravel::testing;

class ProgramInstanceTest : public ::testing::Test
{
protected:
    ProgramInstanceTest()
    {
        instance.onActivate = [this] { asked.append(QStringLiteral("activate")); };
        instance.onAction = [this](const QString &action,
                                   const QVariantList &arguments) -> tl::expected<void, QString> {
            QStringList call{action};
            for (const QVariant &argument : arguments)
                call.append(argument.toString());
            asked.append(call.join(u'|'));
            if (action == u"no")
                return tl::unexpected(QStringLiteral("I won't."));
            return {};
        };
    }

    /// Starts the executable; the call returns at once.
    void start(const char *arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
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
    const struct
    {
        const char *arguments;
        int exitCode;
        const char *error, *asked;
    } table[] = {
        {"--command next", 0, "", "next"},
        {"--command=no", 1, "moravel: I won't.", "no"},
        {"", 0, "", "activate"},
        {"--sources \"One, Two words\"", 0, "", "sources|One|Two words"},
        {"--command", 2, "moravel: --command needs next, previous or hold", ""},
    };

    ASSERT_EQ(instance.claim(), ProgramInstance::Claim::First);
    instance.ready();
    for (const auto &row : table) {
        SCOPED_TRACE(row.arguments);
        asked.clear();
        start(row.arguments);
        EXPECT_EQ(end(), row.exitCode);
        EXPECT_TRUE(other.readAllStandardError().contains(row.error));
        EXPECT_EQ(asked.join(u';'), QLatin1String(row.asked));
    }
}

TEST_F(ProgramInstanceTest, requestsWaitUntilItIsReady)
{
    ASSERT_EQ(instance.claim(), ProgramInstance::Claim::First);
    ProgramInstance second(bus.connection());
    EXPECT_EQ(second.claim(), ProgramInstance::Claim::Second);
    start("--command hold");
    QDBusConnection caller = bus.connection();
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.moravel.Moravel"), QStringLiteral("/org/moravel/Moravel"),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
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

TEST_F(ProgramInstanceTest, saysThatNothingRuns)
{
    start("--command next");
    EXPECT_EQ(end(), 3);
    EXPECT_TRUE(other.readAllStandardError().contains("moravel: Moravel is not running\n"));
}

} // namespace

} // namespace moravel
