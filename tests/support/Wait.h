// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>

namespace moravel::testing {

/// Runs the event loop until @p condition holds. Gives up after half a minute and returns false.
inline bool waitFor(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(30'000);
    QTimer tick; // wakes the loop, for conditions that come true in another thread
    tick.start(20);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return condition();
}

} // namespace moravel::testing

/// Runs the event loop until @p condition holds; ends the test when it never does.
#define MORAVEL_WAIT(condition)                                                                    \
    ASSERT_TRUE(moravel::testing::waitFor([&] { return (condition); })) << #condition
