// SPDX-License-Identifier: MIT
#include "server/network/RemoteSource.h"

#include "server/core/Fitting.h"
#include "server/core/Jpeg.h"
#include "server/core/Links.h"
#include "server/core/Log.h"

#include <QBuffer>
#include <QFileInfo>

#include <future>

namespace moravel::server {

namespace {

/// One picture is fetched at a time, some wait for it, and those in the cache wait for neither.
constexpr RenderCache::Limits limits{.renders = 1, .waiting = 5};
constexpr int pictureThreads = 8;
constexpr std::size_t mostWaiting = 64;

QString directLink(const QString &address)
{
    return isUsableLink(QUrl(address)) ? address : QString();
}

/// When the source does not tell: what a photograph of that many pixels takes.
double estimatedMegabytes(QSize size)
{
    constexpr double bytesPerPixel = 0.25;
    return size.width() * static_cast<double>(size.height()) * bytesPerPixel / 1e6;
}

const QString &linkOf(const Picture &picture, PictureKind kind)
{
    switch (kind) {
    case PictureKind::Thumb:
        return picture.thumb;
    case PictureKind::Normal:
        return picture.normal;
    case PictureKind::Full:
        break;
    }
    return picture.full;
}

} // namespace

RemoteSource::RemoteSource(RemoteSetup setup, std::unique_ptr<Adapter> adapter,
                           const BookSetup &book, std::shared_ptr<CacheFolder> folder)
    : m_setup(std::move(setup))
    , m_adapter(std::move(adapter))
    , m_bookSetup(book)
    , m_book(m_setup.shortName, *m_adapter, m_setup.mayBePrivate, book)
    , m_cache(std::move(folder), limits)
    , m_pictureLane(pictureThreads, mostWaiting)
{ }

RemoteSource::~RemoteSource()
{
    stop();
}

void RemoteSource::stop()
{
    m_book.stop();
    m_cache.stop();
    m_pictureLane.stop();
}

void RemoteSource::ask(QDate date, bool refresh, const Told &told) const
{
    m_book.ask(date, refresh, [this, told](const Outcome &outcome) {
        if (const auto *picture = std::get_if<Picture>(&outcome))
            return told(dayOf(*picture));
        told(tl::unexpected(whyNot(outcome, m_setup.longName, m_bookSetup.now())));
    });
}

Outcome RemoteSource::outcomeOn(QDate date) const
{
    auto told = std::make_shared<std::promise<Outcome>>();
    auto outcome = told->get_future();
    m_book.ask(date, false, [told](const Outcome &it) { told->set_value(it); });
    return outcome.get();
}

tl::expected<DayPicture, Unavailable> RemoteSource::describe(QDate date) const
{
    const Outcome outcome = outcomeOn(date);
    if (const auto *picture = std::get_if<Picture>(&outcome))
        return dayOf(*picture);
    return tl::unexpected(whyNot(outcome, m_setup.longName, m_bookSetup.now()));
}

DayPicture RemoteSource::dayOf(const Picture &picture) const
{
    DayPicture day;
    day.caption = picture.caption;
    day.info = picture.info;
    day.credit = picture.credit;
    day.fullSuffix = QStringLiteral("full.jpg");
    day.fullSize = picture.fullSize.expandedTo(QSize(0, 0));
    day.fullMegabytes =
        picture.fullMegabytes > 0 ? picture.fullMegabytes : estimatedMegabytes(day.fullSize);
    day.elsewhere.page = picture.page;
    if (m_setup.proxy) {
        day.fullSize = sizeWithin(day.fullSize, m_setup.sizes.full);
        day.fullMegabytes = estimatedMegabytes(day.fullSize);
        return day;
    }
    day.elsewhere.thumb = directLink(picture.thumb);
    day.elsewhere.normal = directLink(picture.normal);
    day.elsewhere.full = directLink(picture.full);
    return day;
}

QSize RemoteSource::boxFor(PictureKind kind) const
{
    switch (kind) {
    case PictureKind::Thumb:
        return m_setup.sizes.thumb;
    case PictureKind::Normal:
        return m_setup.sizes.normal;
    case PictureKind::Full:
        break;
    }
    return m_setup.sizes.full;
}

tl::expected<Content, Unavailable> RemoteSource::picture(QDate date, PictureKind kind) const
{
    const Outcome outcome = outcomeOn(date);
    const auto *picture = std::get_if<Picture>(&outcome);
    if (!picture)
        return tl::unexpected(whyNot(outcome, m_setup.longName, m_bookSetup.now()));
    const QString link = linkOf(*picture, kind);
    Content elsewhere;
    elsewhere.elsewhere = link.toLatin1();
    if (!m_setup.proxy)
        return elsewhere;
    const QSize box = boxFor(kind);
    const QString revision =
        QStringLiteral("%1 %2x%3").arg(link).arg(box.width()).arg(box.height());
    return m_cache.picture(cacheName(shortName(), date, kind, revision),
                           [&] { return fetchedAndFitted(QUrl(link), kind); });
}

QByteArray RemoteSource::fetchedAndFitted(const QUrl &url, PictureKind kind) const
{
    constexpr auto patience = std::chrono::seconds(120);
    constexpr qint64 mostBytes = qint64(64) << 20;
    FetchRequest request;
    request.url = url;
    request.isPicture = true;
    request.mostBytes = mostBytes;
    request.mayBePrivate = m_setup.mayBePrivate;
    request.deadline = std::chrono::steady_clock::now() + patience;
    auto answer = m_bookSetup.http.get(request);
    if (!answer || !pictureFacts(*answer)) {
        qCInfo(serverLog) << "no picture at" << url
                          << (answer ? QString::number(answer->status) : answer.error());
        return {};
    }
    QBuffer buffer(&answer->body);
    if (!buffer.open(QIODevice::ReadOnly))
        return {};
    return encodedJpeg(fittedPicture(buffer, boxFor(kind)), kind);
}

} // namespace moravel::server
