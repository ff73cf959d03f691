// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Images.h"
#include "platform/Notifications.h"
#include "platform/linux/session/BusName.h"
#include "platform/linux/session/NotificationText.h"

#include <QDBusMessage>
#include <QImage>
#include <QList>

namespace moravel {

/// Posts notifications through org.freedesktop.Notifications. Every call is asynchronous.
///
/// What the service can do is asked once for each service that takes the name; what is posted meanwhile
/// waits. Without a service, notifications are dropped and the log says so once.
class DBusNotifications : public QObject, public Notifications
{
    Q_OBJECT

public:
    static constexpr int PictureSize = 256; ///< Pixels, at most, of the longer side of a picture.
    static constexpr int MostWaiting = 16; ///< Notifications that wait; the oldest is dropped.
    static constexpr int MostContexts = 64; ///< Click contexts kept; the oldest is forgotten.

    /// @p images decodes the pictures; it must outlive this object.
    DBusNotifications(const QDBusConnection &bus, Images &images);

    void setGrowlDelegate(NotificationsDelegate *delegate) override;
    void notify(const Notification &notification) override;

private Q_SLOTS:
    void actionInvoked(uint id, const QString &action, const QDBusMessage &message);
    void notificationClosed(uint id, uint reason, const QDBusMessage &message);

private:
    struct Waiting
    {
        quint64 number;
        Notification notification;
        QImage picture;
        bool loading; ///< The picture is being decoded.
    };

    struct Context
    {
        uint id;
        QString text;
    };

    void loadPicture(quint64 number, const QString &path);
    void sendWhatIsReady();
    void askCapabilities();
    void capabilitiesAnswered(const QStringList &capabilities, bool stillThere);
    void send(const Waiting &waiting);
    void sent(const QDBusMessage &reply, const std::optional<QString> &clickContext);
    void failed(const QString &description);
    void forgetService();
    void forget(uint id);
    bool isFromService(const QDBusMessage &message) const;

    QDBusConnection m_bus;
    Images &m_images;
    BusName m_service;
    NotificationsDelegate *m_delegate = nullptr;
    NotificationRegistration m_registration;
    QList<Waiting> m_waiting; ///< In the order in which they are sent.
    quint64 m_lastNumber = 0;
    QList<Context> m_contexts; ///< Oldest first.
    bool m_asking = false;
    bool m_known = false; ///< The two below are the running service's.
    bool m_actions = false;
    BodyFormat m_bodyFormat = BodyFormat::Plain;
    bool m_failureTold = false;
};

} // namespace moravel
