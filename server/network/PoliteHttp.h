// SPDX-License-Identifier: MIT
#pragma once

#include "server/network/UpstreamHttp.h"

#include <list>
#include <map>
#include <memory>
#include <mutex>

namespace moravel::server {

/// Asks each host one thing at a time (and lets it send one picture beside that), and again for what it has told already only whether that has
/// changed. Thread-safe.
class PoliteHttp : public UpstreamHttp
{
public:
    explicit PoliteHttp(UpstreamHttp &http) : m_http(http) { } ///< Must outlive this object.

    tl::expected<Fetched, QString> get(const FetchRequest &request) override;

private:
    struct Known
    {
        QUrl url;
        Fetched answer;
        std::chrono::steady_clock::time_point at;
    };

    std::shared_ptr<std::timed_mutex> gateOf(const QString &host);
    std::shared_ptr<const Known> known(const QUrl &url);
    void remember(const QUrl &url, const Fetched &answer);

    UpstreamHttp &m_http;
    std::mutex m_mutex;
    std::map<QString, std::shared_ptr<std::timed_mutex>> m_gates;
    std::list<std::shared_ptr<const Known>> m_known; ///< Newest first.
};

} // namespace moravel::server
