// SPDX-License-Identifier: MIT
#pragma once

#include "support/Answers.h"

#include "platform/MainLoop.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <list>

namespace moravel::testing {

/// A main loop on a virtual clock: a day passes in milliseconds, calls fire in due order.
class FakeMainLoop : public MainLoop
{
public:
    explicit FakeMainLoop(const QDateTime &start = QDateTime(QDate(2011, 7, 4), QTime(9, 30)))
        : m_start(start)
    { }

    QDateTime now() const override { return m_start.addMSecs(m_elapsedMs); }

    DelayedCallHandle after(double seconds, std::function<void()> fn) override
    {
        return handleOf(add(seconds, 0, std::move(fn)));
    }

    DelayedCallHandle every(double seconds, std::function<void()> fn) override
    {
        return handleOf(add(seconds, seconds, std::move(fn)));
    }

    void schedule(double seconds, std::function<void()> fn) override
    {
        add(seconds, 0, std::move(fn));
    }

    LoopHoldHandle hold() override
    {
        ++m_holds;
        return std::make_unique<AtEnd<LoopHold>>([this] { release(); });
    }

    void inOrder(std::function<void()> fn) override
    {
        if (m_holds > 0)
            m_waiting.push_back(std::move(fn));
        else
            fn();
    }

    /// Lets @p seconds pass and fires what falls due, in order.
    void advance(double seconds)
    {
        const qint64 until = m_elapsedMs + std::llround(seconds * 1000);
        while (fireNext(until)) { }
        m_elapsedMs = std::max(m_elapsedMs, until);
    }

    bool isHeld() const { return m_holds > 0; }

private:
    struct Call
    {
        qint64 due = 0, interval = 0;
        quint64 order = 0;
        std::function<void()> fn;
        bool cancelled = false;
    };

    using CallPointer = std::shared_ptr<Call>;

    CallPointer add(double seconds, double interval, std::function<void()> fn)
    {
        return m_calls.emplace_back(
            std::make_shared<Call>(Call{m_elapsedMs + std::llround(seconds * 1000),
                                        std::llround(interval * 1000), m_order++, std::move(fn)}));
    }

    static DelayedCallHandle handleOf(const CallPointer &call)
    {
        return std::make_unique<AtEnd<DelayedCall>>([call] { call->cancelled = true; });
    }

    void release()
    {
        --m_holds;
        while (m_holds == 0 && !m_waiting.empty()) {
            auto fn = std::move(m_waiting.front());
            m_waiting.pop_front();
            fn();
        }
    }

    bool fireNext(qint64 until)
    {
        m_calls.remove_if([](const CallPointer &call) { return call->cancelled; });
        const auto next = std::min_element(
            m_calls.begin(), m_calls.end(), [](const CallPointer &a, const CallPointer &b) {
                return std::pair(a->due, a->order) < std::pair(b->due, b->order);
            });
        if (m_holds > 0 || next == m_calls.end() || (*next)->due > until)
            return false;
        const CallPointer call = *next;
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

    QDateTime m_start;
    qint64 m_elapsedMs = 0;
    quint64 m_order = 0;
    int m_holds = 0;
    std::list<CallPointer> m_calls;
    std::deque<std::function<void()>> m_waiting;
};

} // namespace moravel::testing
