// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

namespace moravel {

/// Files on POSIX. Takes absolute paths only.
///
/// Written against the system's own calls rather than QSaveFile: a change of a large file is
/// written from two pieces of the old bytes and the new line without joining them first, the
/// temporary name is hidden and recognisable after a crash, and the folder is synced as well.
///
/// open() copies files up to 16 MiB, which nothing that happens to the file can harm, and maps
/// larger ones. A mapped file that another program cuts short in place ends this one (SIGBUS);
/// files written by this class are always replaced, never cut, so their mappings stay whole.
///
/// May be used from any thread.
class PosixFiles : public Files
{
public:
    StandardFolders standardFolders() const override;

    /// Returns true also when the disk cannot tell, so that a file on a failing disk is not taken
    /// for one that was never written.
    bool exists(const QString &path) const override;
    bool isFolder(const QString &path) const override;
    qint64 size(const QString &path) const override;
    FileResult<QStringList> names(const QString &folder) const override;
    FileResult<void> makeFolder(const QString &path) override;

    /// Moves across file systems too, by copying; only a plain file then.
    FileResult<void> move(const QString &from, const QString &to) override;
    FileResult<void> remove(const QString &path) override;
    FileResult<std::vector<FileEntry>> entries(const QString &folder) const override;
    FileResult<std::unique_ptr<FileBytes>> open(const QString &path) const override;
    FileResult<void> writeAtomically(const QString &path,
                                     std::initializer_list<std::string_view> pieces) override;
    FileResult<std::unique_ptr<PartFile>> startPart(const QString &target) override;
    void removeParts(const QString &folder) override;

private:
    FileResult<void> copyAndRemove(const QString &from, const QString &to);
};

} // namespace moravel
