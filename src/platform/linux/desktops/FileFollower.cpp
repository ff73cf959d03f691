// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/FileFollower.h"

#include <QFileInfo>

namespace moravel {

namespace {

constexpr int SettleMs = 160;

QString nearestFolder(const QString &path)
{
    QString folder = QFileInfo(path).path();
    while (!QFileInfo::exists(folder) && folder.contains(u'/') && folder.size() > 1)
        folder = QFileInfo(folder).path();
    return folder;
}

} // namespace

FileFollower::FileFollower(const QString &path, std::function<void()> changed) : m_path(path)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(SettleMs);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] { m_settle.start(); });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        watch(); // perhaps a nearer folder has come
        if (!m_watcher.files().isEmpty())
            m_settle.start();
    });
    connect(&m_settle, &QTimer::timeout, this, [this, changed = std::move(changed)] {
        watch();
        changed();
    });
    watch();
}

void FileFollower::watch()
{
    // A file that is replaced rather than written ends its watch. Folders are followed only while
    // there is no file.
    if (!m_watcher.files().isEmpty())
        return;
    leaveFolders();
    if (!m_watcher.addPath(m_path))
        m_watcher.addPath(nearestFolder(m_path));
}

void FileFollower::leaveFolders()
{
    if (const QStringList folders = m_watcher.directories(); !folders.isEmpty())
        m_watcher.removePaths(folders);
}

} // namespace moravel
