// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Messages.h"

#include <QString>

#include <functional>
#include <memory>
#include <tl/expected.hpp>

namespace moravel::server {

struct ConnectionLimits;
class Transport;

/// Carries requests from TCP connections to a handler and its answers back, on a pool of threads.
class HttpServer
{
public:
    /// Called from several threads at once; must not throw.
    using Handler = std::function<Response(const Request &)>;

    explicit HttpServer(Handler handler);
    HttpServer(Handler handler, const ConnectionLimits &limits);
    ~HttpServer();

    /// Takes the port (0: any free one) at a numeric address; the port it got, or why not.
    tl::expected<int, QString> bind(const QString &address, int port);

    /// Answers until stop(); false when the socket fails. To be called once, after bind().
    bool run();

    /// Ends run(): takes no more connections, lets the answers in progress finish. From any thread,
    /// also before run() has begun.
    void stop();

private:
    std::unique_ptr<Transport> m_transport;
};

} // namespace moravel::server
