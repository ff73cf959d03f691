// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Autostart.h"
#include "platform/Defaults.h"
#include "platform/linux/PortalRequest.h"

#include <QStringList>

namespace moravel {

/// Asks the desktop's portal, from inside of a sandbox. The portal asks the user, and does not tell later
/// what was decided; so its last answer is kept.
class AutostartPortal : public Autostart
{
public:
    /// @param command the program and its arguments, as they are called inside of the sandbox.
    AutostartPortal(const QDBusConnection &sessionBus, Defaults &defaults, QStringList command);

    /// Tells whether this process runs in a sandbox, where entries of its own would start nothing.
    static bool isNeeded();

    bool isOn() const override;
    void setOn(bool on, std::function<void(const tl::expected<void, QString> &)> done) override;

private:
    tl::expected<void, QString> take(bool wanted, const PortalRequest::Answer &answer);

    Defaults &m_defaults;
    QStringList m_command;
    PortalRequest m_portal;
};

} // namespace moravel
