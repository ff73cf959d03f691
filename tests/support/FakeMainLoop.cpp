// SPDX-License-Identifier: MIT
#include "support/FakeMainLoop.h"

#include <algorithm>
#include <cmath>

namespace moravel::testing {

struct FakeMainLoop::Call
{
    qint64 due = 0;
    quint64 order = 0;
    qint64 interval = 0;
    bool cancelled = false;
    std::function<void()> fn;
};

class FakeMainLoop::Handle : public DelayedCall
{
public:
    explicit Handle(std::shared_ptr<Call> call) : m_call(std::move(call)) { }

    ~Handle() override { m_call->cancelled = true; }

private:
    std::shared_ptr<Call> m_call;
};

class FakeMainLoop::Hold : public LoopHold
{
public:
    explicit Hold(FakeMainLoop &loop) : m_loop(loop) { }

    ~Hold() override { m_loop.release(); }

private:
    FakeMainLoop &m_loop;
};

FakeMainLoop::FakeMainLoop(const QDateTime &start) : m_start(start)
{ }

FakeMainLoop::~FakeMainLoop() = default;

QDateTime FakeMainLoop::now() const
{
    return m_start.addMSecs(m_elapsedMs);
}

std::shared_ptr<FakeMainLoop::Call> FakeMainLoop::add(double seconds, double interval,
                                                      std::function<void()> fn)
{
    auto call = std::make_shared<Call>();
    call->due = m_elapsedMs + std::llround(seconds * 1000);
    call->interval = std::llround(interval * 1000);
    call->order = m_order++;
    call->fn = std::move(fn);
    m_calls.push_back(call);
    return call;
}

DelayedCallHandle FakeMainLoop::after(double seconds, std::function<void()> fn)
{
    return std::make_unique<Handle>(add(seconds, 0, std::move(fn)));
}

DelayedCallHandle FakeMainLoop::every(double seconds, std::function<void()> fn)
{
    return std::make_unique<Handle>(add(seconds, seconds, std::move(fn)));
}

void FakeMainLoop::schedule(double seconds, std::function<void()> fn)
{
    add(seconds, 0, std::move(fn));
}

LoopHoldHandle FakeMainLoop::hold()
{
    ++m_holds;
    return std::make_unique<Hold>(*this);
}

void FakeMainLoop::release()
{
    --m_holds;
    while (m_holds == 0 && !m_waiting.empty()) {
        auto fn = std::move(m_waiting.front());
        m_waiting.pop_front();
        fn();
    }
}

void FakeMainLoop::inOrder(std::function<void()> fn)
{
    if (m_holds > 0)
        m_waiting.push_back(std::move(fn));
    else
        fn();
}

bool FakeMainLoop::fireNext(qint64 until)
{
    m_calls.remove_if([](const auto &call) { return call->cancelled; });
    const auto next =
        std::min_element(m_calls.begin(), m_calls.end(), [](const auto &a, const auto &b) {
            return std::pair(a->due, a->order) < std::pair(b->due, b->order);
        });
    if (m_holds > 0 || next == m_calls.end() || (*next)->due > until)
        return false;
    const std::shared_ptr<Call> call = *next;
    m_elapsedMs = std::max(m_elapsedMs, call->due);
    if (call->interval > 0) {
        call->due = m_elapsedMs + call->interval;
        call->order = m_order++;
    } else {
        m_calls.erase(next);
    }
    call->fn();
    return true;
}

void FakeMainLoop::advance(double seconds)
{
    const qint64 until = m_elapsedMs + std::llround(seconds * 1000);
    while (fireNext(until)) { }
    m_elapsedMs = std::max(m_elapsedMs, until);
}

} // namespace moravel::testing
