// SPDX-License-Identifier: MIT
#include "server/http/ConnectionStream.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace moravel::server {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

int pollFor(int socket, short events, int ms)
{
    pollfd waiting{socket, events, 0};
    const int ready = ::poll(&waiting, 1, ms);
    return ready < 0 && errno == EINTR ? 0 : ready;
}

/// Closing while bytes of the client are unread would reset the connection, and the client would
/// lose the answer that is on its way: takes what comes for a moment, then closes.
void closeGently(int socket)
{
    constexpr int mostMs = 500;
    constexpr std::size_t mostBytes = 1 << 20;
    ::shutdown(socket, SHUT_WR);
    const auto end = Clock::now() + milliseconds(mostMs);
    std::array<char, 16384> dropped{};
    for (std::size_t total = 0; total < mostBytes && Clock::now() < end;) {
        if (pollFor(socket, POLLIN, mostMs) <= 0)
            break;
        const ssize_t count = ::recv(socket, dropped.data(), dropped.size(), MSG_DONTWAIT);
        if (count <= 0)
            break;
        total += static_cast<std::size_t>(count);
    }
    ::close(socket);
}

} // namespace

ConnectionStream::ConnectionStream(int socket, ConnectionLimits limits)
    : m_socket(socket), m_limits(limits)
{ }

ConnectionStream::~ConnectionStream()
{
    closeGently(m_socket);
}

bool ConnectionStream::awaitRequest(const std::function<bool()> &giveUp)
{
    constexpr int sliceMs = 50;
    const auto end = Clock::now() + milliseconds(m_limits.idleMs);
    while (m_begin == m_end && pollFor(m_socket, POLLIN, sliceMs) == 0) {
        if (Clock::now() >= end || giveUp())
            return false;
    }
    m_budget = m_limits.requestBytes;
    m_requestEnd = Clock::now() + milliseconds(m_limits.requestMs);
    m_answerEnd = {};
    return !m_failed;
}

bool ConnectionStream::waitFor(short events, int ms, Clock::time_point deadline) const
{
    const auto left = std::chrono::duration_cast<milliseconds>(deadline - Clock::now()).count();
    if (left <= 0)
        return false;
    return pollFor(m_socket, events, static_cast<int>(std::min<long long>(left, ms))) > 0;
}

bool ConnectionStream::is_readable() const
{
    return m_begin < m_end || waitFor(POLLIN, m_limits.readMs, m_requestEnd);
}

bool ConnectionStream::is_writable() const
{
    return waitFor(POLLOUT, m_limits.writeMs, Clock::now() + milliseconds(m_limits.writeMs));
}

bool ConnectionStream::fill()
{
    const ssize_t count = waitFor(POLLIN, m_limits.readMs, m_requestEnd)
        ? ::recv(m_socket, m_buffer.data(), m_buffer.size(), MSG_DONTWAIT)
        : -1;
    m_begin = 0;
    m_end = count > 0 ? static_cast<std::size_t>(count) : 0;
    return count > 0;
}

ssize_t ConnectionStream::read(char *into, size_t size)
{
    const std::size_t wanted = std::min(size, m_budget);
    if (m_failed || wanted == 0 || (m_begin == m_end && !fill())) {
        m_failed = m_failed || size > 0;
        return -1;
    }
    const std::size_t count = std::min(wanted, m_end - m_begin);
    std::copy_n(m_buffer.data() + m_begin, count, into);
    m_begin += count;
    m_budget -= count;
    return static_cast<ssize_t>(count);
}

bool ConnectionStream::sendSome(const char *from, size_t size, size_t &sent,
                                Clock::time_point deadline)
{
    const ssize_t count = ::send(m_socket, from, size, MSG_DONTWAIT | MSG_NOSIGNAL);
    if (count >= 0) {
        sent += static_cast<std::size_t>(count);
        return true;
    }
    if (errno == EINTR)
        return true;
    return (errno == EAGAIN || errno == EWOULDBLOCK)
        && waitFor(POLLOUT, m_limits.writeMs, deadline);
}

ssize_t ConnectionStream::write(const char *from, size_t size)
{
    // The time runs from the first byte: making a picture may have taken a while.
    if (m_answerEnd == Clock::time_point())
        m_answerEnd = Clock::now() + milliseconds(m_limits.answerMs);
    for (std::size_t sent = 0; sent < size;) {
        if (!sendSome(from + sent, size - sent, sent, m_answerEnd)) {
            m_failed = true;
            return -1;
        }
    }
    return static_cast<ssize_t>(size);
}

void ConnectionStream::get_remote_ip_and_port(std::string &ip, int &port) const
{
    ip.clear();
    port = 0;
}

void ConnectionStream::get_local_ip_and_port(std::string &ip, int &port) const
{
    ip.clear();
    port = 0;
}

} // namespace moravel::server
