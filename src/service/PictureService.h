// SPDX-License-Identifier: MIT
#pragma once

#include "service/News.h"
#include "service/PageLookup.h"
#include "service/PictureData.h"
#include "service/PicturePass.h"
#include "service/SourceList.h"
#include "service/ThumbDisplay.h"
#include "service/ThumbPass.h"

namespace moravel {

/// The service client: builds its parts and ties them together.
class PictureService
{
public:
    PictureService(const ServiceContext &context, const QString &baseUrl);

    SourceList &sources() { return m_sources; }

    News &news() { return m_news; }

    const PageLookup &pages() const { return m_pages; }

    ThumbPass &thumbPass() { return m_thumbPass; }

    Downloads &downloads() { return m_picturePass.downloads(); }

    void refreshDataForThumb(ThumbView &cell) { m_thumbPass.refreshDataForThumb(cell, m_urls); }

private:
    ServiceContext m_context;
    ServiceUrls m_urls;
    HeldFetch m_fetch;
    PassState m_state;
    SourceList m_sources;
    News m_news;
    PageLookup m_pages;
    ConnectionQueue m_queue;
    PictureData m_data;
    PicturePass m_picturePass;
    ThumbPass m_thumbPass;
    ThumbDisplay m_thumbDisplay;
};

} // namespace moravel
