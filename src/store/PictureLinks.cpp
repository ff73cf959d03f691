// SPDX-License-Identifier: MIT
#include "store/PictureLinks.h"

#include "platform/Files.h"
#include "store/Folders.h"

#include <QByteArray>

#include <algorithm>

namespace moravel {

namespace {

constexpr qsizetype longestName = 200; ///< Bytes; leaves room for extensions and temporary names.

/// The files that share the picture folder with the pictures: a link must not stand for them, or
/// deleting "its picture" would take them along.
bool isOwnFile(const QString &name)
{
    return name.compare(QLatin1String("Moravel-captions.txt"), Qt::CaseInsensitive) == 0
        || name.compare(QLatin1String("Moravel2.txt"), Qt::CaseInsensitive) == 0;
}

bool isSafeName(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(u'.') && !name.contains(u'/') && !isOwnFile(name)
        && std::none_of(name.begin(), name.end(),
                        [](QChar c) { return c.category() == QChar::Other_Control; });
}

bool hasExtension(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot >= 0 && dot + 1 < name.size();
}

} // namespace

QString removeDoubleDomain(const QString &link)
{
    const QLatin1String http("http");
    const qsizetype second = link.indexOf(http, link.startsWith(http) ? http.size() : 0);
    return second < 0 ? link : link.sliced(second);
}

QString fileNameOfLink(const QString &link)
{
    const QString name = link.sliced(link.lastIndexOf(u'/') + 1);
    if (name.size() > longestName || !name.isValidUtf16() || !isSafeName(name))
        return {};
    const bool plain = name.size() * 3 <= longestName && !name.contains(u'%'); // nearly all are
    const QByteArray bytes = plain ? QByteArray() : name.toUtf8();
    const bool usable = plain
        || (bytes.size() <= longestName
            && isSafeName(QString::fromUtf8(QByteArray::fromPercentEncoding(bytes))));
    return usable ? name : QString();
}

QString pictureFileName(const QString &link)
{
    const QString name = fileNameOfLink(link);
    return name.isEmpty() || hasExtension(name) ? name : name + QLatin1String(".jpg");
}

PictureLinks::PictureLinks(Folders &folders, const Files &files)
    : m_folders(folders), m_files(files)
{ }

QString PictureLinks::picLinkToPath(const QString &link, bool isThumb, bool checkForFile) const
{
    const QString name = pictureFileName(link);
    if (name.isEmpty())
        return {};
    const QString folder = isThumb ? m_folders.thumbsFolder() : m_folders.moravelFolder();
    if (folder.isEmpty())
        return {};
    const QString path = folder + name;
    return !checkForFile || m_files.exists(path) ? path : QString();
}

} // namespace moravel
