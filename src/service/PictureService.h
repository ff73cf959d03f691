// SPDX-License-Identifier: MIT
#pragma once

#include "service/CaptionRefresh.h"
#include "service/News.h"
#include "service/PageLookup.h"
#include "service/PictureData.h"
#include "service/PicturePass.h"
#include "service/SourceList.h"
#include "service/ThumbDisplay.h"
#include "service/ThumbPass.h"

#include <functional>

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

    CaptionRefresh &captionRefresh() { return m_captionRefresh; }

    void refreshDataForThumb(ThumbView &cell) { m_thumbPass.refreshDataForThumb(cell, m_urls); }

    /// Asks for the thumbnail link of a picture; gives "" when there is none. Nothing of the program's own
    /// sequence happens until it has been dealt with.
    void findThumb(const QString &shortSource, const QString &shortDate,
                   const std::function<void(const QString &link)> &done) const;

    /// Shows the thumbnail of the cell of a source and lets the pass go on.
    void displayThumbForSource(const QString &name, const Then &then)
    {
        m_thumbDisplay.displayThumbForSource(name, then);
    }

    /// Goes on downloading the large pictures that are missing.
    void loadNextPic() { m_picturePass.loadNextPic(); }

    /// The first sources have been chosen: their large pictures are due now, not after the next hour's pass.
    void sourcesChosen();

    /// Makes up, once, for what had to wait.
    void catchUp();

    /// The connection is there again: asks anew where the last pass has failed.
    void connectionIsBack();

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
    CaptionRefresh m_captionRefresh;
};

} // namespace moravel
