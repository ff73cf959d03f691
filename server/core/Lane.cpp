// SPDX-License-Identifier: MIT
#include "server/core/Lane.h"

#include "server/core/Log.h"

#include <utility>

namespace moravel::server {

Lane::Lane(int threads, std::size_t mostWaiting)
    : m_threadCount(static_cast<std::size_t>(threads)), m_mostWaiting(mostWaiting)
{ }

Lane::~Lane()
{
    end();
}

void Lane::end()
{
    stop();
    for (std::thread &thread : m_threads) {
        if (thread.joinable())
            thread.join();
    }
}

bool Lane::post(std::function<void()> work)
{
    const std::lock_guard lock(m_mutex);
    if (m_stopped || m_waiting.size() >= m_mostWaiting)
        return false;
    m_waiting.push_back(std::move(work));
    if (m_idle < m_waiting.size() && m_threads.size() < m_threadCount)
        m_threads.emplace_back([this] { run(); });
    m_changed.notify_one();
    return true;
}

void Lane::stop()
{
    std::deque<std::function<void()>> dropped; // Their destructors may do work of their own.
    const std::lock_guard lock(m_mutex);
    m_stopped = true;
    dropped.swap(m_waiting);
    m_changed.notify_all();
}

void Lane::run()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        ++m_idle;
        m_changed.wait(lock, [this] { return m_stopped || !m_waiting.empty(); });
        --m_idle;
        if (m_stopped)
            return;
        auto work = std::move(m_waiting.front());
        m_waiting.pop_front();
        lock.unlock();
        try {
            work();
        } catch (const std::exception &e) {
            qCInfo(serverLog) << "some work failed:" << e.what();
        }
        work = nullptr;
        lock.lock();
    }
}

} // namespace moravel::server
