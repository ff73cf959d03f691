// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/session/BusName.h"

#include <QDBusMessage>

#include <functional>

namespace moravel {

/// Tells when the machine has woken up, as the log-in service says on the system bus. Without that
/// service nothing is ever told.
class SessionEvents : public QObject
{
    Q_OBJECT

public:
    /// @p systemBus is QDBusConnection::systemBus(), but for tests.
    explicit SessionEvents(const QDBusConnection &systemBus);

    std::function<void()> onResume; ///< Called on the main loop, once for each sleep.

private Q_SLOTS:
    void prepareForSleep(bool goingToSleep, const QDBusMessage &message);

private:
    BusName m_logind;
};

} // namespace moravel
