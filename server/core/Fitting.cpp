// SPDX-License-Identifier: MIT
#include "server/core/Fitting.h"

#include <QImageReader>
#include <QPainter>

namespace moravel::server {

bool isRaster(QIODevice &file)
{
    static const QList<QByteArray> formats{"jpeg", "png", "gif", "bmp", "webp", "tiff"};
    return formats.contains(QImageReader::imageFormat(&file));
}

QSize shownSize(QIODevice &file)
{
    if (!isRaster(file))
        return {};
    QImageReader reader(&file);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    return reader.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed()
                                                                             : size;
}

QSize sizeWithin(QSize size, QSize box)
{
    if (size.isEmpty() || (size.width() <= box.width() && size.height() <= box.height()))
        return size;
    return size.scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QImage fittedPicture(QIODevice &file, QSize box)
{
    if (!isRaster(file))
        return {};
    QImageReader reader(&file);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    // JPEG is decoded at a fraction of its size; the others whole, up to the reader's limit.
    constexpr qint64 mostPixels = 400'000'000;
    constexpr qint64 mostWholePixels = 64'000'000;
    const qint64 pixels = qint64(size.width()) * size.height();
    if (pixels <= 0 || pixels > (reader.format() == "jpeg" ? mostPixels : mostWholePixels))
        return {};
    if (reader.transformation() & QImageIOHandler::TransformationRotate90)
        box.transpose();
    if (const QSize fitted = sizeWithin(size, box); fitted != size)
        reader.setScaledSize(fitted);
    QImage image = reader.read();
    if (!image.hasAlphaChannel())
        return image;
    // JPEG has no transparency.
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

} // namespace moravel::server
