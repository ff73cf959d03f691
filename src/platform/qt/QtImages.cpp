// SPDX-License-Identifier: MIT
#include "platform/qt/QtImages.h"

#include "platform/qt/PictureFile.h"
#include "platform/qt/PictureFormat.h"

#include <QImageReader>
#include <QLoggingCategory>

#include <cstring>

// At global scope, as the macro wants it; without it the linker drops the resources of the library.
static void useResources()
{
    Q_INIT_RESOURCE(moravel);
}

namespace moravel {

namespace {

// Two: scaling down a picture takes a core, and the memory of two huge ones is enough.
constexpr int Threads = 2;

// Space agencies publish pictures of over 100 megapixels, at 4 bytes each; Qt's default of 256 MB
// stops at 67 megapixels.
constexpr int AllocationLimitMb = 512;

QLoggingCategory::CategoryFilter previousFilter = nullptr;

/// The decoders log a line for each flaw of a file, and so give strangers a pen to our log. What we
/// need to know of a flaw, the result tells.
void silenceDecoders(QLoggingCategory *category)
{
    if (previousFilter)
        previousFilter(category);
    for (const char *prefix : {"qt.gui.imageio", "qt.imageformats"}) {
        if (std::strncmp(category->categoryName(), prefix, std::strlen(prefix)) == 0) {
            for (const QtMsgType type : {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg})
                category->setEnabled(type, false);
        }
    }
}

void installFilterOnce()
{
    static const bool installed = [] {
        previousFilter = QLoggingCategory::installFilter(silenceDecoders);
        return true;
    }();
    Q_UNUSED(installed)
}

/// Stops what is decoded for its owner, and drops its result.
class Cancellable : public Decoding
{
public:
    explicit Cancellable(std::shared_ptr<std::atomic<bool>> stop) : m_stop(std::move(stop)) { }

    ~Cancellable() override { *m_stop = true; }

private:
    std::shared_ptr<std::atomic<bool>> m_stop;
};

} // namespace

QtImages::QtImages()
{
    useResources();
    installFilterOnce();
    QImageReader::setAllocationLimit(AllocationLimitMb);
    m_pool.setMaxThreadCount(Threads);
    m_viewPool.setMaxThreadCount(1);
}

QtImages::~QtImages()
{
    m_stop = true;
    for (const auto &[job, stop] : m_viewStops)
        *stop = true;
    for (QThreadPool *pool : {&m_pool, &m_viewPool}) {
        pool->clear();
        pool->waitForDone();
    }
}

template <typename Result>
void QtImages::run(QThreadPool &pool, std::function<Result()> work,
                   std::function<void(Result)> done)
{
    // The callback stays here: what it has captured must neither be used nor freed on a worker.
    const quint64 job = m_nextJob++;
    m_waiting.emplace(job, [done = std::move(done)](const std::any &result) {
        done(std::any_cast<const Result &>(result));
    });
    pool.start([this, job, work = std::move(work)] {
        QMetaObject::invokeMethod(
            &m_mainThread, [this, job, result = std::any(work())] { finish(job, result); },
            Qt::QueuedConnection);
    });
}

void QtImages::finish(quint64 job, const std::any &result)
{
    const auto waiting = m_waiting.extract(job);
    waiting.mapped()(result);
}

void QtImages::load(const QString &path, QSize box, std::function<void(QImage)> done)
{
    run<QImage>(
        m_pool, [this, path, box] { return decodePicture(path, box, m_stop).image; },
        std::move(done));
}

DecodingHandle QtImages::decode(const QString &path, QSize box,
                                std::function<void(DecodedPicture)> done)
{
    const auto stop = std::make_shared<std::atomic<bool>>(false);
    const quint64 job = m_nextJob;
    m_viewStops.emplace(job, stop);
    run<DecodedPicture>(
        m_viewPool,
        [path, box, stop] { return *stop ? DecodedPicture() : decodePicture(path, box, *stop); },
        [this, job, stop, done = std::move(done)](const DecodedPicture &picture) {
            m_viewStops.erase(job);
            if (!*stop)
                done(picture);
        });
    return std::make_unique<Cancellable>(stop);
}

void QtImages::check(const QString &path, std::function<void(QSize)> done)
{
    run<QSize>(
        m_pool, [this, path] { return completePictureSize(path, m_stop); }, std::move(done));
}

void QtImages::size(const QString &path, std::function<void(QSize)> done)
{
    run<QSize>(
        m_pool, [this, path] { return announcedPictureSize(path, m_stop); }, std::move(done));
}

bool QtImages::isImageExtension(const QString &extension) const
{
    return pictureformat::isExtension(extension);
}

QImage QtImages::resource(const QString &name) const
{
    const auto known = m_resources.constFind(name);
    if (known != m_resources.constEnd())
        return *known;
    const QImage image(QStringLiteral(":/moravel/%1.png").arg(name));
    if (!image.isNull())
        m_resources.insert(name, image);
    return image;
}

} // namespace moravel
