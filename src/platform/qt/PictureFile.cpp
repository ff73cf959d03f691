// SPDX-License-Identifier: MIT
#include "platform/qt/PictureFile.h"

#include "platform/Http.h"
#include "platform/qt/PictureFormat.h"

#include <QColorSpace>
#include <QFileInfo>
#include <QImageReader>

namespace moravel {

namespace {

// Some small files unpack for minutes (thousands of scans over a huge area).
constexpr qint64 LongestDecodingMs = 60'000;

// 4 bytes a pixel make 512 MiB, the allocation limit of the readers.
constexpr qint64 MostPixels = 128LL * 1024 * 1024;

// Decoding at an eighth of the size still reads every byte.
constexpr QSize CheckBox(256, 256);

/// A picture file and the reader of its format. No other decoder sees the bytes.
class Picture
{
public:
    Picture(const QString &path, const std::atomic<bool> &stop) : m_file(path, stop)
    {
        if (!m_file.openPicture())
            return;
        m_format = pictureformat::fromContent(m_file.peek(pictureformat::HeadBytes));
        if (m_format.isEmpty())
            return;
        m_reader.setDevice(&m_file);
        m_reader.setFormat(m_format);
        m_reader.setAutoDetectImageFormat(false);
        m_reader.setAutoTransform(true);
        m_size = m_reader.size();
    }

    bool isOfUsableSize() const
    {
        return !m_size.isEmpty() && qint64(m_size.width()) * m_size.height() <= MostPixels;
    }

    QSize uprightSize() const { return isTurned() ? m_size.transposed() : m_size; }

    QImage read(QSize box)
    {
        const QSize room = isTurned() ? box.transposed() : box;
        if (m_size.width() > room.width() || m_size.height() > room.height())
            m_reader.setScaledSize(m_size.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1}));
        return m_reader.read();
    }

    bool isComplete()
    {
        // The GIF decoder always reads to the end.
        const bool wasLongEnough = m_format == "gif" || !m_file.wasTooShort();
        return wasLongEnough && pictureformat::hasAnnouncedLength(m_format, m_file);
    }

private:
    bool isTurned() const
    {
        return m_reader.transformation() & QImageIOHandler::TransformationRotate90;
    }

    WatchedFile m_file;
    QByteArray m_format;
    QImageReader m_reader;
    QSize m_size;
};

} // namespace

WatchedFile::WatchedFile(const QString &path, const std::atomic<bool> &stop)
    : QFile(path), m_stop(stop), m_deadline(LongestDecodingMs)
{ }

bool WatchedFile::openPicture()
{
    // isFile() first: opening a pipe would wait for its writer. Unbuffered, so that reading ahead
    // does not count as wanting more.
    return QFileInfo(fileName()).isFile() && open(QIODevice::ReadOnly | QIODevice::Unbuffered)
        && size() <= httplimits::Picture;
}

qint64 WatchedFile::readData(char *data, qint64 maxSize)
{
    if (m_stop || m_deadline.hasExpired()) {
        m_wasTooShort = true;
        return -1;
    }
    const qint64 count = QFile::readData(data, maxSize);
    if (count <= 0 && maxSize > 0)
        m_wasTooShort = true;
    return count;
}

DecodedPicture decodePicture(const QString &path, QSize box, const std::atomic<bool> &stop)
{
    Picture picture(path, stop);
    if (!picture.isOfUsableSize() || box.isEmpty())
        return {};
    QImage image = picture.read(box);
    if (image.isNull() || stop)
        return {};
    // Here rather than on the main thread: the form that is painted fastest, in the screen's
    // colours.
    if (image.colorSpace().isValid() && image.colorSpace() != QColorSpace(QColorSpace::SRgb))
        image.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
    return {image, picture.uprightSize()};
}

QSize announcedPictureSize(const QString &path, const std::atomic<bool> &stop)
{
    const Picture picture(path, stop);
    return picture.isOfUsableSize() ? picture.uprightSize() : QSize();
}

QSize completePictureSize(const QString &path, const std::atomic<bool> &stop)
{
    Picture picture(path, stop);
    if (!picture.isOfUsableSize())
        return {};
    const bool decodes = !picture.read(CheckBox).isNull();
    return decodes && picture.isComplete() ? picture.uprightSize() : QSize();
}

} // namespace moravel
