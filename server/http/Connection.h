// SPDX-License-Identifier: MIT
#pragma once

#include "server/http/ConnectionLimits.h"
#include "server/http/RequestParser.h"

#include <chrono>

namespace moravel::server {

/// What a connection needs of the loop that it lives on.
class ConnectionHost
{
public:
    virtual ~ConnectionHost() = default;
    virtual void dispatch(quint64 connection, const Request &request) = 0;
    virtual void comeBack(quint64 connection) = 0; ///< Calls goOn() after the others' turns.
    virtual const QByteArray &date() const = 0;
    virtual bool isStopping() const = 0;
};

/// One client, without a thread of its own: reads a request, has it answered, writes the answer,
/// and so on. Never blocks. Owns the socket, which reports changes of its state only once.
class Connection
{
public:
    using Clock = std::chrono::steady_clock;

    Connection(quint64 id, int socket, bool fromLoopback, const ConnectionLimits &limits,
               ConnectionHost &host);
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    void socketChanged(bool readable, bool writable, Clock::time_point now);
    void answer(Response response, Clock::time_point now);
    void goOn(Clock::time_point now); ///< Takes up what it left to give others a turn.
    void checkTime(Clock::time_point now);
    void stopAsking(); ///< No further request is taken.

    quint64 id() const { return m_id; }

    int socket() const { return m_socket; }

    bool isOver() const { return m_state == State::Over; }

    /// Whether the client has been asked nothing of: no answer is due or on its way.
    bool isWaiting() const { return m_state == State::Reading; }

    Clock::time_point lastProgress() const { return m_lastProgress; }

private:
    enum class State { Reading, Answering, Writing, Draining, Over };

    void advance(Clock::time_point now);
    void read(Clock::time_point now);
    void takeRequest(Clock::time_point now);
    void refuse(int status, Clock::time_point now);
    void write(Clock::time_point now);
    bool writeBytes(Clock::time_point now);
    bool writeFile(Clock::time_point now);
    bool progressed(ssize_t count, Clock::time_point now);
    void finishAnswer(Clock::time_point now);
    void drain();
    void giveWay();

    const quint64 m_id;
    const int m_socket;
    const bool m_fromLoopback;
    const ConnectionLimits &m_limits;
    ConnectionHost &m_host;

    State m_state = State::Reading;
    bool m_readable = false; ///< There may be bytes in the socket that were not read.
    bool m_headOnly = false;
    bool m_keepAlive = true;
    bool m_sentContinue = false;
    bool m_gaveWay = false; ///< goOn() will come.
    QByteArray m_in;
    QByteArray m_out;
    qsizetype m_sent = 0; ///< Of m_out.
    Content m_body; ///< What follows m_out.
    qint64 m_bodyAt = 0;
    qint64 m_bodyEnd = 0;
    qsizetype m_drained = 0;
    Clock::time_point m_begun; ///< Of the request, the answer or the draining.
    Clock::time_point m_lastProgress;
};

} // namespace moravel::server
