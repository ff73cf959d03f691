// SPDX-License-Identifier: MIT
#include "platform/linux/session/AutostartPortal.h"

#include "platform/Texts.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>

#include <utility>

namespace moravel {

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Background = QStringLiteral("org.freedesktop.portal.Background");
const QString RequestInterface = QStringLiteral("org.freedesktop.portal.Request");
const QString AutostartKey = QStringLiteral("autostart"); // in question and answer
const QString StoredKey = QStringLiteral("PortalAutostart");

constexpr int StartMs = 30'000; // the portal may have to be started first

} // namespace

AutostartPortal::AutostartPortal(const QDBusConnection &sessionBus, Defaults &defaults,
                                 QStringList command)
    : m_bus(sessionBus), m_defaults(defaults), m_command(std::move(command))
{
    // Of all requests: an answer may come before the object of its request is known.
    m_bus.connect({}, {}, RequestInterface, QStringLiteral("Response"), this,
                  SLOT(response(uint, QVariantMap, QDBusMessage)));
}

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
    if (m_request)
        end(tl::unexpected(Texts::tr("Another request came first.")));
    QString sender = m_bus.baseService().mid(1);
    const QString token = QStringLiteral("moravelstart%1").arg(++m_requests);
    m_request =
        Request{Path + QStringLiteral("/request/%1/%2").arg(sender.replace(u'.', u'_'), token), on,
                std::move(done)};
    QDBusMessage message = QDBusMessage::createMethodCall(Service, Path, Background,
                                                          QStringLiteral("RequestBackground"));
    message << QString() // of no window
            << QVariantMap{{QStringLiteral("handle_token"), token},
                           {QStringLiteral("reason"),
                            Texts::tr("Pictures of the day on your desktop from the start.")},
                           {AutostartKey, on},
                           {QStringLiteral("commandline"), m_command},
                           {QStringLiteral("dbus-activatable"), false}};
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(message, StartMs), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, number = m_requests] {
        call->deleteLater();
        if (!m_request || number != m_requests)
            return;
        const QDBusPendingReply<QDBusObjectPath> reply = *call;
        if (reply.isError())
            end(tl::unexpected(reply.error().message()));
        else
            m_request->object = reply.value().path(); // very old portals choose it themselves
    });
}

void AutostartPortal::response(uint code, const QVariantMap &results, const QDBusMessage &message)
{
    if (!m_request || message.path() != m_request->object)
        return;
    const bool now = code == 0 && results.value(AutostartKey).toBool();
    if (code == 0)
        m_defaults.setBoolean(StoredKey, now);
    if (code == 0 && now == m_request->on)
        end({});
    else
        end(tl::unexpected(Texts::tr("The desktop did not allow it.")));
}

void AutostartPortal::end(const tl::expected<void, QString> &result)
{
    const Request request = *std::exchange(m_request, std::nullopt);
    request.done(result);
}

} // namespace moravel
