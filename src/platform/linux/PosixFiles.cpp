// SPDX-License-Identifier: MIT
#include "platform/linux/PosixFiles.h"

#include "platform/linux/Posix.h"
#include "platform/linux/PosixPart.h"

#include <QFile>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace moravel {

using posix::failed;
using posix::nativePath;

namespace {

Q_LOGGING_CATEGORY(lcPlatform, "moravel.platform")

constexpr qint64 largestCopy = 16 << 20; ///< Bytes; larger files are mapped.

class CopiedBytes : public FileBytes
{
public:
    CopiedBytes(QByteArray data, QByteArray stamp)
        : m_data(std::move(data)), m_stamp(std::move(stamp))
    { }

    std::string_view bytes() const override
    {
        return {m_data.constData(), std::size_t(m_data.size())};
    }

    QByteArray stamp() const override { return m_stamp; }

private:
    QByteArray m_data;
    QByteArray m_stamp;
};

class MappedBytes : public FileBytes
{
public:
    MappedBytes(void *data, std::size_t size, QByteArray stamp)
        : m_data(data), m_size(size), m_stamp(std::move(stamp))
    { }

    ~MappedBytes() override { ::munmap(m_data, m_size); }
    Q_DISABLE_COPY_MOVE(MappedBytes)

    std::string_view bytes() const override { return {static_cast<const char *>(m_data), m_size}; }

    QByteArray stamp() const override { return m_stamp; }

private:
    void *m_data;
    std::size_t m_size;
    QByteArray m_stamp;
};

FileResult<std::unique_ptr<FileBytes>> copyBytes(const QString &path, const posix::OpenFile &file)
{
    QByteArray data(file.size, Qt::Uninitialized);
    qsizetype filled = 0;
    while (filled < data.size()) {
        const ssize_t got =
            ::read(file.fd.get(), data.data() + filled, std::size_t(data.size() - filled));
        if (got < 0 && errno != EINTR)
            return failed(path, errno);
        if (got == 0) // cut short meanwhile
            break;
        filled += std::max<ssize_t>(got, 0);
    }
    data.truncate(filled);
    return std::make_unique<CopiedBytes>(std::move(data), file.stamp);
}

FileResult<std::unique_ptr<FileBytes>> mapBytes(const QString &path, const posix::OpenFile &file)
{
    const auto size = std::size_t(file.size);
    void *data = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.fd.get(), 0);
    if (data == MAP_FAILED)
        return failed(path, errno);
    ::madvise(data, size, MADV_SEQUENTIAL);
    return std::make_unique<MappedBytes>(data, size, file.stamp);
}

FileResult<struct stat> look(const QString &path)
{
    const auto native = nativePath(path);
    if (!native)
        return tl::make_unexpected(native.error());
    struct stat info = {};
    if (::stat(native->constData(), &info) != 0)
        return failed(path, errno);
    return info;
}

using EachName = std::function<void(const dirent &entry, int folder)>;

FileResult<void> forEachName(const QString &folder, const EachName &visit)
{
    const auto native = nativePath(folder);
    if (!native)
        return tl::make_unexpected(native.error());
    const std::unique_ptr<DIR, int (*)(DIR *)> dir(::opendir(native->constData()), ::closedir);
    if (!dir)
        return failed(folder, errno);
    while (true) {
        errno = 0;
        const dirent *entry = ::readdir(dir.get());
        if (entry == nullptr)
            break;
        visit(*entry, ::dirfd(dir.get()));
    }
    if (errno != 0)
        return failed(folder, errno);
    return {};
}

/// Most file systems tell the kind of a file with its name, which spares a look at each.
bool isPlain(int folder, const dirent &entry, int flags)
{
    if (entry.d_type == DT_REG || entry.d_type == DT_DIR)
        return entry.d_type == DT_REG;
    struct stat info = {};
    return ::fstatat(folder, entry.d_name, &info, flags) == 0 && S_ISREG(info.st_mode);
}

} // namespace

StandardFolders PosixFiles::standardFolders() const
{
    const auto absolute = [](QStandardPaths::StandardLocation kind) {
        QString path = QStandardPaths::writableLocation(kind);
        while (path.endsWith(u'/'))
            path.chop(1);
        return path.startsWith(u'/') ? path : QString();
    };
    return {.pictures = absolute(QStandardPaths::PicturesLocation),
            .applicationSupport = absolute(QStandardPaths::GenericDataLocation)};
}

bool PosixFiles::exists(const QString &path) const
{
    const auto native = nativePath(path);
    struct stat info = {};
    if (!native || ::stat(native->constData(), &info) == 0)
        return native.has_value();
    return errno != ENOENT && errno != ENOTDIR && errno != EACCES && errno != ENAMETOOLONG;
}

bool PosixFiles::isFolder(const QString &path) const
{
    const auto info = look(path);
    return info && S_ISDIR(info->st_mode);
}

qint64 PosixFiles::size(const QString &path) const
{
    const auto info = look(path);
    return info && S_ISREG(info->st_mode) ? qint64(info->st_size) : -1;
}

FileResult<QStringList> PosixFiles::names(const QString &folder) const
{
    QStringList names;
    const auto read = forEachName(folder, [&names](const dirent &entry, int dir) {
        const QByteArrayView name(entry.d_name);
        if (name.startsWith('.') || !isPlain(dir, entry, 0))
            return;
        const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
        if (std::all_of(name.begin(), name.end(), isAscii)) { // there may be a hundred thousand
            names.append(QString::fromLatin1(name));
            return;
        }
        const QString text = QFile::decodeName(name.toByteArray());
        // A name that is no text could not be opened again by its text.
        if (QFile::encodeName(text) == name)
            names.append(text);
    });
    if (!read)
        return tl::make_unexpected(read.error());
    return names;
}

FileResult<void> PosixFiles::makeFolder(const QString &path)
{
    const auto native = nativePath(path);
    if (!native)
        return tl::make_unexpected(native.error());
    if (isFolder(path) || ::mkdir(native->constData(), 0777) == 0)
        return {};
    const int number = errno;
    QString parent = path;
    while (parent.endsWith(u'/'))
        parent.chop(1);
    parent.truncate(parent.lastIndexOf(u'/'));
    if (number != ENOENT || parent.isEmpty())
        return failed(path, number);
    if (auto made = makeFolder(parent); !made)
        return made;
    if (::mkdir(native->constData(), 0777) != 0 && !isFolder(path))
        return failed(path, errno);
    return {};
}

FileResult<void> PosixFiles::move(const QString &from, const QString &to)
{
    const auto nativeFrom = nativePath(from);
    if (!nativeFrom)
        return tl::make_unexpected(nativeFrom.error());
    const auto nativeTo = nativePath(to);
    if (!nativeTo)
        return tl::make_unexpected(nativeTo.error());
    const int number = posix::renameNew(*nativeFrom, *nativeTo);
    if (number == EXDEV)
        return copyAndRemove(from, to);
    if (number != 0)
        return failed(number == EEXIST ? to : from, number);
    if (!posix::syncFolderOf(*nativeTo) || !posix::syncFolderOf(*nativeFrom))
        return failed(to, errno);
    return {};
}

FileResult<void> PosixFiles::copyAndRemove(const QString &from, const QString &to)
{
    const auto source = open(from);
    if (!source)
        return tl::make_unexpected(source.error());
    const std::string_view bytes = (*source)->bytes();
    auto part = PosixPart::start(to);
    if (!part)
        return tl::make_unexpected(part.error());
    if (auto written = (*part)->append(std::span(&bytes, 1)); !written)
        return written;
    if (auto placed = (*part)->commitNew(); !placed)
        return placed;
    return remove(from);
}

FileResult<void> PosixFiles::remove(const QString &path)
{
    const auto native = nativePath(path);
    if (!native)
        return tl::make_unexpected(native.error());
    if (::unlink(native->constData()) != 0)
        return failed(path, errno);
    return {};
}

FileResult<std::vector<FileEntry>> PosixFiles::entries(const QString &folder) const
{
    std::vector<FileEntry> all;
    const auto read = forEachName(folder, [&all](const dirent &entry, int dir) {
        struct stat info = {};
        if (entry.d_name[0] == '.' || ::fstatat(dir, entry.d_name, &info, AT_SYMLINK_NOFOLLOW) != 0
            || !S_ISREG(info.st_mode))
            return;
        all.push_back(
            {QFile::decodeName(entry.d_name), qint64(info.st_size), qint64(info.st_mtim.tv_sec)});
    });
    if (!read)
        return tl::make_unexpected(read.error());
    return all;
}

FileResult<std::unique_ptr<FileBytes>> PosixFiles::open(const QString &path) const
{
    const auto file = posix::openRegular(path);
    if (!file)
        return tl::make_unexpected(file.error());
    return file->size <= largestCopy ? copyBytes(path, *file) : mapBytes(path, *file);
}

FileResult<void> PosixFiles::writeAtomically(const QString &path,
                                             std::initializer_list<std::string_view> pieces)
{
    auto part = PosixPart::start(path);
    if (!part)
        return tl::make_unexpected(part.error());
    if (auto written = (*part)->append(std::span(pieces.begin(), pieces.size())); !written)
        return written;
    return (*part)->commit();
}

FileResult<std::unique_ptr<PartFile>> PosixFiles::startPart(const QString &target)
{
    auto part = PosixPart::start(target);
    if (!part)
        return tl::make_unexpected(part.error());
    return std::unique_ptr<PartFile>(std::move(*part));
}

void PosixFiles::removeParts(const QString &folder)
{
    const auto read = forEachName(folder, [&folder](const dirent &entry, int dir) {
        if (!PosixPart::isPartName(entry.d_name) || !isPlain(dir, entry, AT_SYMLINK_NOFOLLOW))
            return;
        if (::unlinkat(dir, entry.d_name, 0) != 0)
            qCWarning(lcPlatform) << "cannot remove" << entry.d_name << "in" << folder
                                  << qt_error_string(errno);
    });
    if (!read)
        qCWarning(lcPlatform) << "cannot clear" << read.error().path << read.error().description;
}

} // namespace moravel
