// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

namespace moravel {

/// A picture decoded to be looked at.
struct DecodedPicture
{
    QImage image; ///< Null when the file is missing, not a picture, or too large.
    QSize size; ///< Pixel size of the whole picture, upright; empty without an image.
};

/// A decoding under way. Destroying it cancels it without a callback.
class Decoding
{
public:
    virtual ~Decoding() = default;
};

using DecodingHandle = std::unique_ptr<Decoding>;

/// Image services. Main thread only; decoding happens elsewhere and its result comes back on the main
/// loop, never from within the call.
class Images
{
public:
    virtual ~Images() = default;

    /// Loads a picture file, upright, scaled down (never up) to fit @p box in pixels. Gives a null image
    /// when the file is missing, not a picture, or beyond the allocation limit.
    virtual void load(const QString &path, QSize box, std::function<void(QImage)> done) = 0;

    /// Loads like load(), before all that waits, and one picture at a time: no second decoding, not even
    /// a cancelled one, takes memory meanwhile.
    [[nodiscard]] virtual DecodingHandle decode(const QString &path, QSize box,
                                                std::function<void(DecodedPicture)> done) = 0;

    /// Tells whether the file is a complete, decodable picture, and its pixel size (empty if not).
    virtual void check(const QString &path, std::function<void(QSize)> done) = 0;

    /// Tells the upright pixel size that the picture's head announces (empty if it is no picture). The rest
    /// of the file is not looked at.
    virtual void size(const QString &path, std::function<void(QSize)> done) = 0;

    /// Tells whether files with this extension (no dot, any case) are pictures that can be read. May be
    /// called on any thread.
    virtual bool isImageExtension(const QString &extension) const = 0;

    /// Returns the application's own picture of that name ("blank", "Trashcan", "Prefs").
    virtual QImage resource(const QString &name) const = 0;
};

} // namespace moravel
