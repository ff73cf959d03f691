// SPDX-License-Identifier: MIT
#include "server/http/Transport.h"

#include "server/http/CountingPool.h"
#include "server/http/RequestChecks.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>

namespace moravel::server {

namespace {

constexpr std::size_t threads = 32;
constexpr std::size_t requestsPerConnection = 10'000;

/// Without SO_REUSEPORT, which the library sets by itself: a second service on the port must fail.
void setSocketOptions(int socket)
{
    const int on = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
}

} // namespace

Transport::Transport(HttpServer::Handler handler, const ConnectionLimits &limits)
    : m_handler(std::move(handler)), m_limits(limits)
{
    new_task_queue = [this] { return new CountingPool(threads, m_waiting); };
    set_tcp_nodelay(true); // The head and the body of an answer are two writes.
    set_socket_options(setSocketOptions);
    set_keep_alive_max_count(requestsPerConnection); // These two are only told to the client.
    set_keep_alive_timeout(m_limits.idleMs / 1000);
    set_payload_max_length(mostBodyBytes);
    set_read_timeout(std::chrono::milliseconds(m_limits.readMs));
    set_write_timeout(std::chrono::milliseconds(m_limits.writeMs));
    route();
}

void Transport::route()
{
    set_pre_routing_handler([this](const httplib::Request &request, httplib::Response &response) {
        response.status = refusalOf(request);
        if (response.status == 0 && request.method == "POST") {
            response.status = -1;
            return HandlerResponse::Unhandled;
        }
        if (response.status == 0)
            putInto(response, m_handler(takenFrom(request, {})));
        return HandlerResponse::Handled;
    });
    Post(".*",
         [this](const httplib::Request &request, httplib::Response &response,
                const httplib::ContentReader &readBody) {
             std::string body;
             const bool whole = readBody([&](const char *data, std::size_t size) {
                 body.append(data, size);
                 return body.size() <= mostBodyBytes;
             });
             if (whole)
                 putInto(response, m_handler(takenFrom(request, body)));
             else
                 response.status = 400;
         });
    set_exception_handler([](const httplib::Request &, httplib::Response &response,
                             const std::exception_ptr &) { response.status = 500; });
    set_error_handler([](const httplib::Request &, httplib::Response &response) {
        if (response.body.empty() && response.content_length_ == 0)
            response.set_content(sentenceFor(response.status), "text/plain; charset=utf-8");
    });
    set_post_routing_handler([](const httplib::Request &, httplib::Response &response) {
        response.headers.erase("Accept-Ranges");
        if (response.status == 304)
            response.headers.erase("Content-Length");
    });
}

bool Transport::answerOne(ConnectionStream &stream)
{
    bool usable = false; // Stays so when the head could not even be parsed.
    bool closed = false;
    process_request(stream, false, closed, [&](httplib::Request &request) {
        usable = refusalOf(request) == 0;
        if (!usable)
            request.headers.emplace("Connection", "close");
        // Ranges multiply what is sent, and compression what is computed; nothing here needs
        // either.
        request.ranges.clear();
        request.headers.erase("Range");
        request.headers.erase("Accept-Encoding");
    });
    return usable && !closed && !stream.failed();
}

bool Transport::process_and_close_socket(socket_t socket)
{
    ConnectionStream stream(socket, m_limits);
    const auto giveUp = [this] { return m_stopping || m_waiting > 0; };
    try {
        for (std::size_t left = requestsPerConnection; left > 0 && !m_stopping; --left) {
            if (!stream.awaitRequest(giveUp) || !answerOne(stream))
                break;
        }
    } catch (...) { // Out of memory, at worst: costs this connection only.
    }
    return true;
}

tl::expected<int, QString> Transport::bind(const QString &address, int port)
{
    errno = 0;
    const std::string host = address.toStdString();
    const int bound = port == 0 ? bind_to_any_port(host) : bind_to_port(host, port) ? port : -1;
    if (bound > 0) {
        ::listen(svr_sock_, SOMAXCONN); // The library's backlog is 5.
        return bound;
    }
    const char *why = errno == 0 ? "the address cannot be used" : std::strerror(errno);
    return tl::unexpected(QStringLiteral("cannot listen on %1 port %2: %3")
                              .arg(address)
                              .arg(port)
                              .arg(QString::fromUtf8(why)));
}

bool Transport::run()
{
    return (m_stopping || listen_after_bind()) || m_stopping;
}

void Transport::end()
{
    m_stopping = true;
    stop();
}

} // namespace moravel::server
