// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFile>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace moravel::server {

/// What of an HTTP request matters to the answer; all of it as received, nothing checked or
/// decoded.
struct Request
{
    QByteArray method = "GET";
    QByteArray target; ///< Path and query.
    QByteArray host; ///< Empty unless there was exactly one Host header.
    QByteArray body;
    QByteArray ifNoneMatch;
    QByteArray ifModifiedSince;
    QByteArray range = {};
    QByteArray ifRange = {};
    bool forwarded = false; ///< It came through a proxy.
    bool fromLoopback = false; ///< The peer is on this machine.
};

/// A picture or page on its way out: in memory, or an open file that is read while it is sent.
struct Content
{
    QByteArray bytes;
    std::shared_ptr<QFile> file; ///< Open for reading; used instead of bytes when set.
    QByteArray type;
    QDateTime modified; ///< Invalid when unknown.
    qint64 from = 0; ///< First byte that is sent.
    qint64 length = -1; ///< Bytes that are sent; -1: all.
    QByteArray elsewhere = {}; ///< The address to go to instead; the rest is empty then.

    qint64 size() const { return file ? file->size() : bytes.size(); }

    qint64 sentSize() const { return length < 0 ? size() - from : length; }
};

struct Response
{
    int status = 200;
    Content content;
    std::vector<std::pair<QByteArray, QByteArray>> headers;

    /// The value of a header that the handler set, or empty.
    QByteArray header(const QByteArray &name) const
    {
        for (const auto &[key, value] : headers) {
            if (key == name)
                return value;
        }
        return {};
    }
};

/// Takes the answer to a request, once, on any thread.
using Answer = std::function<void(Response)>;

} // namespace moravel::server
