// SPDX-License-Identifier: MIT
#include "server/http/HttpServer.h"

#include "server/http/Transport.h"

namespace moravel::server {

HttpServer::HttpServer(Handler handler) : HttpServer(std::move(handler), ConnectionLimits())
{ }

HttpServer::HttpServer(Handler handler, const ConnectionLimits &limits)
    : m_transport(std::make_unique<Transport>(std::move(handler), limits))
{ }

HttpServer::~HttpServer() = default;

tl::expected<int, QString> HttpServer::bind(const QString &address, int port)
{
    return m_transport->bind(address, port);
}

bool HttpServer::run()
{
    return m_transport->run();
}

void HttpServer::stop()
{
    m_transport->end();
}

} // namespace moravel::server
