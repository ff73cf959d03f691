// SPDX-License-Identifier: MIT
#include "service/ThumbDisplay.h"

#include "base/Diagnostics.h"
#include "service/Logging.h"

#include <QLocale>

namespace moravel {

// The cell being shown, the link it had then, the file its picture comes from, and what comes after.
struct ThumbDisplay::Job
{
    QPointer<ThumbView> cell;
    QString link;
    QString path;
    Then then;
    std::shared_ptr<LoopHold> hold;
};

ThumbDisplay::ThumbDisplay(const ServiceContext &context, ConnectionQueue &queue,
                           const HeldFetch &fetch, std::function<void(const Then &)> loadNextThumb)
    : m_context(context), m_queue(queue), m_fetch(fetch), m_loadNextThumb(std::move(loadNextThumb))
{ }

void ThumbDisplay::displayThumbForSource(const QString &name, const Then &then)
{
    ThumbView *cell = m_context.cells.thumbForSource(name);
    if (!cell) {
        run(then);
        return;
    }
    const PictureLinks &links = m_context.links;
    Job job{cell, removeDoubleDomain(cell->thumbPath()), {}, then, m_context.platform.loop.hold()};
    if (job.link == ThumbView::deletedMark()) {
        show(job, m_context.cells.images().trashcan);
        return;
    }
    const QString fileName = fileNameOfLink(job.link);
    const QString folder = fileName.isEmpty() ? QString() : m_context.folders.thumbsFolder();
    if (fileName.isEmpty())
        job.path = links.picLinkToPath(cell->picPath(), false, false);
    else if (!folder.isEmpty())
        job.path = folder + fileName;
    if (!folder.isEmpty() && !m_context.platform.files.exists(job.path))
        fetch(job);
    else
        load(job);
}

void ThumbDisplay::fetch(const Job &job)
{
    job.cell->blankImage();
    m_queue.beginThumbFetch();
    m_fetch.get(job.link, httplimits::Thumb, [this, job](const FetchResult &result) {
        if (result) {
            keep(job, *result, [this, job] {
                m_queue.endThumbFetch();
                load(job);
            });
            return;
        }
        qCInfo(lcService) << "thumb not fetched:" << job.link.left(200)
                          << result.error().description;
        m_queue.endThumbFetch();
        load(job);
    });
}

void ThumbDisplay::keep(const Job &job, const QByteArray &bytes, const Then &then)
{
    Platform &platform = m_context.platform;
    auto started = platform.files.startPart(job.path);
    const auto log = [](const FileError &error) {
        qCInfo(lcService) << "thumb not kept:" << error.path << error.description;
    };
    if (!started) {
        log(started.error());
        run(then);
        return;
    }
    const std::shared_ptr<PartFile> part = std::move(*started);
    auto written = part->append(bytes);
    if (written)
        written = part->close();
    if (!written) {
        log(written.error());
        run(then);
        return;
    }
    platform.images.check(part->partPath(), [part, log, then](QSize size) {
        if (size.isEmpty())
            log({part->partPath(), QStringLiteral("not a picture")});
        else if (const auto committed = part->commit(); !committed)
            log(committed.error());
        run(then);
    });
}

void ThumbDisplay::load(const Job &job)
{
    debugLog(QStringLiteral("Thumb file size: %1")
                 .arg(QLocale::c().formattedDataSize(m_context.platform.files.size(job.path))));
    if (job.path.isEmpty()) {
        loadLargePic(job);
        return;
    }
    m_context.platform.images.load(job.path, ThumbBox, [this, job](const QImage &image) {
        if (image.isNull())
            loadLargePic(job);
        else
            show(job, image);
    });
}

void ThumbDisplay::loadLargePic(const Job &job)
{
    const QString path =
        job.cell ? m_context.links.picLinkToPath(job.cell->picPath(), false, true) : QString();
    const QImage blank = m_context.cells.images().blank;
    if (path.isEmpty() || path == job.path) {
        show(job, blank);
        return;
    }
    m_context.platform.images.load(path, ThumbBox, [this, job, blank](const QImage &image) {
        show(job, image.isNull() ? blank : image);
    });
}

void ThumbDisplay::show(const Job &job, const QImage &image)
{
    if (!job.cell) {
        run(job.then);
        return;
    }
    job.cell->showThumbImage(image, job.link);
    LargePicPort *window = m_context.ports.largePic;
    if (window && window->isVisible() && window->isShowing(*job.cell))
        window->showLargePic(*job.cell);
    m_loadNextThumb(job.then);
}

} // namespace moravel
