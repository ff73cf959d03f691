// SPDX-License-Identifier: MIT
#include "platform/linux/session/ProgramInstance.h"

#include "platform/linux/session/Log.h"
#include "platform/linux/session/ProgramName.h"

#include <QDBusError>

#include <utility>

namespace moravel {

namespace {

const QString Path = QStringLiteral("/org/moravel/Moravel");
const QString Interface = QStringLiteral("org.freedesktop.Application");
const QString TokenKey = QStringLiteral("activation-token");

constexpr int AnswerTimeout = 5'000; // ms
constexpr qsizetype LongestToken = 1000; // characters

// A compositor lets a window come to the front only with the token that the user's click was given.
void useToken(const QString &token)
{
    if (!token.isEmpty() && token.size() <= LongestToken)
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

QVariantMap platformData()
{
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? QVariantMap() : QVariantMap{{TokenKey, token}};
}

tl::expected<void, RemoteError> call(const QDBusConnection &bus, const QString &method,
                                     const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(ProgramName, Path, Interface, method);
    message.setAutoStartService(false);
    message.setArguments(arguments);
    const QDBusMessage reply = bus.call(message, QDBus::Block, AnswerTimeout);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return {};
    const QDBusError error(reply);
    if (!bus.isConnected() || error.name() == u"org.freedesktop.DBus.Error.NameHasNoOwner"
        || error.type() == QDBusError::ServiceUnknown)
        return tl::unexpected(RemoteError{true, QStringLiteral("Moravel is not running")});
    if (error.type() == QDBusError::NoReply || error.type() == QDBusError::Timeout)
        return tl::unexpected(
            RemoteError{false, QStringLiteral("Moravel is running but does not answer")});
    return tl::unexpected(RemoteError{false, error.message()});
}

} // namespace

ProgramInstance::ProgramInstance(const QDBusConnection &sessionBus) : m_bus(sessionBus)
{ }

ProgramInstance::Claim ProgramInstance::claim()
{
    if (!m_bus.isConnected())
        return Claim::NoBus;
    // The object first: whoever sees the name may call at once.
    m_bus.registerObject(Path, this, QDBusConnection::ExportScriptableSlots);
    return m_bus.registerService(ProgramName) ? Claim::First : Claim::Second;
}

void ProgramInstance::ready()
{
    m_ready = true;
    for (const Request &request : std::exchange(m_waiting, {}))
        answer(request);
}

void ProgramInstance::Activate(const QVariantMap &data)
{
    take({{}, {}, data.value(TokenKey).toString(), message()});
}

// The program is no viewer: files that a launcher hands over only bring it to the front.
void ProgramInstance::Open(const QStringList &, const QVariantMap &data)
{
    Activate(data);
}

void ProgramInstance::ActivateAction(const QString &action, const QVariantList &parameter,
                                     const QVariantMap &data)
{
    take({action, parameter, data.value(TokenKey).toString(), message()});
}

void ProgramInstance::take(const Request &request)
{
    if (calledFromDBus())
        setDelayedReply(true);
    if (m_ready)
        answer(request);
    else if (m_waiting.size() < MostWaiting)
        m_waiting.append(request);
    else
        m_bus.send(request.message.createErrorReply(QDBusError::LimitsExceeded,
                                                    QStringLiteral("Moravel is still starting")));
}

void ProgramInstance::answer(const Request &request)
{
    useToken(request.activationToken);
    tl::expected<void, QString> result;
    if (!request.action.isEmpty())
        result = onAction ? onAction(request.action, request.arguments)
                          : tl::unexpected(QStringLiteral("Moravel takes no actions"));
    else if (onActivate)
        onActivate();
    if (!result)
        qCInfo(lcSession).noquote() << "refused:" << request.action << result.error();
    m_bus.send(result ? request.message.createReply()
                      : request.message.createErrorReply(QDBusError::Failed, result.error()));
}

tl::expected<void, RemoteError> activateRunningProgram(const QDBusConnection &sessionBus)
{
    return call(sessionBus, QStringLiteral("Activate"), {platformData()});
}

tl::expected<void, RemoteError> askRunningProgram(const QDBusConnection &sessionBus,
                                                  const QString &action,
                                                  const QVariantList &arguments)
{
    return call(sessionBus, QStringLiteral("ActivateAction"),
                {action, QVariant(arguments), platformData()});
}

} // namespace moravel
