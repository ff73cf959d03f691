// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MainLoop.h"

#include <QObject>
#include <QTimer>

#include <map>
#include <memory>
#include <utility>

namespace moravel {

/// The real main loop: one QTimer, armed for the call that is due next.
///
/// Delays are measured on a clock that goes on while the computer sleeps and that nobody can set: a
/// call that fell due during a sleep runs within a minute of waking, and changing the wall clock
/// moves no call. One call runs a turn of the event loop, so that the window answers in between.
///
/// An answer that inOrder() had to keep back runs in its own turn too, at the place in due order
/// that its arrival gives it. Handles may outlive the loop.
class QtMainLoop : public QObject, public MainLoop
{
public:
    QtMainLoop();
    ~QtMainLoop() override;

    QDateTime now() const override;
    DelayedCallHandle after(double seconds, std::function<void()> fn) override;
    DelayedCallHandle every(double seconds, std::function<void()> fn) override;
    void schedule(double seconds, std::function<void()> fn) override;
    LoopHoldHandle hold() override;
    void inOrder(std::function<void()> fn) override;

private:
    struct Call;
    class Handle;
    class Hold;
    using Key =
        std::pair<qint64, quint64>; ///< Nanoseconds at which it is due, and order of asking.

    std::shared_ptr<Call> add(qint64 delay, std::shared_ptr<Call> call);
    void cancel(const std::shared_ptr<Call> &call);
    void release();
    void arm();
    void fire();

    QTimer m_timer;
    std::map<Key, std::shared_ptr<Call>> m_calls;
    quint64 m_order = 0;
    int m_holds = 0;
    int m_waitingAnswers = 0;
};

} // namespace moravel
