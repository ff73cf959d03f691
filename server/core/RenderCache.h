// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/CacheFolder.h"
#include "server/core/PictureSource.h"

#include <QHash>

#include <condition_variable>
#include <functional>

namespace moravel::server {

/// Pictures that are made at the first request and then kept on disk. A picture that several
/// threads ask for at the same time is made once; only a few are made at once, the others wait
/// their turn.
class RenderCache
{
public:
    /// Makes the bytes of a JPEG; empty when that fails.
    using Render = std::function<QByteArray()>;

    struct Limits
    {
        int renders = 2; ///< At once; each needs a core and up to 100 MB.
        int waiting =
            24; ///< Below the number of transport threads, so that lists are still answered.
    };

    /// @p folder may be shared with others.
    RenderCache(std::shared_ptr<CacheFolder> folder, Limits limits);

    RenderCache(const QString &folder, qint64 maxBytes, Limits limits)
        : RenderCache(std::make_shared<CacheFolder>(folder, maxBytes), limits)
    { }

    RenderCache(const QString &folder, qint64 maxBytes)
        : RenderCache(folder, maxBytes, Limits()) { }

    /// The picture stored under @p name (see CacheFolder), made by @p render when there is none.
    tl::expected<Content, Unavailable> picture(const QString &name, const Render &render);

    /// Sends all who wait away, now and later; what is being made is finished.
    void stop();

private:
    struct Flight
    {
        bool done = false;
        QByteArray bytes;
    };

    using Lock = std::unique_lock<std::mutex>;

    tl::expected<Content, Unavailable> join(const QString &name,
                                            const std::shared_ptr<Flight> &flight, Lock &lock);
    tl::expected<Content, Unavailable> lead(const QString &name, const Render &render, Lock &lock);
    bool waitFor(const std::function<bool()> &ready, Lock &lock);
    tl::expected<Content, Unavailable> answer(const QString &name, const QByteArray &bytes);

    const std::shared_ptr<CacheFolder> m_folder;
    const Limits m_limits;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    QHash<QString, std::shared_ptr<Flight>> m_flights;
    int m_rendering = 0;
    int m_waiting = 0;
    bool m_stopped = false;
};

} // namespace moravel::server
