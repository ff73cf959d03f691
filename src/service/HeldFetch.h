// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Http.h"
#include "platform/MainLoop.h"

#include <functional>

namespace moravel {

/// Fetches that the program's own sequence waits for: until the answer has been dealt with, no delayed
/// call runs, while the window goes on painting and answering. Given up after 10 seconds.
class HeldFetch
{
public:
    static constexpr double TotalSeconds = 10;

    HeldFetch(HttpClient &http, MainLoop &loop);

    /// Fetches @p link (at most @p maxBytes) and calls @p done, then lets the loop go on.
    void get(const QString &link, qint64 maxBytes, std::function<void(FetchResult)> done) const;

private:
    HttpClient &m_http;
    MainLoop &m_loop;
};

} // namespace moravel
