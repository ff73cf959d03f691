// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace moravel {

/// Turns the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) into a call on the main loop, so
/// that it ends as from its menu. A second signal ends it at once. One object at a time.
class EndSignals
{
public:
    /// A signal that is ignored already (nohup) stays ignored.
    explicit EndSignals(std::function<void()> asked);
    ~EndSignals();
    Q_DISABLE_COPY_MOVE(EndSignals)

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
    int m_pipe[2] = {-1, -1};
};

} // namespace moravel
