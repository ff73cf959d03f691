// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <httplib.h>

namespace moravel::server {

/// A pool that tells how many connections wait for a thread.
class CountingPool : public httplib::ThreadPool
{
public:
    CountingPool(std::size_t count, std::atomic<int> &waiting)
        : ThreadPool(count), m_waiting(waiting)
    { }

    void enqueue(std::function<void()> fn) override
    {
        ++m_waiting;
        ThreadPool::enqueue([this, fn = std::move(fn)] {
            --m_waiting;
            fn();
        });
    }

private:
    std::atomic<int> &m_waiting;
};

} // namespace moravel::server
