// SPDX-License-Identifier: MIT
#pragma once

#include "server/http/ConnectionLimits.h"
#include "server/http/EventLoop.h"

#include <QString>

#include <atomic>
#include <memory>
#include <tl/expected.hpp>

namespace moravel::server {

/// Carries requests from TCP connections to a handler and its answers back. A few threads serve all
/// connections, so that silent or slow clients cost memory only.
class HttpServer
{
public:
    explicit HttpServer(AsyncHandler handler, const ConnectionLimits &limits = {});
    ~HttpServer();
    HttpServer(const HttpServer &) = delete;
    HttpServer &operator=(const HttpServer &) = delete;

    /// Takes the port (0: any free one) at a numeric address; the port it got, or why not.
    tl::expected<int, QString> bind(const QString &address, int port);

    /// Takes over a socket that listens already; its port, or why it cannot be used.
    tl::expected<int, QString> adopt(int socket);

    /// Answers until stop(); false when the socket fails. To be called once, after bind() or
    /// adopt().
    bool run();

    /// Ends run(): takes no more connections, lets the answers in progress finish. From any thread,
    /// also before run() has begun.
    void stop();

private:
    std::vector<std::unique_ptr<EventLoop>> m_loops;
    std::size_t m_nextLoop = 0;
    int m_socket = -1;
};

} // namespace moravel::server
