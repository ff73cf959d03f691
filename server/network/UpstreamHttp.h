// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <chrono>
#include <tl/expected.hpp>
#include <vector>

namespace moravel::server {

struct FetchRequest
{
    QUrl url;
    qint64 mostBytes = qint64(4) << 20;
    bool beginningOnly = false; ///< What exceeds mostBytes is left instead of being a fault.
    bool mayBePrivate = false; ///< The address may lead into this machine or its network.
    bool isPicture = false; ///< It may take long, and other questions go beside it.
    int reuseSeconds = 0; ///< An answer of at most this age will do.
    std::chrono::steady_clock::time_point deadline;
    std::vector<QByteArray> headers = {};
};

struct Fetched
{
    int status = 0;
    QByteArray type; ///< In lower case, without parameters.
    QByteArray body;
    QUrl url; ///< After redirects.
    qint64 totalBytes =
        -1; ///< Of the whole, also when only the beginning was fetched; -1: unknown.
    int retryAfter = 0; ///< Seconds; 0 when nothing was said.
    QByteArray etag = {};
    QByteArray lastModified = {};
};

/// Asks other machines over HTTP. Thread-safe; blocks up to the request's deadline.
class UpstreamHttp
{
public:
    virtual ~UpstreamHttp() = default;

    /// The answer, whatever its status; else why there is none, to go after "cannot be reached: ".
    virtual tl::expected<Fetched, QString> get(const FetchRequest &request) = 0;
};

} // namespace moravel::server
