// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

#include <QDateTime>

namespace moravel {

/// The Trash by the rules of freedesktop.org, in the system's own calls. May block on a slow disk; any
/// thread.
///
/// Written by hand because the ready ones fall short: GIO refuses volumes that it takes for internal ones
/// (tmpfs, overlays) and offers no way back without its daemon, and Qt 6.4 never returns from a Trash that
/// cannot be written.
class PosixTrash
{
public:
    /// @p homeTrash is the absolute path of the Trash in the user's home; empty for the standard one.
    explicit PosixTrash(const QString &homeTrash = {});

    /// Moves a file or link to the Trash of its volume. On failure it is where it was.
    FileResult<void> moveToTrash(const QString &path, const QDateTime &now) const;

    /// Moves the last file that was trashed from @p path back there, as Trash::restore() says.
    FileResult<void> restore(const QString &path) const;

private:
    QString m_homeTrash;
};

} // namespace moravel
