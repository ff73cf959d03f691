// SPDX-License-Identifier: MIT
#include "platform/linux/session/DBusNotifications.h"

#include "platform/linux/session/Log.h"
#include "platform/linux/session/NotificationPicture.h"
#include "platform/linux/session/ProgramName.h"

#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>

namespace moravel {

namespace {

const QString Service = QStringLiteral("org.freedesktop.Notifications");
const QString Path = QStringLiteral("/org/freedesktop/Notifications");
const QString DefaultAction = QStringLiteral("default");
const QString Application = QStringLiteral("Moravel"); // shown to the user by some services

constexpr int UntilClosed = 0; // values of expire_timeout
constexpr int AsTheServiceLikes = -1;

QDBusMessage methodCall(const QString &method)
{
    return QDBusMessage::createMethodCall(Service, Path, Service, method);
}

// Low, normal, critical.
uchar urgency(int priority)
{
    return uchar(priority < 0 ? 0 : priority > 0 ? 2 : 1);
}

} // namespace

DBusNotifications::DBusNotifications(const QDBusConnection &bus, Images &images)
    : m_bus(bus), m_images(images), m_service(bus, Service)
{
    qDBusRegisterMetaType<NotificationPicture>();
    connect(&m_service, &BusName::ownerChanged, this, &DBusNotifications::forgetService);
    // Without a sender's name, since Qt would wait for the bus to resolve it; the slots check it.
    m_bus.connect({}, Path, Service, QStringLiteral("ActionInvoked"), this,
                  SLOT(actionInvoked(uint, QString, QDBusMessage)));
    m_bus.connect({}, Path, Service, QStringLiteral("NotificationClosed"), this,
                  SLOT(notificationClosed(uint, uint, QDBusMessage)));
}

void DBusNotifications::setGrowlDelegate(NotificationsDelegate *delegate)
{
    m_delegate = delegate;
    m_registration =
        delegate ? delegate->registrationDictionaryForGrowl() : NotificationRegistration();
}

void DBusNotifications::notify(const Notification &notification)
{
    if (!m_registration.defaultNotifications.contains(notification.name)) {
        qCInfo(lcSession) << "not registered, not shown:" << notification.name;
        return;
    }
    if (m_waiting.size() >= MostWaiting)
        m_waiting.removeFirst();
    const bool loading = !notification.picture.isEmpty();
    m_waiting.append({++m_lastNumber, notification, {}, loading});
    if (loading)
        loadPicture(m_lastNumber, notification.picture);
    sendWhatIsReady();
}

void DBusNotifications::loadPicture(quint64 number, const QString &path)
{
    const auto loaded = [self = QPointer(this), number](const QImage &picture) {
        if (!self)
            return;
        for (Waiting &waiting : self->m_waiting) {
            if (waiting.number == number) {
                waiting.picture = picture;
                waiting.loading = false;
            }
        }
        self->sendWhatIsReady();
    };
    m_images.load(path, {PictureSize, PictureSize}, loaded);
}

void DBusNotifications::sendWhatIsReady()
{
    if (!m_known && !m_waiting.isEmpty())
        return askCapabilities();
    while (!m_waiting.isEmpty() && !m_waiting.first().loading)
        send(m_waiting.takeFirst());
}

void DBusNotifications::askCapabilities()
{
    if (m_asking)
        return;
    m_asking = true;
    auto *call = new QDBusPendingCallWatcher(
        m_bus.asyncCall(methodCall(QStringLiteral("GetCapabilities"))), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        m_asking = false;
        const QDBusPendingReply<QStringList> reply = *call;
        if (!reply.isError())
            return capabilitiesAnswered(reply.value(), isFromService(reply.reply()));
        m_waiting.clear();
        failed(reply.error().message());
    });
}

void DBusNotifications::capabilitiesAnswered(const QStringList &capabilities, bool stillThere)
{
    m_known = stillThere; // else the next notification asks again
    m_actions = capabilities.contains(QStringLiteral("actions"));
    m_bodyFormat = capabilities.contains(QStringLiteral("body-markup")) ? BodyFormat::Markup
                                                                        : BodyFormat::Plain;
    while (!m_waiting.isEmpty() && !m_waiting.first().loading)
        send(m_waiting.takeFirst());
}

void DBusNotifications::send(const Waiting &waiting)
{
    const Notification &notification = waiting.notification;
    QVariantMap hints{
        {QStringLiteral("urgency"), QVariant::fromValue(urgency(notification.priority))},
        {QStringLiteral("desktop-entry"), ProgramName}};
    if (!waiting.picture.isNull())
        hints[QStringLiteral("image-data")] =
            QVariant::fromValue(NotificationPicture::fromImage(waiting.picture));
    const bool clickable = notification.clickContext && m_actions;
    QStringList actions;
    if (clickable)
        actions << DefaultAction << notificationTitle(notification.clickLabel);
    QDBusMessage message = methodCall(QStringLiteral("Notify"));
    message << Application << uint(0) << ProgramIcon << notificationTitle(notification.title)
            << notificationBody(notification.description, m_bodyFormat) << actions << hints
            << (notification.sticky ? UntilClosed : AsTheServiceLikes);
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    const auto context = clickable ? notification.clickContext : std::nullopt;
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, context] {
        call->deleteLater();
        if (call->isError())
            failed(call->error().message());
        else
            sent(call->reply(), context);
    });
}

void DBusNotifications::sent(const QDBusMessage &reply, const std::optional<QString> &clickContext)
{
    m_failureTold = false;
    const uint id = reply.arguments().value(0).toUInt();
    if (id == 0 || !isFromService(reply))
        return;
    forget(id);
    if (!clickContext)
        return;
    if (m_contexts.size() >= MostContexts)
        m_contexts.removeFirst();
    m_contexts.append({id, *clickContext});
}

void DBusNotifications::failed(const QString &description)
{
    if (!m_failureTold)
        qCInfo(lcSession).noquote() << "notifications are not shown:" << description;
    m_failureTold = true;
}

void DBusNotifications::forgetService()
{
    m_known = false;
    m_contexts.clear();
}

void DBusNotifications::forget(uint id)
{
    m_contexts.removeIf([id](const Context &context) { return context.id == id; });
}

bool DBusNotifications::isFromService(const QDBusMessage &message) const
{
    return m_service.isOwned() && message.service() == m_service.owner();
}

void DBusNotifications::actionInvoked(uint id, const QString &action, const QDBusMessage &message)
{
    if (action != DefaultAction || !m_delegate || !isFromService(message))
        return;
    for (const Context &context : std::as_const(m_contexts)) {
        if (context.id == id)
            return m_delegate->growlNotificationWasClicked(QString(context.text));
    }
}

void DBusNotifications::notificationClosed(uint id, uint reason, const QDBusMessage &message)
{
    Q_UNUSED(reason)
    if (isFromService(message))
        forget(id);
}

} // namespace moravel
