// SPDX-License-Identifier: MIT
// What the POSIX files share: descriptors, paths and errors.
#pragma once

#include "platform/Files.h"

#include <QByteArray>
#include <QString>

#include <utility>

namespace moravel::posix {

/// Owns a file descriptor; closes it when it goes.
class Fd
{
public:
    Fd() = default;

    explicit Fd(int fd) : m_fd(fd) { }

    Fd(Fd &&other) noexcept : m_fd(std::exchange(other.m_fd, -1)) { }

    Fd &operator=(Fd &&other) noexcept
    {
        std::swap(m_fd, other.m_fd);
        return *this;
    }

    Fd(const Fd &) = delete;
    Fd &operator=(const Fd &) = delete;

    ~Fd() { close(); }

    int get() const { return m_fd; }

    bool isOpen() const { return m_fd >= 0; }

    /// Closes the descriptor. Returns false with errno set when the system reports a failed write.
    bool close();

private:
    int m_fd = -1;
};

/// Returns the error @p number (an errno value) of @p path in the system's words.
FileError error(const QString &path, int number);

/// The same, ready to return from a function with any result.
tl::unexpected<FileError> failed(const QString &path, int number);

/// Returns the bytes of an absolute path. Fails for an empty or relative path, which would lead
/// into the working directory, and for one with a NUL, which would be cut short.
FileResult<QByteArray> nativePath(const QString &path);

struct OpenFile
{
    Fd fd;
    qint64 size = 0;
    QByteArray stamp; ///< As FileBytes::stamp().
};

/// Opens a regular file for reading; never waits for a FIFO or a device.
FileResult<OpenFile> openRegular(const QString &path);

/// Renames a file; fails with EEXIST where @p to exists. Returns an error number or 0.
int renameNew(const QByteArray &from, const QByteArray &to);

/// Syncs the entries of the folder that holds @p nativePath.
bool syncFolderOf(const QByteArray &nativePath);

/// Returns the part of @p nativePath before its last slash; "/" for the root.
QByteArray folderOf(const QByteArray &nativePath);

} // namespace moravel::posix
