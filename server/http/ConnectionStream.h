// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <httplib.h>

namespace moravel::server {

/// Times in milliseconds and bytes that one connection may take.
struct ConnectionLimits
{
    int readMs = 2000; ///< Without a byte of a request that has begun.
    int requestMs = 5000; ///< For a whole request, however steadily it drips.
    int idleMs = 5000; ///< Between two requests.
    int writeMs = 10'000; ///< Without the client taking a byte.
    int answerMs = 300'000; ///< For a whole answer, however steadily it is taken.
    std::size_t requestBytes = 98'304; ///< Head and body.
};

/// A connected socket whose peer cannot hold a thread or memory for long: each request has a
/// deadline and a number of bytes. Owns the socket.
class ConnectionStream : public httplib::Stream
{
public:
    ConnectionStream(int socket, ConnectionLimits limits);
    ~ConnectionStream() override;
    ConnectionStream(const ConnectionStream &) = delete;
    ConnectionStream &operator=(const ConnectionStream &) = delete;

    /// Waits for the first byte of the next request; false when the client is gone or idle for too
    /// long, or when @p giveUp says so, which is asked often.
    bool awaitRequest(const std::function<bool()> &giveUp);

    /// Whether a read or write failed or met a limit: the connection is of no more use.
    bool failed() const { return m_failed; }

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char *into, size_t size) override;
    ssize_t write(const char *from, size_t size) override;
    void get_remote_ip_and_port(std::string &ip, int &port) const override;
    void get_local_ip_and_port(std::string &ip, int &port) const override;

    socket_t socket() const override { return m_socket; }

private:
    using Clock = std::chrono::steady_clock;
    bool waitFor(short events, int ms, Clock::time_point deadline) const;
    bool fill();
    bool sendSome(const char *from, size_t size, size_t &sent, Clock::time_point deadline);

    const int m_socket;
    const ConnectionLimits m_limits;
    std::array<char, 8192> m_buffer{};
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::size_t m_budget = 0;
    Clock::time_point m_requestEnd;
    Clock::time_point m_answerEnd;
    bool m_failed = false;
};

} // namespace moravel::server
