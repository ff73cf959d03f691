// SPDX-License-Identifier: MIT
#pragma once

#include "platform/RemoteControl.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

#include <tl/expected.hpp>

namespace moravel {

/// The one running program of the session. It owns the program's name on the session bus and offers
/// org.freedesktop.Application there; a second process reaches it with the functions below.
///
/// What is asked before the program is ready waits for it.
class ProgramInstance : public QObject, public RemoteControl, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Claim {
        First, ///< The name is ours now.
        Second, ///< Another process has it.
        NoBus ///< There is no session bus; nobody can ask for anything.
    };

    static constexpr int MostWaiting = 16; ///< Requests kept until ready(); more are refused.

    explicit ProgramInstance(const QDBusConnection &sessionBus);

    /// Takes the program's name. Waits for the bus (not for another program), so before the main loop.
    Claim claim();

    /// Answers from now on, beginning with what waits.
    void ready();

public Q_SLOTS:
    // The methods of the interface, under the names that it gives them.
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
    Q_SCRIPTABLE void ActivateAction(const QString &action, const QVariantList &parameter,
                                     const QVariantMap &platformData);

private:
    struct Request
    {
        QString action; ///< Empty: only activate.
        QVariantList arguments;
        QString activationToken;
        QDBusMessage message;
    };

    void take(const Request &request);
    void answer(const Request &request);

    QDBusConnection m_bus;
    QList<Request> m_waiting;
    bool m_ready = false;
};

/// Why another process could not be asked.
struct RemoteError
{
    bool notRunning = false; ///< Else it has refused or does not answer.
    QString text; ///< One sentence for standard error.
};

/// Asks the running program to come to the front. Waits for its answer, 5 seconds at most; starts nothing.
tl::expected<void, RemoteError> activateRunningProgram(const QDBusConnection &sessionBus);

/// Asks the running program for an action, in the same way.
tl::expected<void, RemoteError> askRunningProgram(const QDBusConnection &sessionBus,
                                                  const QString &action,
                                                  const QVariantList &arguments = {});

} // namespace moravel
