// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace moravel {

/// The kinds of notifications that a program posts, by name.
struct NotificationRegistration
{
    int ticketVersion = 1;
    QStringList allNotifications;
    QStringList defaultNotifications; ///< Those that are shown unless the user says otherwise.
};

/// One notification. Texts are plain text of any content; the service makes them fit for display.
struct Notification
{
    QString title;
    QString description;
    QString name; ///< One of the registered names; others are not shown.
    QString picture; ///< Path of a picture file to show beside the text; empty for none.
    int priority = 0; ///< -2 (very low) to 2 (emergency).
    bool sticky = false; ///< Stays until the user closes it.
    /// Comes back when the user clicks the notification; without one it is not clickable.
    std::optional<QString> clickContext;
    QString clickLabel; ///< What a click does, for services that show it.
};

/// The program's side of the notification service.
class NotificationsDelegate
{
public:
    virtual ~NotificationsDelegate() = default;

    virtual NotificationRegistration registrationDictionaryForGrowl() const = 0;
    virtual void growlNotificationWasClicked(const std::optional<QString> &clickContext) = 0;
};

/// The desktop's notification service. Main thread only; nothing waits for the service, and one that is
/// not there is no error.
class Notifications
{
public:
    virtual ~Notifications() = default;

    /// Registers the names of @p delegate and sends it the clicks from now on; null for no one. It must
    /// take itself off before it is destroyed.
    virtual void setGrowlDelegate(NotificationsDelegate *delegate) = 0;

    virtual void notify(const Notification &notification) = 0;
};

} // namespace moravel
