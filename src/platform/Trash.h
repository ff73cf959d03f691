// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace moravel {

/// The user's Trash, the one that the file manager shows. Calls return at once; they are carried out one
/// after the other, in the order in which they were made. Main thread only.
class Trash
{
public:
    /// Gets one result for each path, in their order, later than the call.
    using Done = std::function<void(const QList<FileResult<void>> &)>;

    virtual ~Trash() = default;

    /// Moves files (absolute paths) to the Trash of their volume, from where the file manager can put
    /// them back. What cannot be moved stays where it is.
    virtual void moveToTrash(const QStringList &paths, Done done) = 0;

    /// Moves files back to where they were trashed from: the one that was trashed last from the path,
    /// else the last one of the same name from a folder of the same name. Never overwrites a file; where
    /// there is nothing to move back, the path fails.
    virtual void restore(const QStringList &paths, Done done) = 0;
};

} // namespace moravel
