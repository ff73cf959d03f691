// SPDX-License-Identifier: MIT
// What the collection takes on the disk, and which pictures can be let go. No disk; any thread.
#pragma once

#include "platform/Files.h"

#include <QHash>
#include <QMap>
#include <QSet>

#include <string_view>
#include <vector>

namespace moravel {

/// What is known of the collection.
struct CollectionFacts
{
    QString legacy; ///< The legacy captions.
    std::string_view records; ///< The picture records, UTF-8.
    std::vector<FileEntry> pictures; ///< The files of the picture folder.
    std::vector<FileEntry> thumbs; ///< Those of the folder of thumbnails.
    QMap<QString, QString> sourceNames; ///< Short to long.
    QSet<QString> staying; ///< Names of pictures that must stay, whatever they take.
};

/// What some of the files take.
struct DiskShare
{
    QString source; ///< Long name where it is known.
    int files = 0;
    qint64 bytes = 0;
};

/// A picture that can be let go: it was fetched, and can be fetched again.
struct SparePicture
{
    QString name;
    qint64 bytes = 0;
    qint64 fetched = 0; ///< Seconds since 1970.
    QString date; ///< Whose picture of the day it is.
};

struct Collection
{
    std::vector<DiskShare> sources; ///< The largest first.
    DiskShare pictures; ///< All of them together.
    DiskShare thumbs;
    DiskShare others; ///< Files in the picture folder that no record names.
    std::vector<SparePicture> spare; ///< Those fetched longest ago first.
};

/// Splits the files by what the records say of them. A file that several records name counts once.
Collection collectionOf(const CollectionFacts &facts);

/// Returns the pictures to let go, oldest first, so that the pictures take no more than @p limit bytes;
/// fewer where not enough can go. A limit of 0 is none.
std::vector<SparePicture> picturesToLetGo(const Collection &collection, qint64 limit);

} // namespace moravel
