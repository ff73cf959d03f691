// SPDX-License-Identifier: MIT
#include "server/network/PoliteHttp.h"

namespace moravel::server {

tl::expected<Fetched, QString> PoliteHttp::get(const FetchRequest &request)
{
    const auto gate = gateOf(request.isPicture ? request.url.host() + u'/' : request.url.host());
    const std::unique_lock turn(*gate, request.deadline);
    if (!turn)
        return tl::unexpected(QStringLiteral("it is still busy with an earlier question"));
    const bool keeps = !request.beginningOnly && !request.isPicture;
    const QByteArray key = request.url.toEncoded();
    const auto before = keeps ? m_known.find(key).value_or(nullptr) : nullptr;
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
        m_known.put(key, std::make_shared<const Known>(Known{*answer, now}), answer->body.size());
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

} // namespace moravel::server
