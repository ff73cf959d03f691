// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/CopyMaker.h"

#include "platform/linux/desktops/CopyPlan.h"
#include "platform/linux/desktops/DesktopLog.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QRegularExpression>
#include <QSaveFile>

namespace moravel {

namespace {

constexpr qint64 LongestDecodingMs = 60'000;
constexpr qint64 MostPixels = 128LL * 1024 * 1024;
constexpr int JpegQuality = 92;

/// Stops giving bytes to a decoder when the program ends or decoding takes too long.
class StoppableFile : public QFile
{
public:
    StoppableFile(const QString &path, const std::atomic<bool> &stop)
        : QFile(path), m_stop(stop), m_deadline(LongestDecodingMs)
    { }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        return m_stop || m_deadline.hasExpired() ? -1 : QFile::readData(data, maxSize);
    }

private:
    const std::atomic<bool> &m_stop;
    QDeadlineTimer m_deadline;
};

bool isBitmapFormat(const QByteArray &format)
{
    static const QList<QByteArray> list{"jpeg", "png", "webp", "tiff", "bmp"};
    return list.contains(format);
}

QString nameFor(const CopyOrder &order, const CopyPlan &plan)
{
    const QFileInfo info(order.picture);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(order.picture.toUtf8());
    for (const qint64 number :
         {qint64(order.version), info.lastModified().toMSecsSinceEpoch(), info.size(),
          qint64(plan.scaledTo.width()), qint64(plan.scaledTo.height()), qint64(plan.cut.width()),
          qint64(plan.cut.height())}) {
        hash.addData("/");
        hash.addData(QByteArray::number(number));
    }
    return QString::fromLatin1(hash.result().toHex());
}

/// Returns the file of that name, whichever of the two formats it has.
QString existing(const QDir &folder, const QString &name)
{
    for (const char *extension : {".jpg", ".png"}) {
        const QString file = name + QLatin1String(extension);
        if (folder.exists(file))
            return file;
    }
    return {};
}

/// Makes full colours of few: scaling mixes them.
QImage inFullColours(QImage image)
{
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
    return image;
}

QImage readCopy(QImageReader &reader, const CopyPlan &plan, bool turned)
{
    // This decoder never holds the whole frame when it is to make a small one.
    if (reader.format() == "jpeg")
        reader.setScaledSize(turned ? plan.scaledTo.transposed() : plan.scaledTo);
    QImage image = reader.read();
    if (image.isNull())
        return {};
    image = inFullColours(std::move(image));
    if (image.size() != plan.scaledTo)
        image = image.scaled(plan.scaledTo, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return plan.cut.size() == image.size() ? image : image.copy(plan.cut);
}

QString write(const QImage &image, const QDir &folder, const QString &name)
{
    const bool alpha = image.hasAlphaChannel();
    const QString file = name + (alpha ? QLatin1String(".png") : QLatin1String(".jpg"));
    QSaveFile out(folder.filePath(file));
    if (!folder.mkpath(QStringLiteral(".")) || !out.open(QIODevice::WriteOnly)) {
        qCWarning(desktopsLog, "cannot write to %s", qUtf8Printable(folder.path()));
        return {};
    }
    QImageWriter writer(&out, alpha ? "png" : "jpeg");
    writer.setQuality(alpha ? -1 : JpegQuality);
    if (!writer.write(image) || !out.commit()) {
        qCWarning(desktopsLog, "cannot write %s", qUtf8Printable(out.fileName()));
        return {};
    }
    return file;
}

QString makeScaled(const CopyOrder &order, const std::atomic<bool> &stop)
{
    // isFile() first: opening a pipe would wait for its writer.
    StoppableFile file(order.picture, stop);
    if (!QFileInfo(order.picture).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!isBitmapFormat(reader.format()))
        return {};
    const QSize stored = reader.size();
    if (qint64(stored.width()) * stored.height() > MostPixels)
        return {};
    const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize upright = turned ? stored.transposed() : stored;
    const auto plan = order.cuts ? planCut(upright, order.screens.value(0))
                                 : planCopy(upright, order.screens, order.scaling);
    if (!plan || stop)
        return {};
    const QDir folder(order.folder);
    const QString name = nameFor(order, *plan);
    if (const QString found = existing(folder, name); !found.isEmpty())
        return found;
    const QImage image = readCopy(reader, *plan, turned);
    return image.isNull() || stop ? QString() : write(image, folder, name);
}

QString makeLink(const CopyOrder &order)
{
    const QDir folder(order.folder);
    const QString name = nameFor(order, {}) + QLatin1String(".jpg"); // desktops look into the file
    if (folder.exists(name))
        return name;
    const QString path = folder.filePath(name);
    QFile::remove(path); // one that leads nowhere
    if (folder.mkpath(QStringLiteral(".")) && QFile::link(order.picture, path))
        return name;
    qCWarning(desktopsLog, "cannot write to %s", qUtf8Printable(folder.path()));
    return {};
}

} // namespace

QString makeCopy(const CopyOrder &order, const std::atomic<bool> &stop)
{
    const QString name = makeScaled(order, stop);
    return name.isEmpty() && order.link && !stop && QFileInfo(order.picture).isFile()
        ? makeLink(order)
        : name;
}

bool isCopyName(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("\\A[0-9a-f]{40}\\.(jpg|png)\\z"));
    return pattern.match(name).hasMatch();
}

} // namespace moravel
