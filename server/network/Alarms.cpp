// SPDX-License-Identifier: MIT
#include "server/network/Alarms.h"

namespace moravel::server {

Alarms::Alarms() : m_thread([this] { run(); })
{ }

Alarms::~Alarms()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

Alarms::Alarm Alarms::at(Clock::time_point time, std::function<void()> call)
{
    const std::lock_guard lock(m_mutex);
    const auto added = m_calls.emplace(Alarm(time, ++m_last), std::move(call)).first;
    if (added == m_calls.begin())
        m_changed.notify_all();
    return added->first;
}

void Alarms::cancel(const Alarm &alarm)
{
    const std::lock_guard lock(m_mutex);
    m_calls.erase(alarm);
}

void Alarms::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_stopped) {
        if (m_calls.empty()) {
            m_changed.wait(lock);
        } else if (const auto first = m_calls.begin()->first.first; first > Clock::now()) {
            m_changed.wait_until(lock, first);
        } else {
            const auto call = std::move(m_calls.begin()->second);
            m_calls.erase(m_calls.begin());
            lock.unlock();
            call();
            lock.lock();
        }
    }
}

} // namespace moravel::server
