// SPDX-License-Identifier: MIT
#pragma once

#include "server/http/ConnectionStream.h"
#include "server/http/HttpServer.h"

#include <atomic>

namespace moravel::server {

/// The HTTP library's server with this service's own rules for connections, requests and answers.
class Transport : public httplib::Server
{
public:
    Transport(HttpServer::Handler handler, const ConnectionLimits &limits);
    tl::expected<int, QString> bind(const QString &address, int port);
    bool run();
    void end();

private:
    bool process_and_close_socket(socket_t socket) override;
    bool answerOne(ConnectionStream &stream);
    void route();

    const HttpServer::Handler m_handler;
    const ConnectionLimits m_limits;
    std::atomic<int> m_waiting{0};
    std::atomic<bool> m_stopping{false};
};

} // namespace moravel::server
