// SPDX-License-Identifier: MIT
#include "platform/qt/PictureFormat.h"

#include <QHash>
#include <QIODevice>
#include <QImageReader>
#include <QtEndian>

#include <cstdlib>

namespace moravel::pictureformat {

namespace {

// Offsets within a BMP file with a 40-byte or longer information header.
constexpr qsizetype BmpPixelOffset = 10;
constexpr qsizetype BmpWidth = 18;
constexpr qsizetype BmpHeight = 22;
constexpr qsizetype BmpBitsPerPixel = 28;
constexpr qsizetype BmpCompression = 30;
constexpr qsizetype BmpImageSize = 34;

template <typename T>
T littleEndianAt(const QByteArray &bytes, qsizetype offset)
{
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

qint64 bmpLength(const QByteArray &head)
{
    const qint64 offset = littleEndianAt<quint32>(head, BmpPixelOffset);
    const quint32 compression = littleEndianAt<quint32>(head, BmpCompression);
    const bool isRunLength = compression == 1 || compression == 2;
    if (isRunLength)
        return offset + littleEndianAt<quint32>(head, BmpImageSize);
    const qint64 width = littleEndianAt<qint32>(head, BmpWidth);
    const qint64 height = std::llabs(littleEndianAt<qint32>(head, BmpHeight));
    const qint64 bits = littleEndianAt<quint16>(head, BmpBitsPerPixel);
    const qint64 bytesPerRow = (width * bits + 31) / 32 * 4;
    return offset + bytesPerRow * height;
}

void skip(QIODevice &file, qint64 bytes)
{
    file.seek(file.pos() + bytes); // past the end, the next byte is missing
}

/// Length of the colour table that the flags of a GIF's screen or frame announce.
qint64 colourTableBytes(int flags)
{
    return flags > 0 && flags & 0x80 ? 3LL << ((flags & 7) + 1) : 0;
}

/// The next byte, or -1 at the end.
int nextByte(QIODevice &file)
{
    char byte = 0;
    return file.read(&byte, 1) == 1 ? quint8(byte) : -1;
}

/// Walks over the blocks of a GIF without decoding them.
bool reachesGifTrailer(QIODevice &file)
{
    skip(file, 10);
    skip(file, colourTableBytes(nextByte(file)) + 2);
    for (int kind = nextByte(file); kind != ';'; kind = nextByte(file)) {
        if (kind == ',') { // a frame: its place and size, flags, colour table, and the code size
            skip(file, 8);
            skip(file, colourTableBytes(nextByte(file)) + 1);
        } else if (kind == '!') { // an extension: which one
            skip(file, 1);
        } else {
            return false;
        }
        for (int length = nextByte(file); length != 0; length = nextByte(file)) {
            if (length < 0)
                return false;
            skip(file, length);
        }
    }
    return true;
}

} // namespace

QByteArray fromContent(const QByteArray &head)
{
    if (head.startsWith("\xFF\xD8\xFF"))
        return "jpeg";
    if (head.startsWith("\x89PNG\r\n\x1A\n"))
        return "png";
    if (head.startsWith("GIF87a") || head.startsWith("GIF89a"))
        return "gif";
    if (head.startsWith("RIFF") && head.mid(8, 4) == "WEBP")
        return "webp";
    if (head.startsWith("BM") && head.size() >= HeadBytes)
        return "bmp";
    if (head.startsWith(QByteArray("II*\0", 4)) || head.startsWith(QByteArray("MM\0*", 4)))
        return "tiff";
    return {};
}

bool hasAnnouncedLength(const QByteArray &format, QIODevice &file)
{
    file.seek(0);
    if (format == "gif")
        return reachesGifTrailer(file);
    const QByteArray head = file.peek(HeadBytes);
    if (format == "webp")
        return file.size() >= 8 + qint64(littleEndianAt<quint32>(head, 4));
    if (format == "bmp")
        return file.size() >= bmpLength(head);
    return true;
}

bool isExtension(const QString &extension)
{
    static const QHash<QString, QByteArray> formats{
        {QStringLiteral("jpg"), "jpeg"},  {QStringLiteral("jpeg"), "jpeg"},
        {QStringLiteral("jpe"), "jpeg"},  {QStringLiteral("jfif"), "jpeg"},
        {QStringLiteral("png"), "png"},   {QStringLiteral("gif"), "gif"},
        {QStringLiteral("webp"), "webp"}, {QStringLiteral("bmp"), "bmp"},
        {QStringLiteral("tif"), "tiff"},  {QStringLiteral("tiff"), "tiff"},
    };
    static const QList<QByteArray> readable = QImageReader::supportedImageFormats();
    const auto found = formats.find(extension.toLower());
    return found != formats.end() && readable.contains(*found);
}

} // namespace moravel::pictureformat
