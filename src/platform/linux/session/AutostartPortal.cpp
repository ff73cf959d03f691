// SPDX-License-Identifier: MIT
#include "platform/linux/session/AutostartPortal.h"

#include "platform/Texts.h"

#include <QFileInfo>

namespace moravel {

namespace {

const QString Background = QStringLiteral("org.freedesktop.portal.Background");
const QString AutostartKey = QStringLiteral("autostart"); // in question and answer
const QString StoredKey = QStringLiteral("PortalAutostart");

} // namespace

AutostartPortal::AutostartPortal(const QDBusConnection &sessionBus, Defaults &defaults,
                                 QStringList command)
    : m_defaults(defaults), m_command(std::move(command)), m_portal(sessionBus)
{ }

bool AutostartPortal::isNeeded()
{
    return QFileInfo::exists(QStringLiteral("/.flatpak-info"))
        || !qEnvironmentVariableIsEmpty("container") || !qEnvironmentVariableIsEmpty("SNAP_NAME");
}

bool AutostartPortal::isOn() const
{
    return m_defaults.boolean(StoredKey).value_or(false);
}

void AutostartPortal::setOn(bool on, std::function<void(const tl::expected<void, QString> &)> done)
{
    const QString noWindow;
    m_portal.ask(Background, QStringLiteral("RequestBackground"), {noWindow},
                 {{QStringLiteral("reason"),
                   Texts::tr("Pictures of the day on your desktop from the start.")},
                  {AutostartKey, on},
                  {QStringLiteral("commandline"), m_command},
                  {QStringLiteral("dbus-activatable"), false}},
                 [this, on, done = std::move(done)](const PortalRequest::Answer &answer) {
                     done(take(on, answer));
                 });
}

tl::expected<void, QString> AutostartPortal::take(bool wanted, const PortalRequest::Answer &answer)
{
    if (!answer && answer.error().kind == PortalError::Superseded)
        return tl::unexpected(Texts::tr("Another request came first."));
    if (!answer && answer.error().kind == PortalError::Failed)
        return tl::unexpected(answer.error().text);
    const bool isOn = answer && answer->value(AutostartKey).toBool();
    if (answer)
        m_defaults.setBoolean(StoredKey, isOn);
    if (answer && isOn == wanted)
        return {};
    return tl::unexpected(Texts::tr("The desktop did not allow it."));
}

} // namespace moravel
