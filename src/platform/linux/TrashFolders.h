// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

#include <QByteArray>
#include <QList>

namespace moravel {

/// One of the folders that make up the user's Trash, holding "files" and "info".
struct TrashFolder
{
    QByteArray path;
    QByteArray
        topFolder; ///< Of the volume, which its info files are relative to; empty for the home Trash.

    QByteArray files() const { return path + "/files/"; }

    QByteArray info() const { return path + "/info/"; }
};

/// Finds the Trash for the files of @p folder (absolute, without links), making it where it is missing: the
/// home Trash for the files of its volume, for other volumes the user's part of ".Trash" in the top folder
/// where the administrator has provided one (a real folder with the sticky bit), else ".Trash-UID" there.
FileResult<TrashFolder> trashFolderFor(const QByteArray &folder, const QByteArray &homeTrash);

/// Returns the Trash folders that exist and that files of @p folder may be in.
QList<TrashFolder> trashFoldersFor(const QByteArray &folder, const QByteArray &homeTrash);

} // namespace moravel
