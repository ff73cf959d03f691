// SPDX-License-Identifier: MIT
#include "server/sources/folder/FolderListing.h"

#include "server/core/Log.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QImageReader>
#include <QSet>

#include <algorithm>

namespace moravel::server {

namespace {

bool isPictureName(const QString &name)
{
    static const QSet<QString> wanted{QStringLiteral("jpg"), QStringLiteral("jpeg"),
                                      QStringLiteral("png"), QStringLiteral("gif"),
                                      QStringLiteral("bmp"), QStringLiteral("webp"),
                                      QStringLiteral("tif"), QStringLiteral("tiff")};
    const QString extension = QFileInfo(name).suffix().toLower();
    return wanted.contains(extension)
        && QImageReader::supportedImageFormats().contains(extension.toLatin1());
}

QStringList pictureNames(const QString &folder)
{
    constexpr qsizetype most = 100'000;
    QStringList names;
    QDirIterator entries(folder, QDir::Files | QDir::Readable | QDir::NoSymLinks);
    while (entries.hasNext() && names.size() < most) {
        entries.next();
        if (isPictureName(entries.fileName()))
            names.append(entries.fileName());
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

FolderListing::FolderListing(QString folder)
    : m_folder(std::move(folder)), m_names(std::make_shared<QStringList>())
{ }

std::shared_ptr<const QStringList> FolderListing::names()
{
    // A file that arrives right after the folder was read may leave its time as it was: a folder
    // read within this many seconds of its change is not trusted.
    constexpr qint64 timeStampGrain = 2;
    const std::lock_guard lock(m_mutex);
    const QDateTime changed = QFileInfo(m_folder).lastModified();
    if (!m_readAt.isValid() || changed != m_folderTime
        || changed.secsTo(m_readAt) < timeStampGrain) {
        m_folderTime = changed;
        m_readAt = QDateTime::currentDateTimeUtc();
        m_names = std::make_shared<const QStringList>(pictureNames(m_folder));
    }
    return m_names;
}

} // namespace moravel::server
