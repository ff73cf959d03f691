// SPDX-License-Identifier: MIT
#include "platform/linux/session/ProgramInstance.h"

#include "moravel1adaptor.h"

#include "platform/Texts.h"
#include "platform/linux/session/Activation.h"
#include "platform/linux/session/Log.h"
#include "platform/linux/session/ProgramName.h"

#include <QDBusError>

#include <utility>

namespace moravel {

ProgramInstance::ProgramInstance(const QDBusConnection &sessionBus) : m_bus(sessionBus)
{
    new Moravel1Adaptor(this); // owned by this object, found by registerObject()
}

ProgramInstance::Claim ProgramInstance::claim()
{
    if (!m_bus.isConnected())
        return Claim::NoBus;
    // The object first: whoever sees the name may call at once.
    m_bus.registerObject(ProgramPath, this,
                         QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportAdaptors);
    return m_bus.registerService(ProgramName) ? Claim::First : Claim::Second;
}

void ProgramInstance::ready()
{
    m_ready = true;
    for (const Request &request : std::exchange(m_waiting, {}))
        carryOut(request);
}

void ProgramInstance::letToFront(QWindow &window)
{
    activateByStartupId(window, m_startupId);
}

void ProgramInstance::Activate(const QVariantMap &platformData)
{
    take(remoteaction::Show, {}, platformData);
}

// The program is no viewer: files that a launcher hands over only bring it to the front.
void ProgramInstance::Open(const QStringList &, const QVariantMap &platformData)
{
    Activate(platformData);
}

void ProgramInstance::ActivateAction(const QString &action, const QVariantList &parameter,
                                     const QVariantMap &platformData)
{
    take(action, parameter, platformData);
}

void ProgramInstance::Next()
{
    take(QStringLiteral("next"));
}

void ProgramInstance::Previous()
{
    take(QStringLiteral("previous"));
}

void ProgramInstance::Hold()
{
    take(QStringLiteral("hold"));
}

QVariantMap ProgramInstance::Current()
{
    take(QStringLiteral("current"), {}, {}, true);
    return {};
}

void ProgramInstance::SetFile(const QString &path)
{
    take(QStringLiteral("set"), {path});
}

void ProgramInstance::Show()
{
    take(remoteaction::Show);
}

void ProgramInstance::ShowLargePicture()
{
    take(QStringLiteral("large"));
}

void ProgramInstance::ShowBrowser()
{
    take(QStringLiteral("browser"));
}

void ProgramInstance::Quit()
{
    take(QStringLiteral("quit"));
}

void ProgramInstance::take(const QString &action, const QVariantList &arguments,
                           const QVariantMap &platformData, bool wantsResult)
{
    if (!calledFromDBus())
        return;
    setDelayedReply(true);
    const Request request{action, arguments, platformData, wantsResult, message()};
    if (m_ready)
        carryOut(request);
    else if (m_waiting.size() < MostWaiting)
        m_waiting.append(request);
    else
        m_bus.send(request.message.createErrorReply(QDBusError::LimitsExceeded,
                                                    Texts::tr("Moravel is still starting")));
}

void ProgramInstance::carryOut(const Request &request)
{
    m_startupId = useActivation(request.platformData);
    if (onAction)
        onAction(request.action, request.arguments,
                 [this, request](const Result &result) { reply(request, result); });
    else
        reply(request, tl::unexpected(Texts::tr("Moravel takes no actions")));
    endStartup(std::exchange(m_startupId, {}));
}

void ProgramInstance::reply(const Request &request, const Result &result)
{
    if (!result) {
        qCInfo(lcSession).noquote() << "refused:" << request.action.left(100) << result.error();
        m_bus.send(request.message.createErrorReply(QDBusError::Failed, result.error()));
        return;
    }
    m_bus.send(request.wantsResult ? request.message.createReply(QVariant(*result))
                                   : request.message.createReply());
}

} // namespace moravel
