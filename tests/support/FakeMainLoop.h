// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MainLoop.h"

#include <deque>
#include <list>

namespace moravel::testing {

/// A main loop on a virtual clock: a day passes in milliseconds, calls fire in due order.
class FakeMainLoop : public MainLoop
{
public:
    explicit FakeMainLoop(const QDateTime &start = QDateTime(QDate(2011, 7, 4), QTime(9, 30)));
    ~FakeMainLoop() override;

    QDateTime now() const override;
    DelayedCallHandle after(double seconds, std::function<void()> fn) override;
    DelayedCallHandle every(double seconds, std::function<void()> fn) override;
    void schedule(double seconds, std::function<void()> fn) override;
    LoopHoldHandle hold() override;
    void inOrder(std::function<void()> fn) override;

    /// Lets @p seconds pass and fires what falls due, in order.
    void advance(double seconds);

    /// Fires what is due now, without letting time pass.
    void settle() { advance(0); }

    bool isHeld() const { return m_holds > 0; }

    std::size_t pending() const { return m_calls.size(); }

private:
    struct Call;
    class Handle;
    class Hold;
    std::shared_ptr<Call> add(double seconds, double interval, std::function<void()> fn);
    void release();
    bool fireNext(qint64 until);

    QDateTime m_start;
    qint64 m_elapsedMs = 0;
    quint64 m_order = 0;
    int m_holds = 0;
    std::list<std::shared_ptr<Call>> m_calls;
    std::deque<std::function<void()>> m_waiting;
};

} // namespace moravel::testing
