// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

#include <atomic>

namespace moravel {

/// What tells a thumbnail of a file from one of an older state of it.
struct ThumbnailKey
{
    QString path; ///< Absolute.
    qint64 modified = 0; ///< Seconds since 1970.
    qint64 fileSize = 0; ///< Bytes.
};

/// The thumbnails that all programs of the desktop share: PNG files in four sizes, named by the MD5 of the
/// picture's URI. What others wrote is a stranger's file like any other and is checked as such. Any thread.
class ThumbnailCache
{
public:
    /// @param root usually ~/.cache/thumbnails; made when the first thumbnail is kept.
    explicit ThumbnailCache(QString root);

    /// Edge length in pixels of the smallest size with room for @p edge; 0 when none has.
    static int sizeFor(int edge);

    /// Returns a valid thumbnail of that size or a larger one; null when there is none.
    QImage read(const ThumbnailKey &key, int size, const std::atomic<bool> &stop) const;

    /// Keeps a thumbnail of that size. Failures are logged.
    void write(const ThumbnailKey &key, int size, const QImage &image) const;

private:
    QString fileOf(const QByteArray &uri, int size) const;

    QString m_root;
};

} // namespace moravel
