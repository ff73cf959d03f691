// SPDX-License-Identifier: MIT
#include "server/sources/folder/EmbeddedText.h"

#include "server/core/Text.h"

#include <QFile>
#include <QFileInfo>

#include <exiv2/exiv2.hpp>
#include <mutex>

namespace moravel::server {

namespace {

constexpr qsizetype longestTitle = 200;
constexpr qsizetype longestDescription = 2000;

template <typename Data, typename Key>
QString textOf(const Data &data, const char *key)
{
    const auto found = data.findKey(Key(key));
    if (found == data.end() || found->count() == 0)
        return {};
    return QString::fromStdString(found->print());
}

QString xmpText(const Exiv2::XmpData &data, const char *key)
{
    const auto found = data.findKey(Exiv2::XmpKey(key));
    if (found == data.end())
        return {};
    // Texts in several languages print as a list; the first one is the file's own choice.
    if (const auto *texts = dynamic_cast<const Exiv2::LangAltValue *>(&found->value()))
        return texts->value_.empty() ? QString()
                                     : QString::fromStdString(texts->value_.begin()->second);
    return QString::fromStdString(found->toString());
}

QString firstOf(std::initializer_list<QString> texts, qsizetype longest)
{
    for (const QString &text : texts) {
        QString line = oneLine(text, longest);
        if (!line.isEmpty())
            return line;
    }
    return {};
}

EmbeddedText textIn(Exiv2::Image &image)
{
    using Iptc = Exiv2::IptcKey;
    using Exif = Exiv2::ExifKey;
    image.readMetadata();
    const auto &xmp = image.xmpData();
    const auto &iptc = image.iptcData();
    const auto &exif = image.exifData();
    return {firstOf({xmpText(xmp, "Xmp.dc.title"),
                     textOf<Exiv2::IptcData, Iptc>(iptc, "Iptc.Application2.ObjectName"),
                     textOf<Exiv2::ExifData, Exif>(exif, "Exif.Image.XPTitle")},
                    longestTitle),
            firstOf({xmpText(xmp, "Xmp.dc.description"),
                     textOf<Exiv2::IptcData, Iptc>(iptc, "Iptc.Application2.Caption"),
                     textOf<Exiv2::ExifData, Exif>(exif, "Exif.Image.ImageDescription")},
                    longestDescription)};
}

} // namespace

EmbeddedText readEmbeddedText(const QFile &file)
{
    // The library keeps global state for XMP; it also logs to stderr what is wrong with hostile
    // files.
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    try {
        // By descriptor: the name may mean another file by now.
        const auto image =
            Exiv2::ImageFactory::open("/proc/self/fd/" + std::to_string(file.handle()));
        return image.get() ? textIn(*image) : EmbeddedText();
    } catch (const std::exception &) {
        return {};
    }
}

QString captionFromName(const QString &fileName)
{
    QString name = QFileInfo(fileName).completeBaseName();
    name.replace(u'_', u' ').replace(u'-', u' ');
    const QString caption = oneLine(name, longestTitle);
    if (caption.isEmpty())
        return QStringLiteral("Untitled");
    return caption.front().toUpper() + caption.mid(1);
}

} // namespace moravel::server
