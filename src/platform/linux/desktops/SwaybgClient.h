// SPDX-License-Identifier: MIT
// A background client of our own, one process for each output.
#pragma once

#include "platform/DesktopPictures.h"

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

} // namespace moravel::swaybg
