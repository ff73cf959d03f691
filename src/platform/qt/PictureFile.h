// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Images.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QImage>
#include <QSize>

#include <atomic>

namespace moravel {

/// Reads a file for a decoder: notes when the decoder wants more than there is, and stops giving
/// bytes when the program ends or decoding takes too long.
class WatchedFile : public QFile
{
public:
    WatchedFile(const QString &path, const std::atomic<bool> &stop);

    /// Opens a regular file of a size that a picture may have.
    bool openPicture();

    /// Tells whether somebody tried to read on from the end of the file.
    bool wasTooShort() const { return m_wasTooShort; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;

private:
    const std::atomic<bool> &m_stop;
    QDeadlineTimer m_deadline;
    bool m_wasTooShort = false;
};

/// Decodes the picture at @p path, upright, in sRGB, scaled down to fit @p box. Null when it is
/// none. For worker threads; @p stop makes it give up.
DecodedPicture decodePicture(const QString &path, QSize box, const std::atomic<bool> &stop);

/// The upright pixel size of the picture at @p path as its head tells, else empty. Decodes nothing.
QSize announcedPictureSize(const QString &path, const std::atomic<bool> &stop);

/// The upright pixel size of the picture at @p path when it is complete and decodable, else empty.
QSize completePictureSize(const QString &path, const std::atomic<bool> &stop);

} // namespace moravel
