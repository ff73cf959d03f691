// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>

namespace moravel {

/// A picture as the notification service takes it, "(iiibiiay)" on the bus: bytes of R, G, B and, with
/// alpha, A, row after row from the top.
struct NotificationPicture
{
    int width = 0;
    int height = 0;
    int rowStride = 0; ///< Bytes from row to row.
    bool hasAlpha = false;
    int bitsPerSample = 8;
    int channels = 3;
    QByteArray pixels;

    /// Rows lie side by side without gaps, since services differ in whether the last gap counts.
    static NotificationPicture fromImage(const QImage &image);
};

QDBusArgument &operator<<(QDBusArgument &argument, const NotificationPicture &picture);
const QDBusArgument &operator>>(const QDBusArgument &argument, NotificationPicture &picture);

} // namespace moravel

Q_DECLARE_METATYPE(moravel::NotificationPicture)
