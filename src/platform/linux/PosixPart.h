// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"
#include "platform/linux/Posix.h"

#include <span>

namespace moravel {

/// A file under a hidden temporary name (".NAME.XXXXXX.part") beside its target, on the disk in
/// full before it takes the target's name.
///
/// The temporary file has the mode of the file that it replaces. Where the target is a symbolic
/// link, the file that the link leads to is replaced and the link stays.
class PosixPart : public PartFile
{
public:
    static FileResult<std::unique_ptr<PosixPart>> start(const QString &target);
    ~PosixPart() override;
    Q_DISABLE_COPY_MOVE(PosixPart)

    FileResult<void> append(const QByteArray &bytes) override;
    FileResult<void> close() override;
    FileResult<void> commit() override;
    QString partPath() const override;

    /// Appends @p pieces one after the other, straight from where they lie.
    FileResult<void> append(std::span<const std::string_view> pieces);

    /// Like commit(), but fails where the target exists.
    FileResult<void> commitNew();

    /// Returns true for the file names that this class makes up.
    static bool isPartName(const QByteArray &name);

private:
    PosixPart(QString target, QByteArray nativeTarget);
    FileResult<void> create();
    FileResult<void> finish(int (*rename)(const QByteArray &from, const QByteArray &to));
    FileResult<void> fail(int number);

    QString m_target; ///< As the caller named it; for error texts.
    QByteArray m_nativeTarget; ///< With links followed.
    QByteArray m_part; ///< Empty when there is no temporary file (any more).
    posix::Fd m_fd;
    int m_failure = 0; ///< The first error number; nothing succeeds after it.
};

} // namespace moravel
