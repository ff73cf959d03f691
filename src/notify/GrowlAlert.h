// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Notifications.h"
#include "thumb/ThumbView.h"

#include <functional>

namespace moravel {

/// Posts the program's notifications and answers clicks on them. Main thread only.
class GrowlAlert : public NotificationsDelegate
{
public:
    /// Becomes the delegate of @p notifications, which must outlive this object. @p setDesktopToFile
    /// gets the path that a clicked notification stands for.
    GrowlAlert(Notifications &notifications,
               std::function<void(const QString &path)> setDesktopToFile);
    ~GrowlAlert() override;
    Q_DISABLE_COPY_MOVE(GrowlAlert)

    NotificationRegistration registrationDictionaryForGrowl() const override;
    /// Acts on this class's own click context alone.
    void growlNotificationWasClicked(const std::optional<QString> &clickContext) override;

    /// Posts a notification that does nothing when it is clicked. It shows the picture of lastPicFile().
    void growlAlert(const QString &message, const QString &title);
    /// Posts one that sets lastPicFile() as the desktop when it is clicked.
    void growlAlertWithClickContext(const QString &message, const QString &title);
    /// Sets lastPicFile() as the desktop.
    void growlClickContext();

    /// Tells the user that the picture of @p cell has arrived in the file @p path.
    void newPicture(const ThumbView &cell, const QString &path);

    QString lastPicFile() const { return m_lastPicFile; }

    /// The picture file that notifications from now on are about; a click on an older one means it too.
    void setLastPicFile(const QString &path) { m_lastPicFile = path; }

private:
    Notification make(const QString &message, const QString &title) const;

    Notifications &m_notifications;
    std::function<void(const QString &)> m_setDesktopToFile;
    QString m_lastPicFile;
};

} // namespace moravel
