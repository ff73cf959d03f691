// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace moravel {

/// A source of random numbers; not for secrets.
class Random
{
public:
    virtual ~Random() = default;

    /// Returns a number evenly distributed over all 32-bit values.
    virtual std::uint32_t next() = 0;
};

} // namespace moravel
