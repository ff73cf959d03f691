// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace moravel::server {

/// Times in milliseconds and numbers that connections may take.
struct ConnectionLimits
{
    int readMs = 2000; ///< Without a byte of a request that has begun.
    int requestMs = 5000; ///< For a whole request, however steadily it drips.
    int idleMs = 5000; ///< Between two requests.
    int writeMs = 10'000; ///< Without the client taking a byte.
    int answerMs = 300'000; ///< For a whole answer, however steadily it is taken.
    std::size_t connections =
        8192; ///< At once; beyond it the oldest that asks nothing goes, else the new one.
};

} // namespace moravel::server
