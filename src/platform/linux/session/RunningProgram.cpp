// SPDX-License-Identifier: MIT
#include "platform/linux/session/RunningProgram.h"

#include "platform/Texts.h"
#include "platform/linux/session/ProgramName.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusReply>

namespace moravel {

namespace {

const QString Application = QStringLiteral("org.freedesktop.Application");
const QString Control = QStringLiteral("org.moravel.Moravel1");

constexpr int AnswerTimeout = 5'000; // ms

tl::expected<QDBusMessage, RemoteError> call(const QDBusConnection &bus, const QString &interface,
                                             const QString &method, const QVariantList &arguments)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(ProgramName, ProgramPath, interface, method);
    message.setAutoStartService(false);
    message.setArguments(arguments);
    const QDBusMessage reply = bus.call(message, QDBus::Block, AnswerTimeout);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return reply;
    const QDBusError error(reply);
    if (!bus.isConnected() || error.name() == u"org.freedesktop.DBus.Error.NameHasNoOwner"
        || error.type() == QDBusError::ServiceUnknown)
        return tl::unexpected(RemoteError{true, Texts::tr("Moravel is not running")});
    if (error.type() == QDBusError::NoReply || error.type() == QDBusError::Timeout)
        return tl::unexpected(
            RemoteError{false, Texts::tr("Moravel is running but does not answer")});
    return tl::unexpected(RemoteError{false, error.message()});
}

} // namespace

tl::expected<void, RemoteError> askRunningProgram(const QDBusConnection &sessionBus,
                                                  const QString &action,
                                                  const QVariantList &arguments,
                                                  const QVariantMap &platformData)
{
    const auto reply = action.isEmpty()
        ? call(sessionBus, Application, QStringLiteral("Activate"), {platformData})
        : call(sessionBus, Application, QStringLiteral("ActivateAction"),
               {action, QVariant(arguments), platformData});
    return reply.map([](const QDBusMessage &) {});
}

tl::expected<QVariantMap, RemoteError> askForCurrentPicture(const QDBusConnection &sessionBus)
{
    const auto reply = call(sessionBus, Control, QStringLiteral("Current"), {});
    return reply.map(
        [](const QDBusMessage &message) { return QDBusReply<QVariantMap>(message).value(); });
}

} // namespace moravel
