// SPDX-License-Identifier: MIT
// Two processes on a private bus: this one is the running program, the other one the real executable.
#include "platform/linux/session/ProgramInstance.h"

#include "PrivateBus.h"

#include "platform/linux/session/Activation.h"

#include <QProcess>

namespace {

struct ProgramInstanceTest : ::testing::Test
{
    ProgramInstanceTest()
    {
        instance.onAction = [this](const QString &action, const QVariantList &arguments,
                                   const RemoteControl::Answer &answer) {
            QStringList call{action};
            for (const QVariant &argument : arguments)
                call.append(argument.toString());
            asked.append(call.join(u'|'));
            if (action == u"quit")
                answer(tl::unexpected(u"I won't."_s));
            else
                answer(QVariantMap{{u"path"_s, u"/a\tb"_s}});
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
        {"next", 0, "", "next"},
        {"quit", 1, "moravel: I won't.\n", "quit"},
        {"", 0, "", "show"},
        {"--sources \"One, Two words\"", 0, "", "sources|One|Two words"},
        {"-platform offscreen set /a/../b.jpg", 0, "", "set|/a/../b.jpg"},
        {"current", 0, "File:    /a b\n", "current"},
        {"--json current", 0, R"("path": "/a\tb",)", "current"},
        {"now", 2, "moravel: unknown command: now\n", ""},
        {"set --help", 0, "Usage: moravel", ""},
    };

    start("next");
    EXPECT_EQ(end(), 3);
    EXPECT_TRUE(other.readAllStandardError().contains("moravel: Moravel is not running\n"));
    ASSERT_EQ(instance.claim(), ProgramInstance::Claim::First);
    instance.ready();
    for (const auto &[arguments, exitCode, says, calls] : table) {
        SCOPED_TRACE(arguments);
        asked.clear();
        start(arguments);
        EXPECT_EQ(end(), exitCode);
        const QByteArray told = other.readAllStandardOutput() + other.readAllStandardError();
        EXPECT_TRUE(told.contains(says)) << told.constData();
        EXPECT_EQ(asked.join(u';'), QLatin1String(calls));
    }
}

TEST_F(ProgramInstanceTest, itsOwnInterfaceIsAnswered)
{
    ASSERT_EQ(instance.claim(), ProgramInstance::Claim::First);
    instance.ready();
    const auto call = [caller = bus.connection()](const char *method,
                                                  const QVariantList &arguments) {
        auto message =
            QDBusMessage::createMethodCall(u"org.moravel.Moravel"_s, u"/org/moravel/Moravel"_s,
                                           u"org.moravel.Moravel1"_s, QLatin1String(method));
        message.setArguments(arguments);
        const QDBusPendingCall pending = caller.asyncCall(message);
        EXPECT_TRUE(waitFor([&pending] { return pending.isFinished(); }));
        const QDBusMessage reply = pending.reply();
        return pending.isError() ? reply.errorMessage() : reply.signature();
    };
    for (const char *method :
         {"Next", "Previous", "Hold", "Show", "ShowLargePicture", "ShowBrowser"})
        EXPECT_EQ(call(method, {}), QString());
    EXPECT_EQ(call("Current", {}), u"a{sv}"_s);
    EXPECT_EQ(call("SetFile", {u"/x"_s}), QString());
    EXPECT_EQ(call("Quit", {}), u"I won't."_s);
    EXPECT_EQ(asked.join(u' '), u"next previous hold show large browser current set|/x quit"_s);
}

TEST(Activation, timeOfTheClick)
{
    EXPECT_EQ(timeOfStartupId(u"panel/moravel/12-3-host_TIME4294967295"_s), 4294967295U);
    for (const char *none : {"a_TIME4294967296", "a_TIME", "12"})
        EXPECT_FALSE(timeOfStartupId(QLatin1String(none))) << none;
}

TEST_F(ProgramInstanceTest, requestsWaitUntilItIsReady)
{
    ASSERT_EQ(instance.claim(), ProgramInstance::Claim::First);
    ProgramInstance second(bus.connection());
    EXPECT_EQ(second.claim(), ProgramInstance::Claim::Second);
    start("hold");
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
