// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Images.h"

namespace moravel {

/// Keeps one picture file decoded in the size in which it is shown. While it is shown in another size, the
/// last decoding serves; when that size is not what is wanted at its end, the next one begins, so however
/// often the size changes, one decoding runs at a time.
class PictureLoader
{
public:
    /// @p changed is called when image() or failed() are other ones.
    PictureLoader(Images &images, std::function<void()> changed);

    /// Drops the picture, and takes another file ("" for none). It is decoded when a size is wanted.
    void setFile(const QString &path);

    QString file() const { return m_file; }

    /// The box in pixels that the picture is to fit.
    void want(QSize box);

    const QImage &image() const { return m_image; }

    /// Pixel size of the whole picture; empty while it is not known.
    QSize size() const { return m_size; }

    /// The file is no picture.
    bool failed() const { return m_failed; }

    /// The image is of the wanted size.
    bool isSharp() const;

private:
    void start();
    void finish(const DecodedPicture &picture);

    Images &m_images;
    std::function<void()> m_changed;
    QString m_file;
    QSize m_box;
    QSize m_decodedBox; ///< The box of the image, or of the one being decoded.
    QImage m_image;
    QSize m_size;
    bool m_failed = false;
    DecodingHandle m_decoding;
};

} // namespace moravel
