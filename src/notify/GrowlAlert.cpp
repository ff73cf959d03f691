// SPDX-License-Identifier: MIT
#include "notify/GrowlAlert.h"

#include "platform/Texts.h"

namespace moravel {

namespace {

const QString PostedName = QStringLiteral("Moravel");
const QString ErrorName = QStringLiteral("Moravel error");
const QString ClickContext = QStringLiteral("growlClickContext");

} // namespace

GrowlAlert::GrowlAlert(Notifications &notifications,
                       std::function<void(const QString &)> setDesktopToFile)
    : m_notifications(notifications), m_setDesktopToFile(std::move(setDesktopToFile))
{
    m_notifications.setGrowlDelegate(this);
}

GrowlAlert::~GrowlAlert()
{
    m_notifications.setGrowlDelegate(nullptr);
}

NotificationRegistration GrowlAlert::registrationDictionaryForGrowl() const
{
    const QStringList names{PostedName, ErrorName};
    return {.ticketVersion = 1, .allNotifications = names, .defaultNotifications = names};
}

void GrowlAlert::growlNotificationWasClicked(const std::optional<QString> &clickContext)
{
    if (clickContext == ClickContext)
        growlClickContext();
}

Notification GrowlAlert::make(const QString &message, const QString &title) const
{
    return {.title = title,
            .description = message,
            .name = PostedName,
            .picture = m_lastPicFile,
            .clickContext = std::nullopt,
            .clickLabel = {}};
}

void GrowlAlert::growlAlert(const QString &message, const QString &title)
{
    m_notifications.notify(make(message, title));
}

void GrowlAlert::growlAlertWithClickContext(const QString &message, const QString &title)
{
    Notification notification = make(message, title);
    notification.clickContext = ClickContext;
    notification.clickLabel = Texts::tr("Set as desktop");
    m_notifications.notify(notification);
}

void GrowlAlert::growlClickContext()
{
    if (m_setDesktopToFile)
        m_setDesktopToFile(m_lastPicFile);
}

void GrowlAlert::newPicture(const ThumbView &cell, const QString &path)
{
    // Joined, not substituted: a caption may hold place markers.
    const QStringList lines{cell.longSourceName(), cell.dateString(), cell.captionString()};
    setLastPicFile(path);
    growlAlert(lines.join(u'\n'), Texts::tr("New picture of the day"));
}

} // namespace moravel
