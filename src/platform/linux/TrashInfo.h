// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>

#include <optional>

namespace moravel {

/// What the Trash keeps about a file: where it was, and since when it is there.
struct TrashInfo
{
    QByteArray
        path; ///< Bytes of the path; relative to the volume's top folder in a volume's Trash.
    QByteArray deletionDate; ///< "2011-07-04T09:30:00", local time; other texts sort before it.
};

/// Text of the info file.
QByteArray trashInfoText(const QByteArray &path, const QDateTime &deletionDate);

/// Reads an info file; nothing when it names no path.
std::optional<TrashInfo> parsedTrashInfo(const QByteArray &text);

/// Name for a file in the Trash: its own for attempt 0, else one with a number before its extension. Leaves
/// room for what info files add.
QByteArray trashName(const QByteArray &name, int attempt);

} // namespace moravel
