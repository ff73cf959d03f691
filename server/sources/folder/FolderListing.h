// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <memory>
#include <mutex>

namespace moravel::server {

/// The names of the picture files in a folder, sorted by their characters' codes; read again when
/// the folder changed. Hidden files, links and folders are left out. Thread-safe.
class FolderListing
{
public:
    explicit FolderListing(QString folder);

    std::shared_ptr<const QStringList> names(); ///< Empty when the folder is empty or missing.

private:
    const QString m_folder;
    std::mutex m_mutex;
    std::shared_ptr<const QStringList> m_names;
    QDateTime m_folderTime;
    QDateTime m_readAt;
};

} // namespace moravel::server
