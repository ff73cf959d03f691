// SPDX-License-Identifier: MIT
#include "service/HeldFetch.h"

namespace moravel {

HeldFetch::HeldFetch(HttpClient &http, MainLoop &loop) : m_http(http), m_loop(loop)
{ }

void HeldFetch::get(const QString &link, qint64 maxBytes,
                    std::function<void(FetchResult)> done) const
{
    HttpRequest request;
    request.url = QUrl(link);
    request.maxBytes = maxBytes;
    request.totalTimeout = TotalSeconds;
    std::shared_ptr<LoopHold> hold = m_loop.hold();
    m_http.fetch(request, [hold, done = std::move(done)](FetchResult result) mutable {
        done(std::move(result));
        hold.reset();
    });
}

} // namespace moravel
