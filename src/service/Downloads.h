// SPDX-License-Identifier: MIT
#pragma once

#include "service/DownloadTexts.h"
#include "service/ServiceContext.h"
#include "service/Then.h"

#include <QPointer>

#include <list>
#include <memory>
#include <set>

namespace moravel {

/// Downloads large pictures into the Picture folder. A file appears there only when it is complete and
/// can be decoded; what fails leaves nothing. Several downloads may run, one for a file; progress texts
/// follow the one started last.
class Downloads
{
public:
    /// @p finished lets the large-picture pass go on.
    Downloads(const ServiceContext &context, std::function<void()> finished);
    ~Downloads();

    /// Downloads @p link to the file @p toFilePath; @p cell is the one it is for, if any.
    void startDownloadingURL(const QString &link, const QString &toFilePath, ThumbView *cell);

    /// Returns the file of the cell's large picture, or "" after starting its download.
    QString largePicFilePathForThumb(ThumbView &cell);

    /// Path that the download started last writes to; empty when there is none.
    QString downloadPath() const;

    bool isActive() const { return m_active != nullptr; }

    bool isDownloading(const QString &path) const;

    /// Tells whether the last try for this file failed, since forgetFailures().
    bool hasFailed(const QString &path) const { return m_failed.contains(path); }

    void forgetFailures() { m_failed.clear(); }

    /// Cancels everything and removes what is half written.
    void cancelAll();

private:
    struct Download;
    using DownloadPtr = std::shared_ptr<Download>;

    HttpHandlers handlers(const std::weak_ptr<Download> &weak);
    void downloadDidReceiveResponse(Download &download, const HttpResponse &response);
    void downloadDidReceiveData(const DownloadPtr &download, const QByteArray &bytes);
    void downloadDidReceiveAll(const DownloadPtr &download);
    void downloadDidFinish(const DownloadPtr &download);
    void downloadDidFail(const DownloadPtr &download, const QString &why);
    void forget(const DownloadPtr &download);
    LargePicPort *windowFor(const Download &download) const;

    const ServiceContext &m_context;
    std::function<void()> m_finished;
    std::list<DownloadPtr> m_downloads;
    Download *m_active = nullptr;
    std::set<QString> m_failed;
};

} // namespace moravel
