// SPDX-License-Identifier: MIT
#include "platform/linux/session/SessionEvents.h"

namespace moravel {

namespace {

const QString Service = QStringLiteral("org.freedesktop.login1");

} // namespace

SessionEvents::SessionEvents(const QDBusConnection &systemBus) : m_logind(systemBus, Service)
{
    QDBusConnection bus = systemBus;
    // Without a sender's name, since Qt would wait for the bus to resolve it; the slot checks it.
    bus.connect({}, QStringLiteral("/org/freedesktop/login1"),
                QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"),
                this, SLOT(prepareForSleep(bool, QDBusMessage)));
}

void SessionEvents::prepareForSleep(bool goingToSleep, const QDBusMessage &message)
{
    // Any user may send signals on the system bus.
    if (goingToSleep || !m_logind.isOwned() || message.service() != m_logind.owner())
        return;
    if (onResume)
        onResume();
}

} // namespace moravel
