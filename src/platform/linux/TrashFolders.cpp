// SPDX-License-Identifier: MIT
#include "platform/linux/TrashFolders.h"

#include "platform/linux/Posix.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace moravel {

namespace {

constexpr mode_t ownerOnly = 0700;

// Files can be renamed within a mount of a file system only; a bind mount shares the device.
struct Volume
{
    quint64 major = 0;
    quint64 minor = 0;
    quint64 mount = 0;
    bool operator==(const Volume &) const = default;
};

std::optional<Volume> volumeOf(const QByteArray &path)
{
    struct statx info = {};
    if (::statx(AT_FDCWD, path.constData(), 0, STATX_BASIC_STATS | STATX_MNT_ID, &info) != 0)
        return std::nullopt;
    const bool hasMount = (info.stx_mask & STATX_MNT_ID) != 0;
    return Volume{info.stx_dev_major, info.stx_dev_minor, hasMount ? info.stx_mnt_id : 0};
}

QByteArray topFolderOf(QByteArray folder)
{
    const std::optional<Volume> volume = volumeOf(folder);
    while (folder != "/") {
        const QByteArray parent = posix::folderOf(folder);
        if (volumeOf(parent) != volume)
            break;
        folder = parent;
    }
    return folder;
}

bool isOnVolumeOf(QByteArray wanted, const QByteArray &folder)
{
    while (wanted != "/" && ::access(wanted.constData(), F_OK) != 0)
        wanted = posix::folderOf(wanted);
    return volumeOf(wanted) == volumeOf(folder);
}

FileResult<void> failedAt(const QByteArray &path, int number)
{
    return posix::failed(QFile::decodeName(path), number);
}

FileResult<void> makeFolders(const QByteArray &path)
{
    if (::mkdir(path.constData(), ownerOnly) == 0 || errno == EEXIST)
        return {};
    if (errno != ENOENT || path == "/")
        return failedAt(path, errno);
    if (auto made = makeFolders(posix::folderOf(path)); !made)
        return made;
    if (::mkdir(path.constData(), ownerOnly) != 0 && errno != EEXIST)
        return failedAt(path, errno);
    return {};
}

bool isOwnFolder(const QByteArray &path)
{
    struct stat info = {};
    return ::lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode)
        && info.st_uid == ::geteuid();
}

bool isSharedTrash(const QByteArray &path)
{
    struct stat info = {};
    return ::lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode)
        && (info.st_mode & S_ISVTX) != 0;
}

// On a volume that others may write to, a folder or link that someone else has put there is not used.
FileResult<void> makeOwnFolder(const QByteArray &path)
{
    if (::mkdir(path.constData(), ownerOnly) != 0 && errno != EEXIST)
        return failedAt(path, errno);
    return isOwnFolder(path) ? FileResult<void>() : failedAt(path, EACCES);
}

FileResult<void> makeInside(const TrashFolder &trash)
{
    for (const QByteArray &folder : {trash.files().chopped(1), trash.info().chopped(1)}) {
        if (auto made = trash.topFolder.isEmpty() ? makeFolders(folder) : makeOwnFolder(folder);
            !made)
            return made;
    }
    return {};
}

QByteArray below(const QByteArray &topFolder, const QByteArray &name)
{
    return topFolder == "/" ? '/' + name : topFolder + '/' + name;
}

// The user's Trash folders on a volume, in the order in which they are tried.
QList<TrashFolder> possibleFolders(const QByteArray &topFolder)
{
    const QByteArray uid = QByteArray::number(::geteuid());
    const QByteArray shared = below(topFolder, ".Trash");
    QList<TrashFolder> folders;
    if (isSharedTrash(shared))
        folders.append({shared + '/' + uid, topFolder});
    folders.append({below(topFolder, ".Trash-" + uid), topFolder});
    return folders;
}

} // namespace

FileResult<TrashFolder> trashFolderFor(const QByteArray &folder, const QByteArray &homeTrash)
{
    if (isOnVolumeOf(homeTrash, folder)) {
        const TrashFolder home{homeTrash, {}};
        if (const auto made = makeInside(home); !made)
            return tl::make_unexpected(made.error());
        return home;
    }
    FileResult<void> made;
    for (const TrashFolder &trash : possibleFolders(topFolderOf(folder))) {
        made = makeOwnFolder(trash.path);
        if (made)
            made = makeInside(trash);
        if (made)
            return trash;
    }
    return tl::make_unexpected(made.error());
}

QList<TrashFolder> trashFoldersFor(const QByteArray &folder, const QByteArray &homeTrash)
{
    QList<TrashFolder> folders{{homeTrash, {}}};
    for (const TrashFolder &trash : possibleFolders(topFolderOf(folder))) {
        if (isOwnFolder(trash.path))
            folders.append(trash);
    }
    return folders;
}

} // namespace moravel
