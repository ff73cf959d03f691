// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>

namespace moravel {

/// Image services. Main thread only; decoding happens elsewhere and its result comes back on the main
/// loop, never from within the call.
class Images
{
public:
    virtual ~Images() = default;

    /// Loads a picture file, upright, scaled down (never up) to fit @p box in pixels. Gives a null image
    /// when the file is missing, not a picture, or beyond the allocation limit.
    virtual void load(const QString &path, QSize box, std::function<void(QImage)> done) = 0;

    /// Tells whether the file is a complete, decodable picture, and its pixel size (empty if not).
    virtual void check(const QString &path, std::function<void(QSize)> done) = 0;

    /// Tells whether files with this extension (no dot, any case) are pictures that can be read. May be
    /// called on any thread.
    virtual bool isImageExtension(const QString &extension) const = 0;

    /// Returns the application's own picture of that name ("blank", "Trashcan", "Prefs").
    virtual QImage resource(const QString &name) const = 0;
};

} // namespace moravel
