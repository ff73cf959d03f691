// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <utility>

namespace moravel::server {

/// Calls functions at their time, on a thread of its own; they must be quick.
class Alarms
{
public:
    using Clock = std::chrono::steady_clock;

    Alarms();
    ~Alarms(); ///< What is not due yet is not called.
    Alarms(const Alarms &) = delete;
    Alarms &operator=(const Alarms &) = delete;

    using Alarm = std::pair<Clock::time_point, unsigned long long>;

    Alarm at(Clock::time_point time, std::function<void()> call);
    void cancel(const Alarm &alarm); ///< Nothing when it has been called.

private:
    void run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<Alarm, std::function<void()>> m_calls;
    unsigned long long m_last = 0;
    bool m_stopped = false;
    std::thread m_thread;
};

} // namespace moravel::server
