// SPDX-License-Identifier: MIT
#include "server/network/PoliteHttp.h"

#include <algorithm>

namespace moravel::server {

tl::expected<Fetched, QString> PoliteHttp::get(const FetchRequest &request)
{
    const auto gate = gateOf(request.isPicture ? request.url.host() + u'/' : request.url.host());
    const std::unique_lock turn(*gate, request.deadline);
    if (!turn)
        return tl::unexpected(QStringLiteral("it is still busy with an earlier question"));
    const bool keeps = !request.beginningOnly && !request.isPicture;
    const auto before = !keeps ? nullptr : known(request.url);
    const auto now = std::chrono::steady_clock::now();
    if (before && now - before->at < std::chrono::seconds(request.reuseSeconds))
        return before->answer;
    FetchRequest asked = request;
    if (before && !before->answer.etag.isEmpty())
        asked.headers.push_back("If-None-Match: " + before->answer.etag);
    else if (before && !before->answer.lastModified.isEmpty())
        asked.headers.push_back("If-Modified-Since: " + before->answer.lastModified);
    auto answer = m_http.get(asked);
    if (answer && answer->status == 304 && before)
        answer = before->answer;
    if (answer && answer->status == 200 && keeps)
        remember(request.url, *answer);
    return answer;
}

std::shared_ptr<std::timed_mutex> PoliteHttp::gateOf(const QString &host)
{
    constexpr std::size_t most = 1000;
    const std::lock_guard lock(m_mutex);
    if (m_gates.size() > most)
        m_gates.clear(); // Those in use are kept by their users.
    auto &gate = m_gates[host];
    if (!gate)
        gate = std::make_shared<std::timed_mutex>();
    return gate;
}

std::shared_ptr<const PoliteHttp::Known> PoliteHttp::known(const QUrl &url)
{
    const std::lock_guard lock(m_mutex);
    const auto at = std::find_if(m_known.begin(), m_known.end(),
                                 [&](const auto &entry) { return entry->url == url; });
    return at == m_known.end() ? nullptr : *at;
}

void PoliteHttp::remember(const QUrl &url, const Fetched &answer)
{
    constexpr std::size_t most = 12;
    constexpr qsizetype mostBytes = 1 << 19;
    const std::lock_guard lock(m_mutex);
    m_known.remove_if([&](const auto &entry) { return entry->url == url; });
    if (answer.body.size() > mostBytes)
        return;
    m_known.push_front(
        std::make_shared<Known>(Known{url, answer, std::chrono::steady_clock::now()}));
    if (m_known.size() > most)
        m_known.pop_back();
}

} // namespace moravel::server
