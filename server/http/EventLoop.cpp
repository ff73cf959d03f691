// SPDX-License-Identifier: MIT
#include "server/http/EventLoop.h"

#include "server/http/ResponseHead.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace moravel::server {

namespace {

constexpr quint64 wakeId = 0;
constexpr quint64 listeningId = 1;
constexpr auto checkInterval = std::chrono::milliseconds(50);

void watch(int epoll, int socket, quint64 id, std::uint32_t events)
{
    epoll_event event{};
    event.events = events;
    event.data.u64 = id;
    ::epoll_ctl(epoll, EPOLL_CTL_ADD, socket, &event);
}

bool isLoopback(int socket)
{
    sockaddr_storage address{};
    socklen_t size = sizeof address;
    if (::getpeername(socket, reinterpret_cast<sockaddr *>(&address), &size) != 0)
        return false;
    if (address.ss_family == AF_INET) {
        const auto *four = reinterpret_cast<const sockaddr_in *>(&address);
        return ntohl(four->sin_addr.s_addr) >> 24 == 127;
    }
    const auto *six = reinterpret_cast<const sockaddr_in6 *>(&address);
    constexpr int mappedAt =
        12; // Where an IPv4 address lies in the IPv6 address that stands for it.
    return address.ss_family == AF_UNIX
        || (address.ss_family == AF_INET6
            && (IN6_IS_ADDR_LOOPBACK(&six->sin6_addr)
                || (IN6_IS_ADDR_V4MAPPED(&six->sin6_addr)
                    && six->sin6_addr.s6_addr[mappedAt] == 127)));
}

} // namespace

/// Stands for an answer that is due; when the last copy goes without one, says so to the client.
class Ticket
{
public:
    Ticket(EventLoop &loop, quint64 connection) : m_loop(loop), m_connection(connection) { }

    ~Ticket()
    {
        if (!m_used)
            give({500, {"The service failed to answer this.\n", nullptr, "text/plain", {}}, {}});
    }

    Ticket(const Ticket &) = delete;
    Ticket &operator=(const Ticket &) = delete;

    void give(Response response)
    {
        if (m_used.exchange(true))
            return;
        if (std::this_thread::get_id() == m_loop.m_thread)
            return m_loop.finish(m_connection, std::move(response));
        m_loop.post([this_ = &m_loop, id = m_connection, answer = std::move(response)]() mutable {
            this_->finish(id, std::move(answer));
        });
    }

private:
    EventLoop &m_loop;
    const quint64 m_connection;
    std::atomic<bool> m_used{false};
};

EventLoop::EventLoop(AsyncHandler handler, const ConnectionLimits &limits,
                     std::size_t mostConnections)
    : m_handler(std::move(handler))
    , m_limits(limits)
    , m_mostConnections(mostConnections)
    , m_epoll(::epoll_create1(EPOLL_CLOEXEC))
    , m_wake(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    watch(m_epoll, m_wake, wakeId, EPOLLIN);
}

EventLoop::~EventLoop()
{
    ::close(m_wake);
    ::close(m_epoll);
}

void EventLoop::listenTo(int socket, std::function<void(int)> accepted)
{
    m_listening = socket;
    m_accepted = std::move(accepted);
    watch(m_epoll, socket, listeningId, EPOLLIN);
}

void EventLoop::post(std::function<void()> task)
{
    const std::lock_guard lock(m_mutex);
    if (m_closed)
        return;
    m_tasks.push_back(std::move(task));
    if (m_tasks.size() == 1) {
        const std::uint64_t one = 1;
        static_cast<void>(::write(m_wake, &one, sizeof one));
    }
}

void EventLoop::run()
{
    m_thread = std::this_thread::get_id();
    while (!m_stopping || !m_connections.empty())
        wait();
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    m_tasks.clear();
}

void EventLoop::wait()
{
    constexpr int mostEvents = 128;
    std::array<epoll_event, mostEvents> events; // NOLINT: filled by epoll_wait
    const int pause = m_connections.empty() ? -1 : static_cast<int>(checkInterval.count());
    const int count = ::epoll_wait(m_epoll, events.data(), mostEvents, pause);
    m_now = Connection::Clock::now();
    if (const std::time_t second = std::time(nullptr); second != m_dateSecond) {
        m_dateSecond = second;
        m_date = httpDate(second);
    }
    for (int i = 0; i < count; ++i) {
        const epoll_event &event = events[static_cast<std::size_t>(i)];
        if (event.data.u64 == wakeId) {
            runTasks();
        } else if (event.data.u64 == listeningId) {
            acceptAll();
        } else if (const auto at = m_connections.find(event.data.u64); at != m_connections.end()) {
            const bool broken = (event.events & (EPOLLERR | EPOLLHUP)) != 0;
            Connection &connection = *at->second;
            connection.socketChanged(broken || (event.events & EPOLLIN) != 0,
                                     broken || (event.events & EPOLLOUT) != 0, m_now);
            removeIfOver(connection);
        }
    }
    if (m_now >= m_nextCheck)
        checkTimes();
}

void EventLoop::acceptAll()
{
    constexpr int mostAtOnce = 64;
    for (int i = 0; i < mostAtOnce && m_listening >= 0; ++i) {
        const int socket = ::accept4(m_listening, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
        if (socket >= 0) {
            m_accepted(socket);
        } else if (errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM) {
            makeRoom();
            return;
        } else if (errno != EINTR && errno != ECONNABORTED) {
            return;
        }
    }
}

void EventLoop::add(int socket)
{
    if (m_stopping || (m_connections.size() >= m_mostConnections && !makeRoom())) {
        ::close(socket);
        return;
    }
    const int on = 1;
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    const quint64 id = ++m_lastId;
    ConnectionHost &host = *this;
    m_connections.emplace(
        id, std::make_unique<Connection>(id, socket, isLoopback(socket), m_limits, host));
    watch(m_epoll, socket, id, EPOLLIN | EPOLLOUT | EPOLLET);
}

/// Closes the connection that has asked nothing for the longest time; false when all are being
/// answered.
bool EventLoop::makeRoom()
{
    const Connection *oldest = nullptr;
    for (const auto &[id, connection] : m_connections) {
        if (connection->isWaiting()
            && (!oldest || connection->lastProgress() < oldest->lastProgress()))
            oldest = connection.get();
    }
    return oldest && m_connections.erase(oldest->id()) > 0;
}

void EventLoop::runTasks()
{
    std::uint64_t count = 0;
    static_cast<void>(::read(m_wake, &count, sizeof count));
    std::vector<std::function<void()>> tasks;
    {
        const std::lock_guard lock(m_mutex);
        tasks.swap(m_tasks);
    }
    for (const auto &task : tasks)
        task();
}

void EventLoop::checkTimes()
{
    m_nextCheck = m_now + checkInterval;
    for (auto at = m_connections.begin(); at != m_connections.end();) {
        at->second->checkTime(m_now);
        at = at->second->isOver() ? m_connections.erase(at) : std::next(at);
    }
}

void EventLoop::dispatch(quint64 connection, const Request &request)
{
    m_dispatching = connection;
    try {
        const auto ticket = std::make_shared<Ticket>(*this, connection);
        m_handler(request, [ticket](Response response) { ticket->give(std::move(response)); });
    } catch (...) { // The ticket has told the client.
    }
    m_dispatching = 0;
}

void EventLoop::comeBack(quint64 connection)
{
    post([this, connection] {
        const auto at = m_connections.find(connection);
        if (at == m_connections.end())
            return;
        Connection &waiting = *at->second;
        waiting.goOn(m_now);
        removeIfOver(waiting);
    });
}

void EventLoop::finish(quint64 connection, Response response)
{
    const auto at = m_connections.find(connection);
    if (at == m_connections.end())
        return; // The client is gone.
    Connection &asker = *at->second;
    asker.answer(std::move(response), m_now);
    // An answer that came at once is inside the connection's own turn, which goes on by itself.
    if (m_dispatching != connection) {
        asker.socketChanged(false, false, m_now);
        removeIfOver(asker);
    }
}

void EventLoop::removeIfOver(Connection &connection)
{
    if (connection.isOver())
        m_connections.erase(connection.id());
}

void EventLoop::stop()
{
    m_stopping = true;
    if (m_listening >= 0)
        ::epoll_ctl(m_epoll, EPOLL_CTL_DEL, m_listening, nullptr);
    m_listening = -1;
    for (auto at = m_connections.begin(); at != m_connections.end();) {
        at->second->stopAsking();
        at = at->second->isOver() ? m_connections.erase(at) : std::next(at);
    }
}

} // namespace moravel::server
