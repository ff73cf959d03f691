// SPDX-License-Identifier: MIT
#include "service/PageLookup.h"

#include "service/Logging.h"

#include <algorithm>

namespace moravel {

PageLookup::PageLookup(const HeldFetch &fetch, ServiceUrls urls)
    : m_fetch(fetch), m_urls(std::move(urls))
{ }

void PageLookup::find(const QString &shortSource, const QString &day,
                      std::function<void(const QString &page)> done) const
{
    m_fetch.get(m_urls.parent(shortSource, day), httplimits::Text,
                [done = std::move(done)](const FetchResult &result) {
                    if (!result)
                        qCInfo(lcService) << "original page:" << result.error().description;
                    done(result ? pageInAnswer(*result) : QString());
                });
}

QString pageInAnswer(const QByteArray &answer)
{
    const QByteArray page = answer.trimmed();
    const bool isAddress = page.startsWith("http://") || page.startsWith("https://");
    const bool isPlain =
        std::all_of(page.begin(), page.end(), [](char c) { return c > ' ' && c < '\x7F'; });
    if (isAddress && isPlain)
        return QString::fromLatin1(page);
    if (!page.isEmpty())
        qCInfo(lcService) << "original page: no address:" << page.left(200);
    return {};
}

} // namespace moravel
