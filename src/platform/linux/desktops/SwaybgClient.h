// SPDX-License-Identifier: MIT
// A background client of our own, one process for each output.
#pragma once

#include "platform/DesktopPictures.h"

#include <QList>
#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <optional>

namespace moravel::swaybg {

/// A process that is known for certain, although its number may be given anew.
struct Process
{
    qint64 id = 0;
    qint64 start = 0; ///< Clock ticks since the machine's start.
    bool operator==(const Process &) const = default;
};

/// Starts a client that outlives this program; nothing when it is not installed.
std::optional<Process> launch(const QString &output, const QString &path, DesktopScaling scaling);

/// Tells whether that very process still runs.
bool isAlive(const Process &process);

/// Asks the process to end, if it is still that one.
void end(const Process &process);

/// Running clients of this session that draw on @p output and are none of @p ours. The compositor starts
/// one where its own configuration names a background.
QList<Process> rivals(const QString &output, const QList<Process> &ours);

/// Tells of the end of a process, without asking for it.
class EndWatch
{
public:
    /// @param ended called once, later; must not delete the watch.
    EndWatch(const Process &process, std::function<void()> ended);
    ~EndWatch();

    const Process &process() const { return m_process; }

private:
    Process m_process;
    int m_handle;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace moravel::swaybg
