// SPDX-License-Identifier: MIT
#include "platform/linux/session/SessionEvents.h"

#include "PrivateBus.h"

namespace {

void announceSleep(const QDBusConnection &from, bool begins)
{
    QDBusMessage signal = QDBusMessage::createSignal(
        u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s);
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

    logind.registerService(u"org.freedesktop.login1"_s);
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
    const SessionEvents events(QDBusConnection(u"no such bus"_s));
    QCoreApplication::processEvents();
}

} // namespace
