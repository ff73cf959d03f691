// SPDX-License-Identifier: MIT
#include "platform/linux/session/PortalNetwork.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

#include <utility>

namespace moravel {

namespace {

const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.NetworkMonitor");

} // namespace

PortalNetwork::PortalNetwork(const QDBusConnection &sessionBus)
    : m_bus(sessionBus), m_portal(sessionBus, QStringLiteral("org.freedesktop.portal.Desktop"))
{
    m_bus.connect({}, Path, Interface, QStringLiteral("changed"), this, SLOT(ask()));
    connect(&m_portal, &BusName::ownerChanged, this, &PortalNetwork::ask);
}

// The signal says only that something has changed.
void PortalNetwork::ask()
{
    if (!m_portal.isOwned())
        return setMetered(false);
    const QDBusMessage question = QDBusMessage::createMethodCall(m_portal.owner(), Path, Interface,
                                                                 QStringLiteral("GetStatus"));
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        const QDBusPendingReply<QVariantMap> reply = *call;
        if (!reply.isError() && m_portal.isOwned())
            setMetered(reply.value().value(QStringLiteral("metered")).toBool());
    });
}

void PortalNetwork::setMetered(bool metered)
{
    if (std::exchange(m_metered, metered) != metered)
        Q_EMIT changed();
}

} // namespace moravel
