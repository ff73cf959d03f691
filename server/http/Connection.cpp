// SPDX-License-Identifier: MIT
#include "server/http/Connection.h"

#include "server/http/ResponseHead.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/sendfile.h>
#include <sys/socket.h>
#include <unistd.h>

namespace moravel::server {

namespace {

using std::chrono::milliseconds;

constexpr qsizetype mostUnread = 131'072; ///< Requests ahead of their turn, in bytes.
constexpr qsizetype smallBody = 65'536; ///< Up to this size it is joined to the head.

bool later(Connection::Clock::time_point now, Connection::Clock::time_point since, int ms)
{
    return now - since >= milliseconds(ms);
}

} // namespace

Connection::Connection(quint64 id, int socket, bool fromLoopback, const ConnectionLimits &limits,
                       ConnectionHost &host)
    : m_id(id)
    , m_socket(socket)
    , m_fromLoopback(fromLoopback)
    , m_limits(limits)
    , m_host(host)
    , m_begun(Clock::now())
    , m_lastProgress(m_begun)
{ }

Connection::~Connection()
{
    ::close(m_socket);
}

void Connection::socketChanged(bool readable, bool writable, Clock::time_point now)
{
    m_readable = m_readable || readable;
    if (writable && m_state == State::Writing)
        write(now);
    if (m_readable && m_state == State::Answering) {
        // Only to notice a client that is gone: its answer need not be made.
        char byte = 0;
        if (::recv(m_socket, &byte, 1, MSG_PEEK | MSG_DONTWAIT) == 0)
            m_keepAlive = false;
    }
    advance(now);
}

void Connection::goOn(Clock::time_point now)
{
    m_gaveWay = false;
    socketChanged(false, true, now);
}

/// A client that never stops asking or taking must not keep the others waiting.
void Connection::giveWay()
{
    if (!std::exchange(m_gaveWay, true))
        m_host.comeBack(m_id);
}

/// Goes on as far as the bytes at hand and the answers allow, for one turn.
void Connection::advance(Clock::time_point now)
{
    constexpr int mostSteps = 64;
    for (int step = 0; m_state == State::Reading; ++step) {
        if (step == mostSteps)
            return giveWay();
        const qsizetype before = m_in.size();
        if (!m_in.isEmpty())
            takeRequest(now);
        if (m_state != State::Reading || (m_in.size() != before && !m_in.isEmpty()))
            continue;
        if (!m_readable)
            return;
        read(now);
    }
    if (m_state == State::Draining)
        drain();
}

void Connection::read(Clock::time_point now)
{
    std::array<char, 16'384> buffer; // NOLINT: filled by recv
    const ssize_t count = ::recv(m_socket, buffer.data(), buffer.size(), MSG_DONTWAIT);
    if (count <= 0) {
        m_readable = false;
        if (count == 0 || (errno != EAGAIN && errno != EINTR))
            m_state = State::Over;
        return;
    }
    // A short read has emptied the socket; news of more will come by itself.
    m_readable = count == static_cast<ssize_t>(buffer.size());
    if (m_in.isEmpty())
        m_begun = now;
    m_lastProgress = now;
    m_in.append(buffer.data(), count);
    if (m_in.size() > mostUnread)
        refuse(400, now);
}

void Connection::takeRequest(Clock::time_point now)
{
    ParsedHead head = parseHead({m_in.constData(), static_cast<std::size_t>(m_in.size())});
    if (head.state == ParsedHead::State::Refused)
        return refuse(head.status, now);
    if (head.state == ParsedHead::State::Incomplete)
        return;
    if (m_in.size() < head.headBytes + head.bodyBytes) {
        if (head.expectsContinue && !std::exchange(m_sentContinue, true)) {
            constexpr std::string_view go = "HTTP/1.1 100 Continue\r\n\r\n";
            static_cast<void>(::send(m_socket, go.data(), go.size(), MSG_DONTWAIT | MSG_NOSIGNAL));
        }
        return;
    }
    head.request.body = m_in.mid(head.headBytes, head.bodyBytes);
    head.request.fromLoopback = m_fromLoopback;
    m_in.remove(0, head.headBytes + head.bodyBytes);
    m_headOnly = head.request.method == "HEAD";
    m_keepAlive = head.keepAlive && !m_host.isStopping();
    m_sentContinue = false;
    m_state = State::Answering;
    m_host.dispatch(m_id, head.request); // May already call answer().
}

void Connection::refuse(int status, Clock::time_point now)
{
    m_keepAlive = false;
    m_headOnly = false;
    m_state = State::Answering;
    answer({status,
            {sentenceFor(status), nullptr, "text/plain; charset=utf-8", {}},
            {{"Cache-Control", "no-store"}}},
           now);
}

void Connection::answer(Response response, Clock::time_point now)
{
    if (m_state != State::Answering)
        return;
    m_keepAlive = m_keepAlive && !m_host.isStopping();
    m_out = responseHead(response, m_keepAlive, m_host.date());
    m_sent = 0;
    m_body = std::move(response.content);
    m_bodyAt = m_body.from;
    m_bodyEnd = m_headOnly || response.status == 304 ? m_bodyAt : m_bodyAt + m_body.sentSize();
    if (!m_body.file && m_bodyEnd - m_bodyAt <= smallBody) {
        m_out += QByteArrayView(m_body.bytes).sliced(m_bodyAt, m_bodyEnd - m_bodyAt);
        m_bodyAt = m_bodyEnd;
    }
    m_state = State::Writing;
    m_begun = m_lastProgress = now;
    write(now);
    if (m_state == State::Draining)
        drain();
}

void Connection::write(Clock::time_point now)
{
    while (m_sent < m_out.size()) {
        if (!writeBytes(now))
            return;
    }
    constexpr int mostChunks = 4;
    for (int chunk = 0; m_bodyAt < m_bodyEnd; ++chunk) {
        if (chunk == mostChunks)
            return giveWay();
        if (!writeFile(now))
            return;
    }
    finishAnswer(now);
}

/// Whether to go on writing; false also when the client has to take some first.
bool Connection::progressed(ssize_t count, Clock::time_point now)
{
    if (count > 0)
        m_lastProgress = now;
    else if (count == 0 || (errno != EAGAIN && errno != EINTR))
        m_state = State::Over;
    return count > 0 || (count < 0 && errno == EINTR);
}

bool Connection::writeBytes(Clock::time_point now)
{
    const int more = m_bodyAt < m_bodyEnd ? MSG_MORE : 0;
    const ssize_t count =
        ::send(m_socket, m_out.constData() + m_sent, static_cast<size_t>(m_out.size() - m_sent),
               MSG_DONTWAIT | MSG_NOSIGNAL | more);
    if (count > 0)
        m_sent += count;
    return progressed(count, now);
}

bool Connection::writeFile(Clock::time_point now)
{
    constexpr qint64 chunk = 1 << 20;
    const auto size = static_cast<size_t>(std::min(chunk, m_bodyEnd - m_bodyAt));
    ssize_t count = 0;
    if (m_body.file) {
        off_t at = m_bodyAt;
        count = ::sendfile(m_socket, m_body.file->handle(), &at, size);
    } else {
        count = ::send(m_socket, m_body.bytes.constData() + m_bodyAt, size,
                       MSG_DONTWAIT | MSG_NOSIGNAL);
    }
    if (count > 0)
        m_bodyAt += count;
    return progressed(count, now);
}

void Connection::finishAnswer(Clock::time_point now)
{
    m_out.clear();
    m_body = {};
    m_begun = m_lastProgress = now;
    if (m_keepAlive) {
        m_state = State::Reading;
        return;
    }
    // Closing while bytes of the client are unread would reset the connection, and the client would
    // lose the answer that is on its way: what comes is taken for a moment.
    m_state = State::Draining;
    m_readable = true;
    ::shutdown(m_socket, SHUT_WR);
}

void Connection::drain()
{
    constexpr qsizetype most = 1 << 20;
    while (m_readable) {
        std::array<char, 16'384> dropped; // NOLINT: filled by recv
        const ssize_t count = ::recv(m_socket, dropped.data(), dropped.size(), MSG_DONTWAIT);
        m_drained += std::max<ssize_t>(count, 0);
        m_readable = count > 0;
        if (count == 0 || m_drained > most || (count < 0 && errno != EAGAIN && errno != EINTR)) {
            m_state = State::Over;
            return;
        }
    }
}

void Connection::checkTime(Clock::time_point now)
{
    constexpr int drainMs = 500;
    if (m_state == State::Reading && m_in.isEmpty()) {
        if (later(now, m_lastProgress, m_limits.idleMs))
            m_state = State::Over;
    } else if (m_state == State::Reading) {
        if (later(now, m_lastProgress, m_limits.readMs) || later(now, m_begun, m_limits.requestMs))
            refuse(408, now);
    } else if (m_state == State::Writing) {
        if (later(now, m_lastProgress, m_limits.writeMs) || later(now, m_begun, m_limits.answerMs))
            m_state = State::Over;
    } else if (m_state == State::Draining && later(now, m_begun, drainMs)) {
        m_state = State::Over;
    }
}

void Connection::stopAsking()
{
    if (m_state == State::Reading)
        m_state = State::Over;
}

} // namespace moravel::server
