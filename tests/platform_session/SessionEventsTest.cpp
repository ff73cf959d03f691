// SPDX-License-Identifier: MIT
#include "platform/linux/session/SessionEvents.h"

#include "PrivateBus.h"
#include "support/Wait.h"

namespace moravel {

namespace {

using namespace moravel::testing;

void announceSleep(const QDBusConnection &from, bool begins)
{
    QDBusMessage signal = QDBusMessage::createSignal(
        QStringLiteral("/org/freedesktop/login1"), QStringLiteral("org.freedesktop.login1.Manager"),
        QStringLiteral("PrepareForSleep"));
    signal << begins;
    from.send(signal);
    PrivateBus::flush(from);
}

TEST(SessionEvents, tellsOfEachResumeThatTheLogInServiceAnnounces)
{
    PrivateBus bus;
    QDBusConnection logind = bus.connection();
    SessionEvents events(bus.connection());
    int resumes = 0;
    int marks = 0; // of a second listener, which follows a service that is there from the start
    events.onResume = [&resumes] { ++resumes; };
    announceSleep(bus.connection(), false); // anyone's word, and no service yet

    logind.registerService(QStringLiteral("org.freedesktop.login1"));
    announceSleep(bus.connection(), false);
    announceSleep(logind, true);
    announceSleep(logind, false);
    MORAVEL_WAIT(resumes > 0);
    EXPECT_EQ(resumes, 1);

    SessionEvents late(bus.connection());
    late.onResume = [&marks] { ++marks; };
    MORAVEL_WAIT((announceSleep(logind, false), marks > 0));
}

TEST(SessionEvents, aMissingBusChangesNothing)
{
    const SessionEvents events(QDBusConnection(QStringLiteral("no such bus")));
    QCoreApplication::processEvents();
}

} // namespace

} // namespace moravel
