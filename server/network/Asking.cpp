// SPDX-License-Identifier: MIT
#include "server/network/Asking.h"

#include "server/core/Links.h"

#include <QBuffer>
#include <QImageReader>

#include <nlohmann/json.hpp>

namespace moravel::server {

tl::expected<Fetched, Outcome> Asking::get(const QUrl &url, int reuseSeconds,
                                           std::vector<QByteArray> headers)
{
    FetchRequest request;
    request.url = url;
    request.mayBePrivate = m_setup.mayBePrivate;
    request.reuseSeconds = reuseSeconds;
    request.deadline = m_setup.deadline;
    request.headers = std::move(headers);
    auto answer = m_setup.http.get(request);
    if (!answer)
        return tl::unexpected(Outcome(SourceDown{answer.error()}));
    if (answer->status != 200)
        return tl::unexpected(outcomeOf(*answer, m_setup.now));
    return *std::move(answer);
}

tl::expected<nlohmann::json, Outcome> Asking::json(const QUrl &url, int reuseSeconds,
                                                   std::vector<QByteArray> headers)
{
    const auto answer = get(url, reuseSeconds, std::move(headers));
    if (!answer)
        return tl::unexpected(answer.error());
    auto json = nlohmann::json::parse(answer->body.begin(), answer->body.end(), nullptr, false);
    if (json.is_discarded())
        return tl::unexpected(Outcome(SourceDown{QStringLiteral("it did not answer in JSON")}));
    return json;
}

tl::expected<PictureFacts, Outcome> Asking::probe(const QUrl &url)
{
    if (webAddress(url).isEmpty())
        return tl::unexpected(Outcome(NotAPicture{}));
    constexpr qint64 beginning = 131'072; // Colour profiles and embedded thumbnails come first.
    FetchRequest request;
    request.url = url;
    request.mostBytes = beginning;
    request.beginningOnly = true;
    request.mayBePrivate = m_setup.mayBePrivate;
    request.deadline = m_setup.deadline;
    const auto answer = m_setup.http.get(request);
    if (!answer)
        return tl::unexpected(Outcome(SourceDown{answer.error(), true}));
    if (const auto facts = pictureFacts(*answer))
        return *facts;
    if (answer->status == 429)
        return tl::unexpected(outcomeOf(*answer, m_setup.now));
    constexpr int firstServerFault = 500;
    if (answer->status >= firstServerFault)
        return tl::unexpected(Outcome(SourceDown{
            QStringLiteral("its picture is answered with status %1").arg(answer->status), true}));
    return tl::unexpected(Outcome(NotAPicture{}));
}

Outcome outcomeOf(const Fetched &answer, const QDateTime &now)
{
    constexpr int usualWait = 900;
    const bool told = answer.retryAfter > 0;
    if (answer.status == 429 || (answer.status == 503 && told))
        return RateLimited{now.addSecs(told ? answer.retryAfter : usualWait)};
    if (answer.status == 404)
        return NothingThatDay{};
    if (answer.status == 410)
        return Retired{};
    if (answer.status == 401 || answer.status == 403)
        return SourceDown{QStringLiteral("it refuses to answer (status %1)").arg(answer.status)};
    return SourceDown{QStringLiteral("it answered with status %1").arg(answer.status)};
}

bool isMissing(const Outcome &outcome)
{
    return std::holds_alternative<NothingThatDay>(outcome);
}

std::optional<PictureFacts> pictureFacts(const Fetched &answer)
{
    constexpr double million = 1e6;
    constexpr qint64 mostBytes = 512'000'000;
    const bool there = answer.status == 200 || answer.status == 206;
    // Some send pictures without a type, none send pages as pictures' bytes.
    const bool typed = answer.type.startsWith("image/") || answer.type.isEmpty()
        || answer.type == "application/octet-stream" || answer.type == "binary/octet-stream";
    if (!there || !typed || answer.totalBytes > mostBytes)
        return std::nullopt;
    QByteArray bytes = answer.body;
    QBuffer buffer(&bytes);
    static const QList<QByteArray> formats{"jpeg", "png", "webp"};
    if (!buffer.open(QIODevice::ReadOnly) || !formats.contains(QImageReader::imageFormat(&buffer)))
        return std::nullopt;
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    const qint64 total = answer.totalBytes >= 0 ? answer.totalBytes : 0;
    return PictureFacts{size.isValid() ? size : QSize(0, 0), static_cast<double>(total) / million};
}

} // namespace moravel::server
