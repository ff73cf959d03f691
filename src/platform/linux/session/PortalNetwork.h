// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/session/BusName.h"

namespace moravel {

/// What the desktop's portal tells of the connection: the only word on it inside of a sandbox. Starts
/// nothing; without the portal the connection is not metered.
class PortalNetwork : public QObject
{
    Q_OBJECT

public:
    explicit PortalNetwork(const QDBusConnection &sessionBus);

    bool isMetered() const { return m_metered; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void ask();

private:
    void setMetered(bool metered);

    QDBusConnection m_bus;
    BusName m_portal;
    bool m_metered = false;
};

} // namespace moravel
