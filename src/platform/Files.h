// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <initializer_list>
#include <memory>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace moravel {

/// What failed and where: @p description is the system's own words for the user, @p path the place.
struct FileError
{
    QString path;
    QString description;
};

template <typename T>
using FileResult = tl::expected<T, FileError>;

/// The standard folders of the user, without a closing slash. Empty when the platform has none.
struct StandardFolders
{
    QString pictures; ///< The user's Pictures folder.
    QString applicationSupport; ///< Where applications keep their own data.
};

/// A plain file of a folder, as the disk tells it.
struct FileEntry
{
    QString name;
    qint64 size = 0; ///< Bytes.
    qint64 modified = 0; ///< Seconds since 1970.
};

/// The bytes of a file as they were when it was opened, mapped or read. Stays valid while the file is
/// replaced (the old inode lives on).
class FileBytes
{
public:
    virtual ~FileBytes() = default;
    virtual std::string_view bytes() const = 0;

    /// Differs between any two states of any two files, as far as the system can tell (device, inode,
    /// size, times of change); empty when it cannot. For remembering a verdict on the bytes.
    virtual QByteArray stamp() const { return {}; }
};

/// A file that is being written under a hidden temporary name (ending in ".part") beside its target.
/// Destroying it without commit() removes the temporary file.
class PartFile
{
public:
    virtual ~PartFile() = default;

    /// Appends bytes to the temporary file.
    virtual FileResult<void> append(const QByteArray &bytes) = 0;

    /// Closes the temporary file so that others can read it; append() is over.
    virtual FileResult<void> close() = 0;

    /// Closes and renames the temporary file onto the target, replacing it.
    virtual FileResult<void> commit() = 0;

    /// Path of the temporary file.
    virtual QString partPath() const = 0;
};

/// Whole-file I/O. An empty path always fails with a description and never touches the working
/// directory.
class Files
{
public:
    virtual ~Files() = default;

    virtual StandardFolders standardFolders() const = 0;

    virtual bool exists(const QString &path) const = 0;
    virtual bool isFolder(const QString &path) const = 0;
    virtual qint64
    size(const QString &path) const = 0; ///< Bytes, or -1 when there is no such file.

    /// Names of the plain files of a folder, without hidden ones, in any order.
    virtual FileResult<QStringList> names(const QString &folder) const = 0;

    /// The same in name order.
    FileResult<QStringList> list(const QString &folder) const
    {
        FileResult<QStringList> listed = names(folder);
        if (listed)
            listed->sort();
        return listed;
    }

    /// Makes a folder with all missing parents.
    virtual FileResult<void> makeFolder(const QString &path) = 0;

    /// Moves a file; never overwrites.
    virtual FileResult<void> move(const QString &from, const QString &to) = 0;
    virtual FileResult<void> remove(const QString &path) = 0;

    /// The plain files of a folder, without hidden ones and without links, in no order.
    virtual FileResult<std::vector<FileEntry>> entries(const QString &folder) const = 0;

    /// Opens a file for reading as a whole. Regular files only.
    virtual FileResult<std::unique_ptr<FileBytes>> open(const QString &path) const = 0;

    /// Writes @p pieces, one after the other, to a temporary file beside @p path, syncs it, and renames
    /// it over @p path: after a crash the file holds either the old or the new bytes. Syncs the folder.
    virtual FileResult<void> writeAtomically(const QString &path,
                                             std::initializer_list<std::string_view> pieces) = 0;

    /// Starts a file that becomes @p target when it is complete.
    virtual FileResult<std::unique_ptr<PartFile>> startPart(const QString &target) = 0;

    /// Removes the left-over hidden ".part" files of a folder. Errors are logged.
    virtual void removeParts(const QString &folder) = 0;
};

} // namespace moravel
