// SPDX-License-Identifier: MIT
#include "service/Downloads.h"

#include "platform/Texts.h"
#include "service/Logging.h"

namespace moravel {

namespace {

constexpr double IdleSeconds = 60;
constexpr double TotalSeconds = 3600; // a trickle must not go on for ever

QString hintText()
{
    return Texts::tr("Double-click any thumbnail to set as desktop.");
}

// The extension of the link, as far as it decides whether this is a picture: without a query.
QString extensionOf(const QString &link)
{
    const QString name = link.mid(link.lastIndexOf(u'/') + 1).section(u'?', 0, 0);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 || dot + 1 == name.size() ? QStringLiteral("jpg") : name.mid(dot + 1);
}

} // namespace

struct Downloads::Download
{
    QString path;
    DownloadProgress progress;
    QPointer<ThumbView> cell;
    std::unique_ptr<PartFile> part;
    HttpCallHandle call;
};

Downloads::Downloads(const ServiceContext &context, std::function<void()> finished)
    : m_context(context), m_finished(std::move(finished))
{ }

Downloads::~Downloads() = default;

QString Downloads::downloadPath() const
{
    return m_active ? m_active->path : QString();
}

bool Downloads::isDownloading(const QString &path) const
{
    return std::any_of(m_downloads.begin(), m_downloads.end(),
                       [&](const DownloadPtr &download) { return download->path == path; });
}

QString Downloads::largePicFilePathForThumb(ThumbView &cell)
{
    const QString link = removeDoubleDomain(cell.picPath());
    QString path = m_context.links.picLinkToPath(link, false, false);
    if (path.isEmpty() || m_context.platform.files.exists(path))
        return path;
    if (!isDownloading(path))
        startDownloadingURL(link, path, &cell);
    return {};
}

void Downloads::startDownloadingURL(const QString &link, const QString &toFilePath, ThumbView *cell)
{
    m_active = nullptr;
    Platform &platform = m_context.platform;
    if (!platform.images.isImageExtension(extensionOf(link)))
        return;
    auto part = platform.files.startPart(toFilePath);
    if (!part) {
        qCWarning(lcService) << "download:" << part.error().path << part.error().description;
        return;
    }
    auto download = std::make_shared<Download>();
    download->path = toFilePath;
    download->progress.source = m_context.cells.thumbSourceForPic(link);
    download->cell = cell;
    download->part = std::move(*part);
    HttpRequest request;
    request.url = QUrl(link);
    request.maxBytes = httplimits::Picture;
    request.idleTimeout = IdleSeconds;
    request.totalTimeout = TotalSeconds;
    download->call = platform.http.start(request, handlers(download));
    if (!download->call) {
        qCInfo(lcService) << "download cannot be made:" << link.left(200);
        m_failed.insert(toFilePath);
        return;
    }
    m_active = download.get();
    m_downloads.push_back(std::move(download));
    if (m_context.ports.largePic)
        m_context.ports.largePic->hideCantShow();
}

HttpHandlers Downloads::handlers(const std::weak_ptr<Download> &weak)
{
    const auto now = [weak](const std::function<void(const DownloadPtr &)> &fn) {
        if (const DownloadPtr download = weak.lock())
            fn(download);
    };
    // The end of a download waits while the program's own sequence waits for something else; its bytes
    // do not, or they would pile up in memory.
    const auto inOrder = [this, now](std::function<void(const DownloadPtr &)> fn) {
        m_context.platform.loop.inOrder([now, fn = std::move(fn)] { now(fn); });
    };
    HttpHandlers handlers;
    handlers.onResponse = [this, now](const HttpResponse &response) {
        now([&](const DownloadPtr &d) { downloadDidReceiveResponse(*d, response); });
    };
    handlers.onData = [this, now](const QByteArray &bytes) {
        now([&](const DownloadPtr &d) { downloadDidReceiveData(d, bytes); });
    };
    handlers.onFinished = [this, inOrder] {
        inOrder([this](const DownloadPtr &d) { downloadDidReceiveAll(d); });
    };
    handlers.onFailed = [this, inOrder](const HttpError &error) {
        inOrder([this, error](const DownloadPtr &d) { downloadDidFail(d, error.description); });
    };
    return handlers;
}

LargePicPort *Downloads::windowFor(const Download &download) const
{
    LargePicPort *window = m_context.ports.largePic;
    const bool waits =
        window && window->isVisible() && window->currentLargePicPath() == download.path;
    return waits ? window : nullptr;
}

void Downloads::downloadDidReceiveResponse(Download &download, const HttpResponse &response)
{
    download.progress.bytesReceived = 0;
    download.progress.bytesExpected = response.expectedLength;
    const QString text = downloadStatusText(download.progress);
    if (LargePicPort *window = windowFor(download)) {
        window->showProgress(0.0F, text);
        window->hideCantShow();
    }
    m_context.ports.status(text);
}

void Downloads::downloadDidReceiveData(const DownloadPtr &download, const QByteArray &bytes)
{
    if (const auto written = download->part->append(bytes); !written) {
        downloadDidFail(download, written.error().description);
        return;
    }
    DownloadProgress &progress = download->progress;
    progress.bytesReceived += bytes.size();
    LargePicPort *window = windowFor(*download);
    if (progress.bytesExpected < 0) {
        if (window)
            window->showProgress(std::nullopt, {});
        return;
    }
    if (window)
        window->showProgress(progress.percent(), downloadWindowText(progress));
    if (download.get() == m_active)
        m_context.ports.status(downloadStatusText(progress));
}

void Downloads::downloadDidReceiveAll(const DownloadPtr &download)
{
    if (const auto closed = download->part->close(); !closed) {
        downloadDidFail(download, closed.error().description);
        return;
    }
    const std::weak_ptr<Download> weak = download;
    m_context.platform.images.check(download->part->partPath(), [this, weak](QSize size) {
        const DownloadPtr checked = weak.lock();
        if (!checked)
            return;
        if (size.isEmpty()) {
            downloadDidFail(checked, QStringLiteral("not a complete picture"));
            return;
        }
        if (const auto committed = checked->part->commit(); !committed)
            downloadDidFail(checked, committed.error().description);
        else
            downloadDidFinish(checked);
    });
}

void Downloads::downloadDidFinish(const DownloadPtr &download)
{
    const ServicePorts &ports = m_context.ports;
    if (ports.largePic)
        ports.largePic->hideProgress();
    ports.status(hintText());
    if (LargePicPort *window = windowFor(*download))
        window->displayPicFile(download->path);
    if (ports.pictureArrived)
        ports.pictureArrived(download->path);
    if (download->cell && ports.newPicture)
        ports.newPicture(*download->cell, download->path);
    forget(download);
    ports.status({});
    m_finished();
}

void Downloads::downloadDidFail(const DownloadPtr &download, const QString &why)
{
    qCInfo(lcService) << "download failed:" << download->path << why;
    m_failed.insert(download->path);
    if (m_context.ports.largePic)
        m_context.ports.largePic->hideProgress();
    if (LargePicPort *window = windowFor(*download))
        window->showFailure();
    forget(download);
    m_context.ports.status(hintText());
}

void Downloads::forget(const DownloadPtr &download)
{
    if (m_active == download.get())
        m_active = nullptr;
    download->call.reset();
    download->part.reset();
    const DownloadPtr keep = download; // the list may hold the last owner
    m_downloads.remove(keep);
}

void Downloads::cancelAll()
{
    m_active = nullptr;
    m_downloads.clear();
}

} // namespace moravel
