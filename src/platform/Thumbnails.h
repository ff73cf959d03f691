// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

namespace moravel {

/// A picture in small, and what the disk says of its file.
struct Thumbnail
{
    QImage image; ///< Null when the file is missing or no picture.
    qint64 fileSize = -1; ///< Bytes; -1 when there is no such file.
};

/// A thumbnail that is on its way. Destroying it gives the thumbnail up.
class ThumbnailCall
{
public:
    virtual ~ThumbnailCall() = default;
};

using ThumbnailCallHandle = std::unique_ptr<ThumbnailCall>;

/// Small pictures of files, kept where the file managers of the desktop keep theirs. Main thread only; the work
/// is done elsewhere.
class Thumbnails
{
public:
    virtual ~Thumbnails() = default;

    /// How many are made at the same time.
    virtual int atOnce() const = 0;

    /// Loads the picture at @p path, upright, scaled down (never up) to fit @p box in pixels. Calls @p done once,
    /// never from within, unless the handle is destroyed before. Calls are answered in about their order.
    [[nodiscard]] virtual ThumbnailCallHandle load(const QString &path, QSize box,
                                                   std::function<void(const Thumbnail &)> done) = 0;
};

} // namespace moravel
