// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Recent.h"
#include "server/network/UpstreamHttp.h"

#include <map>
#include <memory>
#include <mutex>

namespace moravel::server {

/// Asks each host one thing at a time (and lets it send one picture beside that), and of what it has
/// told already only whether that has changed. Thread-safe.
class PoliteHttp : public UpstreamHttp
{
public:
    explicit PoliteHttp(UpstreamHttp &http) : m_http(http) { } ///< Must outlive this object.

    tl::expected<Fetched, QString> get(const FetchRequest &request) override;

private:
    struct Known
    {
        Fetched answer;
        std::chrono::steady_clock::time_point at;
    };

    std::shared_ptr<std::timed_mutex> gateOf(const QString &host);

    UpstreamHttp &m_http;
    std::mutex m_mutex;
    std::map<QString, std::shared_ptr<std::timed_mutex>> m_gates;
    Recent<std::shared_ptr<const Known>> m_known{qsizetype(4) << 20}; ///< By address.
};

} // namespace moravel::server
