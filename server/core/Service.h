// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/SourceList.h"

#include <functional>

namespace moravel::server {

/// Answers requests. Knows nothing of sockets; handle() may be called from several threads at once
/// and takes anything that a client can send.
class Service
{
public:
    struct Setup
    {
        QString newsFile; ///< Empty when there is no news.
        QByteArray
            boundHost; ///< "127.0.0.1:8642": for links when the request names no usable host.
        std::function<QDateTime()> now; ///< Tests set the clock; the system's when empty.
    };

    /// @p sources must outlive this object.
    Service(const SourceList &sources, Setup setup);

    Response handle(const Request &request) const;

    /// The address is known only once the port is bound. Not to be called while requests are
    /// answered.
    void setBoundHost(const QByteArray &host) { m_setup.boundHost = host; }

private:
    Response route(const Request &request, const QString &path, const QByteArray &query) const;
    Response answerDay(const Request &request, const QByteArray &form) const;
    Response answerNews() const;
    Response answerPicture(const Request &request, const QString &name) const;
    Response answerPage(const QString &name) const;
    tl::expected<DayPicture, Unavailable> describe(const PictureSource *source, QDate date) const;
    QString baseUrl(const Request &request) const;
    QDateTime now() const;

    const SourceList &m_sources;
    Setup m_setup;
};

} // namespace moravel::server
