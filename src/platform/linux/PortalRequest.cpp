// SPDX-License-Identifier: MIT
#include "platform/linux/PortalRequest.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace moravel {

namespace {

const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Request");

constexpr int StartMs = 30'000; // the portal and what is behind it may have to be started

// Differs for each question of this process.
QString newToken()
{
    static int count = 0;
    return QStringLiteral("moravel%1").arg(++count);
}

// Where the portal answers the question of this connection with this token.
QString answerPath(const QDBusConnection &bus, const QString &token)
{
    QString sender = bus.baseService().mid(1);
    sender.replace(u'.', u'_');
    return Path + QStringLiteral("/request/%1/%2").arg(sender, token);
}

} // namespace

PortalRequest::PortalRequest(const QDBusConnection &sessionBus) : m_bus(sessionBus)
{
    // Of all requests: an answer may come before the object of its request is known.
    m_bus.connect(service(), {}, Interface, QStringLiteral("Response"), this,
                  SLOT(response(uint, QVariantMap, QDBusMessage)));
}

QString PortalRequest::service()
{
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

void PortalRequest::ask(const QString &interface, const QString &method,
                        const QVariantList &arguments, QVariantMap options,
                        std::function<void(const Answer &)> done)
{
    close();
    const QString token = newToken();
    const QString object = answerPath(m_bus, token);
    m_question = Question{object, std::move(done)};
    options.insert(QStringLiteral("handle_token"), token);
    QDBusMessage message = QDBusMessage::createMethodCall(service(), Path, interface, method);
    message.setArguments(arguments);
    message << options;
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(message, StartMs), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, object] {
        call->deleteLater();
        if (!m_question || m_question->object != object)
            return;
        const QDBusPendingReply<QDBusObjectPath> reply = *call;
        if (reply.isError())
            return end(tl::unexpected(PortalError{PortalError::Failed, reply.error().message()}));
        m_question->object = reply.value().path(); // very old portals choose it themselves
    });
}

void PortalRequest::response(uint code, const QVariantMap &results, const QDBusMessage &message)
{
    if (!m_question || message.path() != m_question->object)
        return;
    if (code == 0)
        end(results);
    else
        end(tl::unexpected(
            PortalError{code == 1 ? PortalError::Cancelled : PortalError::Ended, {}}));
}

void PortalRequest::end(const Answer &answer)
{
    const Question question = *std::exchange(m_question, std::nullopt);
    question.done(answer);
}

void PortalRequest::close()
{
    if (!m_question)
        return;
    m_bus.send(QDBusMessage::createMethodCall(service(), m_question->object, Interface,
                                              QStringLiteral("Close")));
    QMetaObject::invokeMethod(
        this,
        [done = m_question->done] {
            done(tl::unexpected(PortalError{PortalError::Superseded, {}}));
        },
        Qt::QueuedConnection);
    m_question.reset();
}

} // namespace moravel
