// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/session/BusProperties.h"

#include <list>
#include <memory>

namespace moravel {

/// One of the services that blank or lock the screen, by their common interface. Starts none.
class ScreenSaver : public QObject
{
    Q_OBJECT

public:
    ScreenSaver(const QDBusConnection &sessionBus, const BusProperties::Place &place);

    bool isActive() const { return m_active; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void activeChanged(bool active, const QDBusMessage &message);

private:
    void ask();
    void setActive(bool active);

    QDBusConnection m_bus;
    BusProperties::Place m_place;
    BusName m_service;
    bool m_active = false;
};

/// Tells whether the session is locked or its screen blanked, as the log-in service (system bus) or the
/// desktop's screen saver (session bus) say. Without them it never is.
class SessionLock : public QObject
{
    Q_OBJECT

public:
    SessionLock(const QDBusConnection &systemBus, const QDBusConnection &sessionBus);

    bool isLocked() const;

Q_SIGNALS:
    void changed();

private:
    void findSession();

    QDBusConnection m_systemBus;
    BusName m_logind;
    std::unique_ptr<BusProperties> m_session; ///< Null until its object is known.
    std::list<ScreenSaver> m_screenSavers;
};

} // namespace moravel
