// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace moravel {

/// What comes after an operation that may have to wait for an answer; may be empty. The order of effects
/// is that of plain calls: an operation calls it when all of its own work, and all work that it set off
/// and waits for, is done.
using Then = std::function<void()>;

inline void run(const Then &then)
{
    if (then)
        then();
}

} // namespace moravel
