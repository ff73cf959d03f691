// SPDX-License-Identifier: MIT
#include "platform/linux/session/SessionLock.h"

#include "platform/linux/session/Log.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <algorithm>

namespace moravel {

namespace {

const QString Logind = QStringLiteral("org.freedesktop.login1");

// Each desktop has its own name for the same; some offer several.
const char *const ScreenSavers[] = {"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver",
                                    "org.cinnamon.ScreenSaver", "org.mate.ScreenSaver",
                                    "org.xfce.ScreenSaver"};

BusProperties::Place screenSaverPlace(const char *name)
{
    const QString service = QString::fromLatin1(name);
    return {service, u'/' + QString(service).replace(u'.', u'/'), service};
}

} // namespace

ScreenSaver::ScreenSaver(const QDBusConnection &sessionBus, const BusProperties::Place &place)
    : m_bus(sessionBus), m_place(place), m_service(sessionBus, place.service)
{
    m_bus.connect({}, place.path, place.interface, QStringLiteral("ActiveChanged"), this,
                  SLOT(activeChanged(bool, QDBusMessage)));
    connect(&m_service, &BusName::ownerChanged, this, [this] {
        setActive(false);
        if (m_service.isOwned())
            ask();
    });
}

void ScreenSaver::ask()
{
    const QString owner = m_service.owner();
    const QDBusMessage question = QDBusMessage::createMethodCall(
        owner, m_place.path, m_place.interface, QStringLiteral("GetActive"));
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, owner] {
        call->deleteLater();
        const QDBusPendingReply<bool> reply = *call;
        if (!reply.isError() && owner == m_service.owner())
            setActive(reply.value());
    });
}

void ScreenSaver::activeChanged(bool active, const QDBusMessage &message)
{
    if (message.service() == m_service.owner())
        setActive(active);
}

void ScreenSaver::setActive(bool active)
{
    if (std::exchange(m_active, active) != active)
        Q_EMIT changed();
}

SessionLock::SessionLock(const QDBusConnection &systemBus, const QDBusConnection &sessionBus)
    : m_systemBus(systemBus), m_logind(systemBus, Logind)
{
    connect(&m_logind, &BusName::ownerChanged, this, &SessionLock::findSession);
    for (const char *name : ScreenSavers) {
        ScreenSaver &saver = m_screenSavers.emplace_back(sessionBus, screenSaverPlace(name));
        connect(&saver, &ScreenSaver::changed, this, &SessionLock::changed);
    }
}

void SessionLock::findSession()
{
    if (!m_logind.isOwned() || m_session)
        return; // the object stays the same over a restart of the service
    QDBusMessage question = QDBusMessage::createMethodCall(
        m_logind.owner(), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("GetSession"));
    // Ours, or, for a program that the user's service manager has started, the user's graphical one.
    question << QStringLiteral("auto");
    auto *call = new QDBusPendingCallWatcher(m_systemBus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *call;
        if (reply.isError() || m_session) {
            qCDebug(lcSession).noquote() << "no session:" << reply.error().message();
            return;
        }
        m_session = std::make_unique<BusProperties>(
            m_systemBus,
            BusProperties::Place{Logind, reply.value().path(),
                                 QStringLiteral("org.freedesktop.login1.Session")});
        connect(m_session.get(), &BusProperties::changed, this, &SessionLock::changed);
    });
}

bool SessionLock::isLocked() const
{
    return (m_session && m_session->value(QStringLiteral("LockedHint")).toBool())
        || std::any_of(m_screenSavers.begin(), m_screenSavers.end(),
                       [](const ScreenSaver &saver) { return saver.isActive(); });
}

} // namespace moravel
