// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <functional>
#include <memory>

namespace moravel {

/// A delayed or repeating call that is still due. Destroying the handle cancels the call.
class DelayedCall
{
public:
    virtual ~DelayedCall() = default;
};

using DelayedCallHandle = std::unique_ptr<DelayedCall>;

/// Keeps the delayed calls of the main loop waiting until it is destroyed.
class LoopHold
{
public:
    virtual ~LoopHold() = default;
};

using LoopHoldHandle = std::unique_ptr<LoopHold>;

/// The one source of time and of delayed work. Main thread only.
///
/// Calls fire in the order in which they are due, never from within the call that asked for them.
/// The time zone of now() is the system's local one.
class MainLoop
{
public:
    virtual ~MainLoop() = default;

    /// Returns the present moment.
    virtual QDateTime now() const = 0;

    /// Runs @p fn once, @p seconds from now (0 or more).
    [[nodiscard]] virtual DelayedCallHandle after(double seconds, std::function<void()> fn) = 0;

    /// Runs @p fn every @p seconds (more than 0), the first time @p seconds from now.
    [[nodiscard]] virtual DelayedCallHandle every(double seconds, std::function<void()> fn) = 0;

    /// Runs @p fn once like after(), without a handle: the call cannot be cancelled.
    virtual void schedule(double seconds, std::function<void()> fn) = 0;

    /// Makes delayed calls wait until every handle given out is destroyed; what fell due meanwhile
    /// then runs in due order. The window goes on painting and answering.
    [[nodiscard]] virtual LoopHoldHandle hold() = 0;

    /// Runs @p fn at once, or, while the loop is held, as soon as it is released. For answers from
    /// outside (a finished request) that must not overtake the work that holds the loop.
    virtual void inOrder(std::function<void()> fn) = 0;
};

} // namespace moravel
