// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <tl/expected.hpp>
#include <utility>

namespace moravel {

/// Caps on the bytes of one answer; what is longer fails.
namespace httplimits {
inline constexpr qint64 Text = 4LL * 1024 * 1024;
inline constexpr qint64 Thumb = 16LL * 1024 * 1024;
inline constexpr qint64 Picture = 512LL * 1024 * 1024;
} // namespace httplimits

/// One HTTP request. The scheme must be http or https, here and after each redirect.
struct HttpRequest
{
    QUrl url;
    QByteArray method = "GET";
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;
    qint64 maxBytes = httplimits::Text;
    double idleTimeout = 60; ///< Seconds without a byte before the request fails.
    double totalTimeout = 0; ///< Seconds for the whole request; 0 means no total limit.
};

/// The head of a successful answer (status below 400).
struct HttpResponse
{
    int status = 0;
    qint64 expectedLength = -1; ///< Bytes of the body; -1 when the server does not tell.
    QByteArray contentType;
};

/// Why a request failed: unreachable, cut off, refused by a limit, or a status of 400 or more.
struct HttpError
{
    int status = 0; ///< The HTTP status, or 0 when there was none.
    QString description; ///< One localized sentence for the status line.
};

/// Callbacks of one request, delivered on the main loop; exactly one of onFinished and onFailed
/// ends it. A callback may destroy the call.
struct HttpHandlers
{
    std::function<void(const HttpResponse &)> onResponse;
    std::function<void(const QByteArray &)> onData;
    std::function<void()> onFinished;
    std::function<void(const HttpError &)> onFailed;
};

/// A request under way. Destroying it cancels it without a further callback.
class HttpCall
{
public:
    virtual ~HttpCall() = default;
};

using HttpCallHandle = std::unique_ptr<HttpCall>;
using FetchResult = tl::expected<QByteArray, HttpError>;

/// Sends HTTP requests. Main thread only; nothing blocks.
class HttpClient
{
public:
    virtual ~HttpClient() = default;

    /// Starts @p request. Returns null when it cannot be sent at all (invalid URL, scheme other than
    /// http and https); no callback comes then. A request is sent at most once: a POST is never
    /// repeated by itself.
    [[nodiscard]] virtual HttpCallHandle start(const HttpRequest &request,
                                               HttpHandlers handlers) = 0;

    /// Fetches a whole answer and calls @p done exactly once, never from within this function.
    /// There is no handle: the answer always comes, at the latest after the request's totalTimeout.
    virtual void fetch(const HttpRequest &request, std::function<void(FetchResult)> done) = 0;
};

} // namespace moravel
