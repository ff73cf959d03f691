// SPDX-License-Identifier: MIT
#pragma once

#include "service/HeldFetch.h"
#include "service/ServiceContext.h"
#include "service/ServiceUrls.h"

#include <QSet>

namespace moravel {

/// What an answer to a look-up of caption and text holds; empty where it has none.
struct CaptionPlusText
{
    QString caption;
    QString text;
};

/// Reads such an answer: the caption's line, the text's line. What is not UTF-8 holds nothing.
CaptionPlusText captionPlusText(const QByteArray &answer);

/// Asks the service for the caption and the descriptive text of a picture anew.
class CaptionRefresh
{
public:
    /// Seconds for which the cell says that it looks, before it does.
    static constexpr double NoticeSeconds = 1.0;

    CaptionRefresh(const ServiceContext &context, ServiceUrls urls, const HeldFetch &fetch);

    /// Looks up the caption and the text of @p cell, shows and stores them; of a deleted picture, restores
    /// it instead. A cell that is being looked up is left alone.
    void implementRefreshCaption(ThumbView &cell);

private:
    struct LookUp;
    void implementRefreshCaption2(const LookUp &lookUp);
    void take(const LookUp &lookUp, const CaptionPlusText &answer);
    bool isInWindow(const ThumbView &cell) const;

    const ServiceContext &m_context;
    ServiceUrls m_urls;
    const HeldFetch &m_fetch;
    QSet<const ThumbView *> m_lookedUp;
};

} // namespace moravel
