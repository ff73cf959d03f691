// SPDX-License-Identifier: MIT
#include "server/http/HttpServer.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace moravel::server {

namespace {

std::size_t loopCount()
{
    constexpr unsigned most = 4; // Each can send some gigabytes a second.
    return std::clamp(std::thread::hardware_concurrency(), 1U, most);
}

/// Each connection is a file, and may be sent another; the usual limit of 1024 is there for programs
/// that use select().
std::size_t connectionsPossible(std::size_t wanted)
{
    constexpr rlim_t others = 128;
    rlimit files{};
    ::getrlimit(RLIMIT_NOFILE, &files);
    const rlim_t target = std::min<rlim_t>(files.rlim_max, 2 * wanted + others);
    const rlim_t before = std::exchange(files.rlim_cur, std::max(files.rlim_cur, target));
    if (::setrlimit(RLIMIT_NOFILE, &files) != 0)
        files.rlim_cur = before;
    return std::clamp<std::size_t>((files.rlim_cur - std::min(files.rlim_cur, others)) / 2, 1,
                                   wanted);
}

/// The port of a listening socket, or 0.
int portOf(int socket)
{
    sockaddr_storage address{};
    socklen_t size = sizeof address;
    int listens = 0;
    socklen_t flagSize = sizeof listens;
    if (::getsockopt(socket, SOL_SOCKET, SO_ACCEPTCONN, &listens, &flagSize) != 0 || listens == 0
        || ::getsockname(socket, reinterpret_cast<sockaddr *>(&address), &size) != 0)
        return 0;
    if (address.ss_family == AF_INET6)
        return ntohs(reinterpret_cast<const sockaddr_in6 *>(&address)->sin6_port);
    return address.ss_family == AF_INET
        ? ntohs(reinterpret_cast<const sockaddr_in *>(&address)->sin_port)
        : 0;
}

/// A socket that listens at a numeric address, or -1 with errno set.
int listeningSocket(const QByteArray &host, int port)
{
    sockaddr_in four{};
    sockaddr_in6 six{};
    four.sin_family = AF_INET;
    six.sin6_family = AF_INET6;
    four.sin_port = six.sin6_port = htons(static_cast<std::uint16_t>(port));
    const bool isFour = ::inet_pton(AF_INET, host.constData(), &four.sin_addr) == 1;
    if (!isFour && ::inet_pton(AF_INET6, host.constData(), &six.sin6_addr) != 1) {
        errno = EINVAL;
        return -1;
    }
    const int type = SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC;
    const int socket = ::socket(isFour ? AF_INET : AF_INET6, type, 0);
    const int on = 1; // Not SO_REUSEPORT: a second service on the port must fail.
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    const auto *address = isFour ? reinterpret_cast<const sockaddr *>(&four)
                                 : reinterpret_cast<const sockaddr *>(&six);
    const socklen_t size = isFour ? sizeof four : sizeof six;
    if (::bind(socket, address, size) == 0 && ::listen(socket, SOMAXCONN) == 0)
        return socket;
    const int why = errno;
    ::close(socket);
    errno = why;
    return -1;
}

} // namespace

HttpServer::HttpServer(AsyncHandler handler, const ConnectionLimits &limits)
{
    const std::size_t count = loopCount();
    const std::size_t connections = connectionsPossible(limits.connections);
    for (std::size_t i = 0; i < count; ++i)
        m_loops.push_back(std::make_unique<EventLoop>(
            handler, limits, std::max<std::size_t>(connections / count, 1)));
}

HttpServer::~HttpServer()
{
    if (m_socket >= 0)
        ::close(m_socket);
}

tl::expected<int, QString> HttpServer::bind(const QString &address, int port)
{
    m_socket = listeningSocket(address.toLatin1(), port);
    if (m_socket >= 0)
        return portOf(m_socket);
    return tl::unexpected(QStringLiteral("cannot listen on %1 port %2: %3")
                              .arg(address)
                              .arg(port)
                              .arg(QString::fromUtf8(std::strerror(errno))));
}

tl::expected<int, QString> HttpServer::adopt(int socket)
{
    const int port = portOf(socket);
    if (port == 0)
        return tl::unexpected(QStringLiteral("the socket that was handed over does not listen"));
    ::fcntl(socket, F_SETFL, ::fcntl(socket, F_GETFL) | O_NONBLOCK);
    ::fcntl(socket, F_SETFD, FD_CLOEXEC);
    m_socket = socket;
    return port;
}

bool HttpServer::run()
{
    if (m_socket < 0)
        return false;
    m_loops.front()->listenTo(m_socket, [this](int socket) {
        EventLoop &loop = *m_loops[m_nextLoop++ % m_loops.size()];
        loop.post([&loop, socket] { loop.add(socket); });
    });
    std::vector<std::thread> threads;
    for (std::size_t i = 1; i < m_loops.size(); ++i)
        threads.emplace_back([loop = m_loops[i].get()] { loop->run(); });
    m_loops.front()->run();
    for (std::thread &thread : threads)
        thread.join();
    return true;
}

void HttpServer::stop()
{
    for (const auto &loop : m_loops)
        loop->post([loop = loop.get()] { loop->stop(); });
}

} // namespace moravel::server
