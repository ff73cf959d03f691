// SPDX-License-Identifier: MIT
#pragma once

#include "server/http/Connection.h"

#include <functional>
#include <mutex>
#include <thread>
#include <unordered_map>
#include <vector>

namespace moravel::server {

/// Takes a request of a connection; the answer may come from any thread, also at once. A request
/// whose answer is given up is answered with status 500.
using AsyncHandler = std::function<void(const Request &, const Answer &)>;

/// Serves many connections on one thread: it waits for what happens to their sockets, and for calls
/// from other threads.
class EventLoop : private ConnectionHost
{
public:
    EventLoop(AsyncHandler handler, const ConnectionLimits &limits, std::size_t mostConnections);
    ~EventLoop() override;
    EventLoop(const EventLoop &) = delete;
    EventLoop &operator=(const EventLoop &) = delete;

    /// Calls @p accepted with each new connection of a listening socket, which stays the caller's.
    void listenTo(int socket, std::function<void(int)> accepted);

    /// Runs @p task on the loop's thread soon; the only function that any thread may call.
    void post(std::function<void()> task);

    void run(); ///< Until stop(), and until the answers in progress are sent.
    void stop(); ///< On the loop's thread.
    void add(int socket); ///< Takes a connected socket over. On the loop's thread.

private:
    friend class Ticket;
    void dispatch(quint64 connection, const Request &request) override;
    void comeBack(quint64 connection) override;
    void finish(quint64 connection, Response response);

    const QByteArray &date() const override { return m_date; }

    bool isStopping() const override { return m_stopping; }

    void wait();
    void acceptAll();
    void runTasks();
    void checkTimes();
    bool makeRoom();
    void removeIfOver(Connection &connection);

    const AsyncHandler m_handler;
    const ConnectionLimits m_limits;
    const std::size_t m_mostConnections;
    const int m_epoll;
    const int m_wake;
    int m_listening = -1;
    std::function<void(int)> m_accepted;
    std::unordered_map<quint64, std::unique_ptr<Connection>> m_connections;
    quint64 m_dispatching = 0; ///< The connection whose request is being handed over.
    quint64 m_lastId = 1; ///< 0 and 1 stand for the wake-up and the listening socket.
    Connection::Clock::time_point m_now;
    Connection::Clock::time_point m_nextCheck;
    std::time_t m_dateSecond = 0;
    QByteArray m_date;
    std::thread::id m_thread;
    bool m_stopping = false;
    std::mutex m_mutex;
    std::vector<std::function<void()>> m_tasks;
    bool m_closed = false; ///< The loop has ended: tasks are dropped.
};

} // namespace moravel::server
