// SPDX-License-Identifier: MIT
#pragma once

#include "base/Dates.h"
#include "platform/MainLoop.h"
#include "platform/Trash.h"
#include "store/PictureLinks.h"
#include "store/RecordFile.h"
#include "store/RecordUpdates.h"
#include "thumb/ThumbCells.h"

#include <functional>
#include <memory>

namespace moravel {

/// Whose button deletes a picture: that of its cell, or that of the large picture window, for which every
/// cell counts as one of the grid.
enum class DeleteSender { Cell, LargePicWindow };

/// What deleting and restoring need of their neighbours. Those of the desktop may be empty.
struct DeletionPorts
{
    /// Asks the service for the thumbnail link of a picture; gives "" when there is none.
    std::function<void(const QString &shortSource, const QString &shortDate,
                       std::function<void(const QString &link)> done)>
        findThumb;
    /// Shows the thumbnail of the cell of a source, and calls @p then.
    std::function<void(const QString &shortSource, std::function<void()> then)>
        displayThumbForSource;
    /// Goes on downloading the large pictures that are missing.
    std::function<void()> loadNextPic;
    /// While set, the next desktop does not remember the one that it replaces.
    std::function<void(bool deleting)> setDeletingDesktop;
    /// Changes the desktop as the button of a cell does.
    std::function<void()> rotateDesktop;
};

/// What they work with; lent for their whole life.
struct DeletionContext
{
    ThumbCells &cells;
    const Dates &dates;
    const Files &files;
    const RecordFile &records;
    RecordUpdates &updates;
    const PictureLinks &links;
    Trash &trash;
    MainLoop &loop;
};

/// Deletes pictures and restores them. A deleted picture keeps its record, with a mark in place of the
/// thumbnail link; its files are in the Trash, except those that another record needs and those that the
/// Trash cannot take, which stay. Main thread only.
class Deletion
{
public:
    Deletion(const DeletionContext &context, DeletionPorts ports);

    /// Deletes the picture of @p cell. Where it is the desktop's, another one is chosen.
    void deletePic(ThumbView &cell, DeleteSender sender);

    /// Restores the deleted picture of @p cell: from the Trash what is there, from the service the rest.
    void reloadDeletedPic(ThumbView &cell);

private:
    QStringList unsharedFiles(const ThumbView &cell) const;
    bool isUnshared(const QString &path, const QString &link, const ThumbView &cell) const;
    bool isOfDesktop(const QString &picPath) const;
    void showDeleted(ThumbView &cell) const;
    void showDeletedInGrid(const ThumbView &cell) const;
    void restoreFiles(ThumbView &cell, const QString &thumbLink);
    void showRestored(ThumbView &cell, const QString &thumbFile);

    DeletionContext m_context;
    DeletionPorts m_ports;
    std::shared_ptr<int> m_alive =
        std::make_shared<int>(); ///< Late answers look whether we are there.
};

} // namespace moravel
