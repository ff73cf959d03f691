// SPDX-License-Identifier: MIT
#include "platform/linux/session/BusName.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace moravel {

BusName::BusName(const QDBusConnection &bus, const QString &name)
{
    auto *watcher =
        new QDBusServiceWatcher(name, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) { setOwner(owner); });
    // The bus sends its answer and later changes in order, so the last one holds.
    QDBusMessage ask = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetNameOwner"));
    ask << name;
    auto *call = new QDBusPendingCallWatcher(bus.asyncCall(ask), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        const QDBusPendingReply<QString> reply = *call;
        if (!reply.isError())
            setOwner(reply.value());
    });
}

void BusName::setOwner(const QString &owner)
{
    if (m_owner == owner)
        return;
    m_owner = owner;
    Q_EMIT ownerChanged();
}

} // namespace moravel
