// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Autostart.h"
#include "platform/Defaults.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace moravel {

/// Asks the desktop's portal, from inside of a sandbox. The portal asks the user, and does not tell later
/// what was decided; so its last answer is kept.
class AutostartPortal : public QObject, public Autostart
{
    Q_OBJECT

public:
    /// @param command the program and its arguments, as they are called inside of the sandbox.
    AutostartPortal(const QDBusConnection &sessionBus, Defaults &defaults, QStringList command);

    /// Tells whether this process runs in a sandbox, where entries of its own would start nothing.
    static bool isNeeded();

    bool isOn() const override;
    void setOn(bool on, std::function<void(const tl::expected<void, QString> &)> done) override;

private Q_SLOTS:
    void response(uint code, const QVariantMap &results, const QDBusMessage &message);

private:
    struct Request
    {
        QString object; ///< Where the portal answers.
        bool on;
        std::function<void(const tl::expected<void, QString> &)> done;
    };

    void end(const tl::expected<void, QString> &result);

    QDBusConnection m_bus;
    Defaults &m_defaults;
    QStringList m_command;
    std::optional<Request> m_request;
    int m_requests = 0;
};

} // namespace moravel
