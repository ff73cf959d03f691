// SPDX-License-Identifier: MIT
#include "platform/linux/Posix.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace moravel::posix {

namespace {

QByteArray stampOf(const struct stat &info)
{
    const std::array<qint64, 7> parts = {
        qint64(info.st_dev),  qint64(info.st_ino), info.st_size,        info.st_mtim.tv_sec,
        info.st_mtim.tv_nsec, info.st_ctim.tv_sec, info.st_ctim.tv_nsec};
    return {reinterpret_cast<const char *>(parts.data()), sizeof parts};
}

} // namespace

bool Fd::close()
{
    // Linux releases the descriptor even when close() fails or is interrupted: never try again.
    const int fd = std::exchange(m_fd, -1);
    return fd < 0 || ::close(fd) == 0 || errno == EINTR;
}

FileError error(const QString &path, int number)
{
    return {path, QString::fromLocal8Bit(std::strerror(number))};
}

tl::unexpected<FileError> failed(const QString &path, int number)
{
    return tl::make_unexpected(error(path, number));
}

FileResult<QByteArray> nativePath(const QString &path)
{
    if (path.isEmpty())
        return failed(path, ENOENT);
    if (!path.startsWith(u'/') || path.contains(QChar(u'\0')))
        return failed(path, EINVAL);
    return QFile::encodeName(path);
}

FileResult<OpenFile> openRegular(const QString &path)
{
    const auto native = nativePath(path);
    if (!native)
        return tl::make_unexpected(native.error());
    Fd fd(::open(native->constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat info = {};
    if (!fd.isOpen() || ::fstat(fd.get(), &info) != 0)
        return failed(path, errno);
    if (S_ISDIR(info.st_mode))
        return failed(path, EISDIR);
    if (!S_ISREG(info.st_mode))
        return failed(path, EINVAL);
    return OpenFile{std::move(fd), info.st_size, stampOf(info)};
}

int renameNew(const QByteArray &from, const QByteArray &to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // A file system that cannot do it in one step, NFS for one.
    if (::link(from.constData(), to.constData()) != 0 || ::unlink(from.constData()) != 0)
        return errno;
    return 0;
}

bool syncFolderOf(const QByteArray &nativePath)
{
    const Fd folder(::open(folderOf(nativePath).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder that may be written but not read, and file systems without folder sync, have to do
    // without.
    if (!folder.isOpen())
        return errno == EACCES;
    return ::fsync(folder.get()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

QByteArray folderOf(const QByteArray &nativePath)
{
    const qsizetype slash = nativePath.lastIndexOf('/');
    return slash > 0 ? nativePath.first(slash) : QByteArray("/");
}

} // namespace moravel::posix
