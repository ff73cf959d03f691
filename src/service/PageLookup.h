// SPDX-License-Identifier: MIT
#pragma once

#include "service/HeldFetch.h"
#include "service/ServiceUrls.h"

namespace moravel {

/// Asks the service for the web page that a picture comes from.
class PageLookup
{
public:
    PageLookup(const HeldFetch &fetch, ServiceUrls urls);

    /// Gives the page of a source and Short date, later than the call; "" when none is known, or the
    /// service does not answer with an http address.
    void find(const QString &shortSource, const QString &day,
              std::function<void(const QString &page)> done) const;

private:
    const HeldFetch &m_fetch;
    ServiceUrls m_urls;
};

/// Reads the answer to such a question: one web address in ASCII, white space around it; else "".
QString pageInAnswer(const QByteArray &answer);

} // namespace moravel
