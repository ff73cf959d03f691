// SPDX-License-Identifier: MIT
#include "platform/linux/session/NotificationPicture.h"

namespace moravel {

NotificationPicture NotificationPicture::fromImage(const QImage &image)
{
    NotificationPicture picture;
    picture.hasAlpha = image.hasAlphaChannel();
    picture.channels = picture.hasAlpha ? 4 : 3;
    const QImage plain =
        image.convertToFormat(picture.hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    picture.width = plain.width();
    picture.height = plain.height();
    picture.rowStride = picture.width * picture.channels;
    picture.pixels.reserve(qsizetype(picture.rowStride) * picture.height);
    for (int y = 0; y < picture.height; ++y)
        picture.pixels.append(reinterpret_cast<const char *>(plain.constScanLine(y)),
                              picture.rowStride);
    return picture;
}

QDBusArgument &operator<<(QDBusArgument &argument, const NotificationPicture &picture)
{
    argument.beginStructure();
    argument << picture.width << picture.height << picture.rowStride << picture.hasAlpha
             << picture.bitsPerSample << picture.channels << picture.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, NotificationPicture &picture)
{
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.rowStride >> picture.hasAlpha
        >> picture.bitsPerSample >> picture.channels >> picture.pixels;
    argument.endStructure();
    return argument;
}

} // namespace moravel
