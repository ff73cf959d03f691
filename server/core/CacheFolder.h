// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/PictureSource.h"

#include <QString>

#include <mutex>
#include <optional>

namespace moravel::server {

/// Opens a regular file for reading without following a link in its last part; null when that
/// fails.
std::shared_ptr<QFile> openPlainFile(const QString &path);

/// The name under which the picture of a source, day and kind is kept. @p revision tells apart what
/// the picture was made from or by.
QString cacheName(const QString &shortName, QDate date, PictureKind kind, const QString &revision);

/// JPEG files made by this service, kept on disk up to a number of bytes; the least recently used
/// go first. Touches only files whose names are its own. Thread-safe; a folder that cannot be
/// written makes every store fail, which is logged once.
class CacheFolder
{
public:
    CacheFolder(QString folder, qint64 maxBytes);

    /// The stored picture, marked as used now; a damaged file is removed and counts as missing.
    std::optional<Content> open(const QString &name);

    /// Stores a picture under a cacheName(), whole or not at all, then makes room.
    bool store(const QString &name, const QByteArray &bytes);

private:
    void makeRoom();
    void removeLeftovers();
    bool write(const QString &name, const QByteArray &bytes);

    const QString m_folder;
    const qint64 m_maxBytes;
    std::mutex m_mutex;
    qint64 m_total = 0; ///< An upper estimate between two looks at the disk.
    bool m_reported = false;
};

} // namespace moravel::server
