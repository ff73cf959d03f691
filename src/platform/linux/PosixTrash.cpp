// SPDX-License-Identifier: MIT
#include "platform/linux/PosixTrash.h"

#include "platform/linux/Posix.h"
#include "platform/linux/PosixFiles.h"
#include "platform/linux/TrashFolders.h"
#include "platform/linux/TrashInfo.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace moravel {

using posix::failed;

namespace {

constexpr int mostAttempts = 10'000; // at a free name
constexpr qint64 largestInfo = 64 * 1024; // bytes; paths are far shorter
const QByteArray infoSuffix(".trashinfo");

QByteArray nameOf(const QByteArray &path)
{
    return path.sliced(path.lastIndexOf('/') + 1);
}

struct Free
{
    void operator()(char *text) const { std::free(text); }
};

// The path with the links in its folder followed; a link at its end is the file itself.
FileResult<QByteArray> realPath(const QString &path)
{
    const auto native = posix::nativePath(path);
    if (!native)
        return native;
    const std::unique_ptr<char, Free> folder(
        ::realpath(posix::folderOf(*native).constData(), nullptr));
    if (!folder)
        return failed(path, errno);
    const QByteArray real(folder.get());
    return (real == "/" ? QByteArray() : real) + '/' + nameOf(*native);
}

// 0 for a file or link, else what is wrong with it.
int faultOfFile(const QByteArray &path)
{
    struct stat info = {};
    if (::lstat(path.constData(), &info) != 0)
        return errno;
    return S_ISREG(info.st_mode) || S_ISLNK(info.st_mode) ? 0 : EINVAL;
}

// Writes a file that is not there yet. Returns an error number or 0; then nothing is left of it, unless it
// was there (EEXIST).
int writeNew(const QByteArray &path, const QByteArray &text)
{
    posix::Fd fd(
        ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!fd.isOpen())
        return errno;
    ssize_t written = 0;
    do {
        written = ::write(fd.get(), text.constData(), std::size_t(text.size()));
    } while (written < 0 && errno == EINTR);
    int number = written == text.size() ? 0 : written < 0 ? errno : ENOSPC;
    if (number == 0 && (::fsync(fd.get()) != 0 || !fd.close()))
        number = errno;
    if (number != 0)
        ::unlink(path.constData());
    return number;
}

// Takes a name in the Trash by its info file and moves the file there.
int moveAs(const QByteArray &name, const QByteArray &file, const TrashFolder &trash,
           const QByteArray &infoText)
{
    const QByteArray info = trash.info() + name + infoSuffix;
    if (const int number = writeNew(info, infoText))
        return number;
    const int number = posix::renameNew(file, trash.files() + name);
    if (number != 0)
        ::unlink(info.constData());
    return number;
}

struct Entry
{
    QByteArray file;
    QByteArray info;
    TrashInfo about; // path made absolute
    qint64 written = 0; // when the info file was, in ns: tells two of one second apart
};

std::optional<Entry> readEntry(const TrashFolder &trash, const QByteArray &infoName)
{
    Entry entry{trash.files() + infoName.chopped(infoSuffix.size()), trash.info() + infoName, {}};
    const posix::Fd fd(
        ::open(entry.info.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!fd.isOpen() || ::fstat(fd.get(), &status) != 0 || !S_ISREG(status.st_mode)
        || status.st_size > largestInfo)
        return std::nullopt;
    QByteArray text(status.st_size, Qt::Uninitialized);
    text.truncate(std::max<ssize_t>(0, ::read(fd.get(), text.data(), std::size_t(text.size()))));
    const std::optional<TrashInfo> info = parsedTrashInfo(text);
    if (!info)
        return std::nullopt;
    entry.about = *info;
    if (!info->path.startsWith('/'))
        entry.about.path =
            (trash.topFolder == "/" ? QByteArray() : trash.topFolder) + '/' + info->path;
    entry.written = qint64(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec;
    return entry;
}

QList<Entry> entriesOf(const TrashFolder &trash)
{
    QList<Entry> entries;
    const std::unique_ptr<DIR, int (*)(DIR *)> dir(::opendir(trash.info().constData()), ::closedir);
    if (!dir)
        return entries;
    while (const dirent *item = ::readdir(dir.get())) {
        const QByteArray name(item->d_name);
        if (!name.endsWith(infoSuffix))
            continue;
        if (auto entry = readEntry(trash, name))
            entries.append(*std::move(entry));
    }
    return entries;
}

// How well an entry fits a path; 0: not at all.
int fit(const Entry &entry, const QByteArray &path, const QByteArray &realPath)
{
    const QByteArray &from = entry.about.path;
    if (from == path || from == realPath)
        return 2;
    // The picture folder may have been moved. The name alone would not do: a thumbnail has the name of its
    // picture.
    const bool isAlike = nameOf(from) == nameOf(realPath)
        && nameOf(posix::folderOf(from)) == nameOf(posix::folderOf(realPath));
    return isAlike ? 1 : 0;
}

} // namespace

PosixTrash::PosixTrash(const QString &homeTrash) : m_homeTrash(homeTrash)
{
    if (m_homeTrash.isEmpty())
        m_homeTrash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
            + QLatin1String("/Trash");
}

FileResult<void> PosixTrash::moveToTrash(const QString &path, const QDateTime &now) const
{
    const auto file = realPath(path);
    if (!file)
        return tl::make_unexpected(file.error());
    if (const int number = faultOfFile(*file))
        return failed(path, number);
    const auto homeTrash = posix::nativePath(m_homeTrash);
    if (!homeTrash)
        return tl::make_unexpected(homeTrash.error());
    const auto trash = trashFolderFor(posix::folderOf(*file), *homeTrash);
    if (!trash)
        return tl::make_unexpected(trash.error());
    const qsizetype top = trash->topFolder.size();
    const QByteArray from =
        trash->topFolder.isEmpty() ? *file : file->sliced(trash->topFolder == "/" ? 1 : top + 1);
    const QByteArray text = trashInfoText(from, now);
    int number = EEXIST;
    for (int attempt = 0; number == EEXIST && attempt < mostAttempts; ++attempt)
        number = moveAs(trashName(nameOf(*file), attempt), *file, *trash, text);
    if (number != 0)
        return failed(path, number);
    posix::syncFolderOf(trash->files() + '.');
    posix::syncFolderOf(*file);
    return {};
}

FileResult<void> PosixTrash::restore(const QString &path) const
{
    const auto native = posix::nativePath(path);
    const auto target = realPath(path);
    if (!target)
        return tl::make_unexpected(target.error());
    if (faultOfFile(*target) != ENOENT)
        return failed(path, EEXIST);
    const auto homeTrash = posix::nativePath(m_homeTrash);
    if (!homeTrash)
        return tl::make_unexpected(homeTrash.error());
    std::optional<Entry> best;
    const auto rank = [&](const Entry &entry) {
        return std::tuple(fit(entry, *native, *target), entry.about.deletionDate, entry.written);
    };
    for (const TrashFolder &trash : trashFoldersFor(posix::folderOf(*target), *homeTrash)) {
        for (const Entry &entry : entriesOf(trash)) {
            const bool isBetter = !best || rank(*best) < rank(entry);
            if (isBetter && fit(entry, *native, *target) > 0 && faultOfFile(entry.file) == 0)
                best = entry;
        }
    }
    if (!best)
        return failed(path, ENOENT);
    const int number = posix::renameNew(best->file, *target);
    if (number == EXDEV) {
        if (auto moved = PosixFiles().move(QFile::decodeName(best->file), path); !moved)
            return moved;
    } else if (number != 0) {
        return failed(path, number);
    }
    ::unlink(best->info.constData());
    posix::syncFolderOf(*target);
    return {};
}

} // namespace moravel
