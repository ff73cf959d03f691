// SPDX-License-Identifier: MIT
#pragma once

#include "platform/RemoteControl.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>

namespace moravel {

/// The one running program of the session. It owns the program's name on the session bus and offers
/// org.freedesktop.Application and org.moravel.Moravel1 there; other processes reach it through
/// RunningProgram.h, or as they like.
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

    void letToFront(QWindow &window) override;

    // The methods of org.moravel.Moravel1 (packaging/dbus), called by the adaptor that is made from its
    // description. Replies come later, whatever is returned here.
    void Next();
    void Previous();
    void Hold();
    QVariantMap Current();
    void SetFile(const QString &path);
    void Show();
    void ShowLargePicture();
    void ShowBrowser();
    void Quit();

public Q_SLOTS:
    // The methods of org.freedesktop.Application, under the names that it gives them.
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
    Q_SCRIPTABLE void ActivateAction(const QString &action, const QVariantList &parameter,
                                     const QVariantMap &platformData);

private:
    struct Request
    {
        QString action;
        QVariantList arguments;
        QVariantMap platformData;
        bool wantsResult = false; ///< Else the reply is empty.
        QDBusMessage message;
    };

    void take(const QString &action, const QVariantList &arguments = {},
              const QVariantMap &platformData = {}, bool wantsResult = false);
    void carryOut(const Request &request);
    void reply(const Request &request, const Result &result);

    QDBusConnection m_bus;
    QList<Request> m_waiting;
    QString m_startupId; ///< Of the request that is being carried out.
    bool m_ready = false;
};

} // namespace moravel
