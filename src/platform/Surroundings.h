// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace moravel {

/// What the machine and the session tell of themselves. What nobody tells is false.
struct SurroundingsState
{
    bool powerSaver = false; ///< The user saves the battery.
    bool lowBattery = false; ///< It is about to be empty.
    bool metered = false; ///< The connection is paid for by its bytes.
    bool offline = false; ///< There was a connection, and there is none now.
    bool fullScreen = false; ///< Another program fills the screen.
    bool locked = false; ///< The screen is locked or blanked.
    bool operator==(const SurroundingsState &) const = default;
};

/// Follows them by the signals of whoever knows; nothing is polled. Main thread only.
class Surroundings
{
public:
    virtual ~Surroundings() = default;

    virtual SurroundingsState state() const = 0;

    /// Called after each change of the state.
    std::function<void()> onChanged;
};

} // namespace moravel
