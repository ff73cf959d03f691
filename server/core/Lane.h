// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace moravel::server {

/// A few threads that do one kind of work in the order of its arrival, so that one kind never waits
/// for another. The threads begin with the first work.
class Lane
{
public:
    Lane(int threads, std::size_t mostWaiting);
    ~Lane();
    Lane(const Lane &) = delete;
    Lane &operator=(const Lane &) = delete;

    /// False, and @p work is not done, when too much waits already or after stop().
    bool post(std::function<void()> work);

    /// Drops what waits and lets what is being done finish.
    void stop();

    void end(); ///< As stop(), and waits for what is being done.

private:
    void run();

    const std::size_t m_threadCount;
    const std::size_t m_mostWaiting;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_waiting;
    std::vector<std::thread> m_threads;
    std::size_t m_idle = 0;
    bool m_stopped = false;
};

} // namespace moravel::server
