// SPDX-License-Identifier: MIT
#include "server/core/Jpeg.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>

namespace moravel::server {

QByteArray encodedJpeg(const QImage &image, PictureKind kind)
{
    constexpr int pictureQuality = 92;
    constexpr int thumbQuality = 85;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(kind == PictureKind::Thumb ? thumbQuality : pictureQuality);
    writer.setOptimizedWrite(true);
    if (image.isNull() || !buffer.open(QIODevice::WriteOnly) || !writer.write(image))
        return {};
    return bytes;
}

bool isWholeJpeg(QFile &file)
{
    constexpr qint64 smallest = 100;
    if (file.size() < smallest || file.read(3) != "\xff\xd8\xff" || !file.seek(file.size() - 2)
        || file.read(2) != "\xff\xd9" || !file.seek(0))
        return false;
    const bool hasSize = QImageReader(&file, "jpeg").size().isValid();
    return file.seek(0) && hasSize;
}

} // namespace moravel::server
