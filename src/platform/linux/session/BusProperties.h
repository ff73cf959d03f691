// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/session/BusName.h"

#include <QDBusMessage>
#include <QVariantMap>

namespace moravel {

/// Follows the properties of one interface of an object on a bus, from the moment its service is there.
/// Waits for nothing and starts no service; without the service there are no values.
class BusProperties : public QObject
{
    Q_OBJECT

public:
    struct Place
    {
        QString service;
        QString path;
        QString interface;
    };

    BusProperties(const QDBusConnection &bus, const Place &place);

    /// Invalid while it is not known.
    QVariant value(const QString &name) const { return m_values.value(name); }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void propertiesChanged(const QString &interface, const QVariantMap &changed,
                           const QStringList &invalidated, const QDBusMessage &message);

private:
    void readAll();

    QDBusConnection m_bus;
    Place m_place;
    BusName m_service;
    QVariantMap m_values;
};

} // namespace moravel
