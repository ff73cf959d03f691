// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

namespace moravel {

/// Follows which connection owns a well-known name on a bus. Waits for nothing and starts no service.
class BusName : public QObject
{
    Q_OBJECT

public:
    BusName(const QDBusConnection &bus, const QString &name);

    /// Unique name of the owner; empty when there is none or it is not known yet.
    QString owner() const { return m_owner; }

    bool isOwned() const { return !m_owner.isEmpty(); }

Q_SIGNALS:
    void ownerChanged();

private:
    void setOwner(const QString &owner);

    QString m_owner;
};

} // namespace moravel
