// SPDX-License-Identifier: MIT
#include "platform/qt/ThumbnailCache.h"

#include "platform/qt/Log.h"
#include "platform/qt/PictureFile.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QImageReader>
#include <QImageWriter>
#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

namespace moravel {

namespace {

struct SizeFolder
{
    int edge;
    const char *name;
};

constexpr std::array Sizes{SizeFolder{128, "normal"}, SizeFolder{256, "large"},
                           SizeFolder{512, "x-large"}, SizeFolder{1024, "xx-large"}};

// A picture of 1024 x 1024 pixels that does not compress at all has 4 MiB.
constexpr qint64 LargestFile = 5 << 20;

/// As GLib escapes it: the name of the thumbnail hangs on every byte.
QByteArray uriOf(const QString &path)
{
    return "file://" + QFile::encodeName(path).toPercentEncoding("!*'()$&+,/:=@");
}

QString key(const char *name)
{
    return QLatin1String("Thumb::") + QLatin1String(name);
}

/// Reads what may be anybody's bytes: a PNG of at most that edge, made of this very state of the file.
QImage readChecked(const QString &file, int edge, const QByteArray &uri, const ThumbnailKey &wanted,
                   const std::atomic<bool> &stop)
{
    WatchedFile device(file, stop);
    if (!device.openPicture() || device.size() > LargestFile)
        return {};
    // Whole at first: libpng writes to the error output when a reading is stopped in its midst.
    QByteArray bytes = device.readAll();
    if (stop || bytes.size() != device.size())
        return {};
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > edge || size.height() > edge)
        return {};
    // From the image: the reader takes a colon for the end of a text's name.
    QImage image = reader.read();
    if (image.text(key("URI")).toUtf8() != uri
        || image.text(key("MTime")) != QString::number(wanted.modified))
        return {};
    const QString fileSize = image.text(key("Size"));
    if (!fileSize.isEmpty() && fileSize != QString::number(wanted.fileSize))
        return {};
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
    return image;
}

/// Makes a folder that none but the user can look into.
bool makePrivate(const QString &folder)
{
    if (::mkdir(QFile::encodeName(folder).constData(), 0700) == 0 || errno == EEXIST)
        return true;
    const int number = errno;
    const bool made = number == ENOENT && QDir().mkpath(QFileInfo(folder).absolutePath())
        && ::mkdir(QFile::encodeName(folder).constData(), 0700) == 0;
    return made || errno == EEXIST;
}

} // namespace

ThumbnailCache::ThumbnailCache(QString root) : m_root(std::move(root))
{ }

int ThumbnailCache::sizeFor(int edge)
{
    for (const SizeFolder &size : Sizes) {
        if (size.edge >= edge)
            return size.edge;
    }
    return 0;
}

QString ThumbnailCache::fileOf(const QByteArray &uri, int size) const
{
    const auto *folder = std::find_if(Sizes.begin(), Sizes.end(),
                                      [size](const SizeFolder &s) { return s.edge == size; });
    const QByteArray hash = QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex();
    return QStringLiteral("%1/%2/%3.png")
        .arg(m_root, QLatin1String(folder->name), QLatin1String(hash));
}

QImage ThumbnailCache::read(const ThumbnailKey &wanted, int size,
                            const std::atomic<bool> &stop) const
{
    const QByteArray uri = uriOf(wanted.path);
    for (const SizeFolder &kept : Sizes) {
        if (kept.edge < size || stop)
            continue;
        QImage image = readChecked(fileOf(uri, kept.edge), kept.edge, uri, wanted, stop);
        if (!image.isNull())
            return image;
    }
    return {};
}

void ThumbnailCache::write(const ThumbnailKey &wanted, int size, const QImage &image) const
{
    const QByteArray uri = uriOf(wanted.path);
    const QString file = fileOf(uri, size);
    const QString folder = QFileInfo(file).absolutePath();
    if (!makePrivate(m_root) || !makePrivate(folder)) {
        qCInfo(lcQt) << "no folder for thumbnails:" << folder;
        return;
    }
    // Without the picture's own texts, which may be long.
    QImage bare(image.constBits(), image.width(), image.height(), image.bytesPerLine(),
                image.format());
    bare.setText(key("URI"), QString::fromUtf8(uri));
    bare.setText(key("MTime"), QString::number(wanted.modified));
    bare.setText(key("Size"), QString::number(wanted.fileSize));
    bare.setText(QStringLiteral("Software"), QStringLiteral("Moravel"));
    QTemporaryFile part(folder
                        + QStringLiteral("/.moravel-XXXXXX")); // for the user alone, as it must be
    QImageWriter writer(&part, "png");
    writer.setQuality(80); // zlib's level 1: far quicker for few more bytes
    const bool written = part.open() && writer.write(bare) && part.flush()
        && std::rename(QFile::encodeName(part.fileName()).constData(),
                       QFile::encodeName(file).constData())
            == 0;
    if (!written) {
        qCInfo(lcQt) << "cannot keep a thumbnail:" << file << part.errorString();
        return;
    }
    part.setAutoRemove(false);
}

} // namespace moravel
