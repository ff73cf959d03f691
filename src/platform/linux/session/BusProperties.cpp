// SPDX-License-Identifier: MIT
#include "platform/linux/session/BusProperties.h"

#include "platform/linux/session/Log.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace moravel {

namespace {

const QString Properties = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace

BusProperties::BusProperties(const QDBusConnection &bus, const Place &place)
    : m_bus(bus), m_place(place), m_service(bus, place.service)
{
    // Without a sender's name, since Qt would wait for the bus to resolve it; the slot checks it.
    m_bus.connect({}, place.path, Properties, QStringLiteral("PropertiesChanged"),
                  {place.interface}, QStringLiteral("sa{sv}as"), this,
                  SLOT(propertiesChanged(QString, QVariantMap, QStringList, QDBusMessage)));
    connect(&m_service, &BusName::ownerChanged, this, [this] {
        const bool hadValues = !m_values.isEmpty();
        m_values.clear();
        if (m_service.isOwned())
            readAll();
        else if (hadValues)
            Q_EMIT changed();
    });
}

void BusProperties::readAll()
{
    const QString owner = m_service.owner();
    QDBusMessage ask =
        QDBusMessage::createMethodCall(owner, m_place.path, Properties, QStringLiteral("GetAll"));
    ask << m_place.interface;
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(ask), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, owner] {
        call->deleteLater();
        if (owner != m_service.owner())
            return;
        const QDBusPendingReply<QVariantMap> reply = *call;
        if (reply.isError()) {
            qCDebug(lcSession).noquote() << m_place.interface << reply.error().message();
            return;
        }
        m_values = reply.value();
        Q_EMIT changed();
    });
}

void BusProperties::propertiesChanged(const QString &interface, const QVariantMap &changedValues,
                                      const QStringList &invalidated, const QDBusMessage &message)
{
    // Any user may send signals on the system bus.
    if (interface != m_place.interface || !m_service.isOwned()
        || message.service() != m_service.owner())
        return;
    m_values.insert(changedValues);
    if (!invalidated.isEmpty())
        readAll();
    Q_EMIT changed();
}

} // namespace moravel
