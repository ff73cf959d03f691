// SPDX-License-Identifier: MIT
#include "service/PictureService.h"

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
{
    m_data.setDisplayThumb([this](const QString &source, const Then &then) {
        m_thumbDisplay.displayThumbForSource(source, then);
    });
}

} // namespace moravel
