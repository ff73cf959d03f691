// SPDX-License-Identifier: MIT
#include "service/PictureService.h"

#include "service/Decoding.h"
#include "service/Logging.h"

namespace moravel {

PictureService::PictureService(const ServiceContext &context, const QString &baseUrl)
    : m_context(context)
    , m_urls(baseUrl)
    , m_fetch(context.platform.http, context.platform.loop)
    , m_sources(m_fetch, m_urls, context.platform.files, context.folders, context.sourceNames)
    , m_news(m_fetch, context.platform.loop, m_urls, context.platform.files, context.folders)
    , m_pages(m_fetch, m_urls)
    , m_queue(context.platform.http, context.platform.loop, context.ports)
    , m_data(m_context, m_urls, m_queue)
    , m_picturePass(m_context, m_state, m_queue)
    , m_thumbPass(m_context, m_state, m_queue, m_data,
                  [this] {
                      m_picturePass.downloads().forgetFailures();
                      m_picturePass.loadNextPic();
                  })
    , m_thumbDisplay(m_context, m_queue, m_fetch,
                     [this](const Then &then) { m_thumbPass.loadNextThumb(then); })
    , m_captionRefresh(m_context, m_urls, m_fetch)
{
    m_data.setDisplayThumb([this](const QString &source, const Then &then) {
        m_thumbDisplay.displayThumbForSource(source, then);
    });
}

void PictureService::sourcesChosen()
{
    if (m_state.pass == PassState::Pass::Pictures)
        m_state.thumbIndex = 0; // pictures that are there already are passed over
    else if (m_state.pass == PassState::Pass::None && m_state.lastDataCheck)
        m_picturePass.loadNextPic();
}

void PictureService::catchUp()
{
    if (!m_thumbPass.catchUp())
        m_picturePass.catchUp();
}

void PictureService::connectionIsBack()
{
    if (!m_queue.connectionFailed() || m_state.pass != PassState::Pass::None)
        return;
    m_thumbPass.forgetLastDataCheck();
    m_thumbPass.restartUnasked(0);
}

void PictureService::findThumb(const QString &shortSource, const QString &shortDate,
                               const std::function<void(const QString &)> &done) const
{
    m_fetch.get(m_urls.thumb(shortSource, shortDate), httplimits::Text,
                [done](const FetchResult &result) {
                    if (!result)
                        qCInfo(lcService) << "thumb not found:" << result.error().description;
                    done(linkFromAnswer(result.value_or(QByteArray())));
                });
}

} // namespace moravel
