// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Config.h"
#include "server/core/SourceList.h"
#include "server/network/CurlHttp.h"
#include "server/network/PoliteHttp.h"
#include "server/network/RemoteSource.h"

namespace moravel::server {

/// All that the network sources share. Goes after the list that they are added to, and must be
/// stopped before that goes.
class NetworkSources
{
public:
    NetworkSources(const Config &config, Metrics &metrics);
    ~NetworkSources();
    NetworkSources(const NetworkSources &) = delete;
    NetworkSources &operator=(const NetworkSources &) = delete;

    /// Adds what the configuration switches on; the error names what cannot be.
    tl::expected<void, QString> addTo(SourceList &list, const std::shared_ptr<CacheFolder> &cache);

    void stop(); ///< Ends all questions and sends all who wait away.

private:
    tl::expected<void, QString> openStore();
    bool add(SourceList &list, const NetworkSetup &setup, const QString &longName,
             std::unique_ptr<Adapter> adapter, const std::shared_ptr<CacheFolder> &cache);

    const Config &m_config;
    Metrics &m_metrics;
    CurlHttp m_curl;
    PoliteHttp m_http{m_curl};
    std::unique_ptr<AnswerStore> m_store;
    Lane m_lookUps;
    Alarms m_alarms;
    std::vector<RemoteSource *> m_sources; ///< Owned by the list.
};

} // namespace moravel::server
