// SPDX-License-Identifier: MIT
#include "platform/linux/PosixPart.h"

#include <QFile>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>
#include <vector>

namespace moravel {

using posix::failed;

namespace {

constexpr std::string_view suffix = ".part";
constexpr qsizetype randomLetters = 6;
constexpr qsizetype longestName = 200; ///< Bytes of the target's name kept; names end at 255.
constexpr int mostLinks = 40; ///< As many links as the kernel follows.

/// Follows a chain of links from @p path, also to a file that is yet to be made. Returns an error
/// number or 0.
int followLinks(QByteArray &path)
{
    for (int i = 0; i < mostLinks; ++i) {
        std::array<char, PATH_MAX> buffer{};
        const ssize_t length = ::readlink(path.constData(), buffer.data(), buffer.size());
        if (length < 0)
            return errno == EINVAL || errno == ENOENT ? 0 : errno;
        if (std::size_t(length) == buffer.size())
            return ENAMETOOLONG;
        const QByteArray link(buffer.data(), length);
        path = link.startsWith('/') ? link : posix::folderOf(path) + '/' + link;
    }
    return ELOOP;
}

QByteArray partNameFor(const QByteArray &nativeTarget)
{
    const qsizetype slash = nativeTarget.lastIndexOf('/');
    QByteArray name = nativeTarget.sliced(slash + 1);
    if (name.size() > longestName) {
        qsizetype end = longestName;
        while (end > 0 && (name[end] & 0xC0) == 0x80) // not in the middle of a character
            --end;
        name.truncate(end);
    }
    QByteArray random;
    for (qsizetype i = 0; i < randomLetters; ++i)
        random += char('a' + QRandomGenerator::system()->bounded(26));
    return nativeTarget.first(slash + 1) + '.' + name + '.' + random + suffix.data();
}

/// Writes all of @p left. Returns an error number or 0.
int writeAll(int fd, std::vector<iovec> left)
{
    auto next = left.begin();
    while (next != left.end()) {
        const auto count = std::min<std::ptrdiff_t>(left.end() - next, IOV_MAX);
        const ssize_t written = ::writev(fd, &*next, int(count));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return written < 0 ? errno : EIO;
        auto bytes = std::size_t(written);
        for (; next != left.end() && bytes >= next->iov_len; ++next)
            bytes -= next->iov_len;
        if (bytes > 0) {
            next->iov_base = static_cast<char *>(next->iov_base) + bytes;
            next->iov_len -= bytes;
        }
    }
    return 0;
}

} // namespace

PosixPart::PosixPart(QString target, QByteArray nativeTarget)
    : m_target(std::move(target)), m_nativeTarget(std::move(nativeTarget))
{ }

PosixPart::~PosixPart()
{
    if (!m_part.isEmpty())
        ::unlink(m_part.constData());
}

FileResult<std::unique_ptr<PosixPart>> PosixPart::start(const QString &target)
{
    auto native = posix::nativePath(target);
    if (!native)
        return tl::make_unexpected(native.error());
    if (const int number = followLinks(*native))
        return failed(target, number);
    if (native->endsWith('/'))
        return failed(target, EISDIR);
    std::unique_ptr<PosixPart> part(new PosixPart(target, *native));
    if (auto created = part->create(); !created)
        return tl::make_unexpected(created.error());
    return part;
}

FileResult<void> PosixPart::create()
{
    struct stat old = {};
    const bool replaces = ::stat(m_nativeTarget.constData(), &old) == 0;
    if (replaces && S_ISDIR(old.st_mode))
        return fail(EISDIR);
    if (replaces && !S_ISREG(old.st_mode)) // renaming over a device or a FIFO would do away with it
        return fail(EINVAL);
    const mode_t mode = replaces ? old.st_mode & 0777 : 0666;
    for (int attempt = 0; attempt < 100 && !m_fd.isOpen(); ++attempt) {
        const QByteArray name = partNameFor(m_nativeTarget);
        m_fd = posix::Fd(
            ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
        if (m_fd.isOpen())
            m_part = name;
        else if (errno != EEXIST)
            return fail(errno);
    }
    if (!m_fd.isOpen())
        return fail(EEXIST);
    if (replaces && ::fchmod(m_fd.get(), mode) != 0)
        return fail(errno);
    return {};
}

FileResult<void> PosixPart::fail(int number)
{
    if (m_failure == 0)
        m_failure = number;
    return failed(m_target, m_failure);
}

FileResult<void> PosixPart::append(const QByteArray &bytes)
{
    const std::string_view piece(bytes.constData(), std::size_t(bytes.size()));
    return append(std::span(&piece, 1));
}

FileResult<void> PosixPart::append(std::span<const std::string_view> pieces)
{
    if (m_failure != 0 || !m_fd.isOpen())
        return fail(EBADF);
    std::vector<iovec> vectors;
    for (const std::string_view piece : pieces) {
        if (!piece.empty())
            vectors.push_back({const_cast<char *>(piece.data()), piece.size()});
    }
    if (const int number = writeAll(m_fd.get(), std::move(vectors)))
        return fail(number);
    return {};
}

FileResult<void> PosixPart::close()
{
    if (m_failure != 0)
        return fail(m_failure);
    if (m_fd.isOpen() && (::fsync(m_fd.get()) != 0 || !m_fd.close()))
        return fail(errno);
    return {};
}

FileResult<void> PosixPart::commit()
{
    return finish([](const QByteArray &from, const QByteArray &to) {
        return std::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
    });
}

FileResult<void> PosixPart::commitNew()
{
    return finish(posix::renameNew);
}

FileResult<void> PosixPart::finish(int (*rename)(const QByteArray &from, const QByteArray &to))
{
    if (auto closed = close(); !closed)
        return closed;
    if (m_part.isEmpty())
        return fail(EBADF);
    if (const int number = rename(m_part, m_nativeTarget))
        return fail(number);
    m_part.clear();
    if (!posix::syncFolderOf(m_nativeTarget))
        return fail(errno);
    return {};
}

QString PosixPart::partPath() const
{
    return QFile::decodeName(m_part);
}

bool PosixPart::isPartName(const QByteArray &name)
{
    constexpr qsizetype tail = qsizetype(suffix.size()) + randomLetters;
    if (!name.startsWith('.') || !name.endsWith(suffix.data()) || name.size() < tail + 3)
        return false;
    const QByteArray random = name.sliced(name.size() - tail, randomLetters);
    return name[name.size() - tail - 1] == '.'
        && std::all_of(random.begin(), random.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

} // namespace moravel
