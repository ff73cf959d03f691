// SPDX-License-Identifier: MIT
#include "platform/qt/QtThumbnails.h"

#include "platform/qt/Log.h"
#include "platform/qt/PictureFile.h"

#include <QDateTime>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>
#include <sys/resource.h>
#include <unistd.h>

namespace moravel {

namespace {

constexpr int MostThreads = 4;

// What the user waits to see is made before the last ones are kept, unless too many wait in memory for it.
constexpr qsizetype MostUnkept = 48 << 20; ///< Bytes.
constexpr int WhenNothingElse = -1; ///< Priority below the usual 0.

QImage fitting(const QImage &image, QSize box)
{
    if (image.width() <= box.width() && image.height() <= box.height())
        return image;
    const QSize size = image.size().scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1});
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// A thumbnail, and what is still to be kept of it.
struct Made
{
    Thumbnail thumbnail;
    ThumbnailKey key;
    int size = 0;
    QImage toKeep; ///< Null if nothing is.
};

Made make(const ThumbnailCache &cache, const QString &path, QSize box,
          const std::atomic<bool> &stop)
{
    const QFileInfo file(path);
    if (stop || !file.isFile() || box.isEmpty())
        return {};
    const ThumbnailKey key{path, file.lastModified().toSecsSinceEpoch(), file.size()};
    const int size = ThumbnailCache::sizeFor(std::max(box.width(), box.height()));
    if (size == 0)
        return {{decodePicture(path, box, stop).image, key.fileSize}, key, size, {}};
    if (const QImage kept = cache.read(key, size, stop); !kept.isNull())
        return {{fitting(kept, box), key.fileSize}, key, size, {}};
    const QImage image = decodePicture(path, {size, size}, stop).image;
    // A picture that is no larger than its thumbnail is as quick to read itself.
    const bool keeps = std::max(image.width(), image.height()) == size;
    return {{fitting(image, box), key.fileSize}, key, size, keeps ? image : QImage()};
}

/// Two threads that decode on two processors must not hold up the frames of whoever scrolls.
void yieldToOthers()
{
    constexpr int Nice = 10;
    thread_local const bool once =
        ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), Nice) == 0;
    if (!once)
        qCDebug(lcQt) << "thumbnails are made at the usual priority";
}

} // namespace

struct QtThumbnails::Job
{
    std::function<void(const Thumbnail &)> done; ///< Used and freed on the main thread alone.
    std::atomic<bool> stop = false;
};

class QtThumbnails::Call : public ThumbnailCall
{
public:
    Call(QtThumbnails &thumbnails, quint64 number) : m_thumbnails(thumbnails), m_number(number) { }

    ~Call() override { m_thumbnails.cancel(m_number); }

    Q_DISABLE_COPY_MOVE(Call)

private:
    QtThumbnails &m_thumbnails;
    quint64 m_number;
};

QString QtThumbnails::standardCacheRoot()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
        + QStringLiteral("/thumbnails");
}

QtThumbnails::QtThumbnails(const QString &cacheRoot) : m_cache(cacheRoot)
{
    m_pool.setMaxThreadCount(std::clamp(QThread::idealThreadCount(), 1, MostThreads));
}

QtThumbnails::~QtThumbnails()
{
    for (const auto &[number, job] : m_jobs)
        job->stop = true;
    m_pool.clear();
    m_pool.waitForDone();
}

ThumbnailCallHandle QtThumbnails::load(const QString &path, QSize box,
                                       std::function<void(const Thumbnail &)> done)
{
    const quint64 number = m_next++;
    const auto job = std::make_shared<Job>();
    job->done = std::move(done);
    m_jobs.emplace(number, job);
    const std::shared_ptr<std::atomic<bool>> stop(job, &job->stop);
    m_pool.start([this, number, path, box, stop] {
        yieldToOthers();
        const Made made = make(m_cache, path, box, *stop);
        QMetaObject::invokeMethod(
            &m_mainThread, [this, number, made] { finish(number, made.thumbnail); },
            Qt::QueuedConnection);
        if (made.toKeep.isNull())
            return;
        const auto keep = [this, made] { m_cache.write(made.key, made.size, made.toKeep); };
        const qsizetype bytes = made.toKeep.sizeInBytes();
        if (m_unkept > MostUnkept)
            return keep();
        m_unkept += bytes;
        m_pool.start(
            [this, keep, bytes] {
                keep();
                m_unkept -= bytes;
            },
            WhenNothingElse);
    });
    return std::make_unique<Call>(*this, number);
}

void QtThumbnails::finish(quint64 number, const Thumbnail &thumbnail)
{
    const auto job = m_jobs.extract(number);
    const auto done =
        std::move(job.mapped()->done); // the thread may still hold the job for a moment
    if (done)
        done(thumbnail);
}

/// The job stays listed until its thread is done with it, so that it is freed here.
void QtThumbnails::cancel(quint64 number)
{
    const auto job = m_jobs.find(number);
    if (job == m_jobs.end())
        return;
    job->second->stop = true;
    job->second->done = {};
}

} // namespace moravel
