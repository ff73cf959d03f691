// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Thumbnails.h"
#include "platform/qt/ThumbnailCache.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <map>

namespace moravel {

/// Makes thumbnails in threads of its own, one a core, four at most. Wants a QtImages beside it, which sets
/// the limits of the decoders. Destroying it stops what is being decoded; nothing more is delivered.
class QtThumbnails : public Thumbnails
{
public:
    /// @param cacheRoot the folder of the shared thumbnails.
    explicit QtThumbnails(const QString &cacheRoot = standardCacheRoot());
    ~QtThumbnails() override;

    int atOnce() const override { return m_pool.maxThreadCount(); }

    ThumbnailCallHandle load(const QString &path, QSize box,
                             std::function<void(const Thumbnail &)> done) override;

    /// Waits until everything that was made is kept, too.
    void waitForDone() { m_pool.waitForDone(); }

    static QString standardCacheRoot();

private:
    class Call;
    struct Job;
    using JobPtr = std::shared_ptr<Job>;

    void finish(quint64 number, const Thumbnail &thumbnail);
    void cancel(quint64 number);

    ThumbnailCache m_cache;
    QObject m_mainThread; ///< Receives the results; those still posted go with it.
    quint64 m_next = 0;
    std::map<quint64, JobPtr> m_jobs;
    std::atomic<qsizetype> m_unkept = 0; ///< Bytes that are made, but not yet in the cache.
    QThreadPool m_pool;
};

} // namespace moravel
