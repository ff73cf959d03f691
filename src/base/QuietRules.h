// SPDX-License-Identifier: MIT
// When nothing is done that the user did not ask for.
#pragma once

#include "platform/Surroundings.h"

#include <QString>

namespace moravel {

/// Why something waits; the first that holds, in the order of what the user notices most.
enum class QuietReason { None, Locked, FullScreen, Metered, PowerSaver, LowBattery, Offline };

struct QuietVerdict
{
    QuietReason download = QuietReason::None; ///< Why nothing is fetched unasked.
    QuietReason rotation = QuietReason::None; ///< Why the desktop is not changed unasked.

    bool mayDownload() const { return download == QuietReason::None; }

    bool mayRotate() const { return rotation == QuietReason::None; }

    bool operator==(const QuietVerdict &) const = default;
};

/// @param isWanted the user wants the program to be quiet at all. Without a connection nothing is fetched
/// either way: each request would fail.
QuietVerdict quietVerdict(const SurroundingsState &state, bool isWanted);

/// For the status line; empty for None.
QString waitingDownloadText(QuietReason reason);

/// In place of the time of the next change; empty for None.
QString waitingRotationText(QuietReason reason);

} // namespace moravel
