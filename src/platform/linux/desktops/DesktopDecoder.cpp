// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/DesktopDecoder.h"

#include "platform/linux/desktops/PicturePlacement.h"

#include <QColorSpace>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace moravel {

namespace {

/// Gives no more bytes once the program ends, so that a slow decoder comes back.
class StoppableFile : public QFile
{
public:
    StoppableFile(const QString &path, const std::atomic<bool> &stop)
        : QFile(path), m_stop(stop) { }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        return m_stop ? -1 : QFile::readData(data, maxSize);
    }

private:
    const std::atomic<bool> &m_stop;
};

QRect centred(QSize part, QSize whole)
{
    return {QPoint((whole.width() - part.width()) / 2, (whole.height() - part.height()) / 2), part};
}

/// The JPEG decoder shrinks a part while it decodes, several times faster and in a fraction of the memory,
/// only where the part lies on its blocks of 8 pixels. In a large picture the difference is not seen.
QRect onBlocks(const QRect &part)
{
    if (part.width() < 512 || part.height() < 512)
        return part;
    const auto down = [](int number) { return number & ~7; };
    return {down(part.x()), down(part.y()), down(part.width()), down(part.height())};
}

bool isPictureFormat(const QByteArray &format)
{
    static const QByteArrayList formats{"jpeg", "jpg", "png", "gif", "webp", "bmp", "tiff", "tif"};
    return formats.contains(format.toLower());
}

} // namespace

QImage decodeForScreen(const QString &path, QSize screen, DesktopScaling scaling,
                       const std::atomic<bool> &stop)
{
    StoppableFile file(path, stop);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!isPictureFormat(reader.format()))
        return {};
    // The reader cuts and scales before it turns the picture upright: for a picture that lies on its side
    // the screen is turned instead. What is seen is centred, so mirroring does not matter.
    const bool sideways = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize size = reader.size();
    const PicturePlacement placement =
        placePicture(size, sideways ? screen.transposed() : screen, scaling);
    if (placement.part.isEmpty())
        return {};
    const bool scaled = placement.shown != placement.part;
    const QRect part = centred(placement.part, size);
    if (placement.part != size)
        reader.setClipRect(scaled ? onBlocks(part) : part);
    if (scaled)
        reader.setScaledSize(placement.shown);
    QImage image = reader.read();
    if (image.colorSpace().isValid() && image.colorSpace() != QColorSpace(QColorSpace::SRgb))
        image.convertToColorSpace(QColorSpace::SRgb);
    return stop ? QImage() : image;
}

} // namespace moravel
