// SPDX-License-Identifier: MIT
#pragma once

#include "server/network/UpstreamHttp.h"

#include <atomic>

namespace moravel::server {

/// Speaks http and https, also through redirects, and nothing else; refuses addresses inside this
/// machine or its network unless the request allows them.
class CurlHttp : public UpstreamHttp
{
public:
    explicit CurlHttp(const QString &contact); ///< A person's address, for those who are asked.

    tl::expected<Fetched, QString> get(const FetchRequest &request) override;

    void stop() { m_stopped = true; } ///< Ends what is going on, now and later.

private:
    const QByteArray m_userAgent;
    std::atomic<bool> m_stopped{false};
};

} // namespace moravel::server
