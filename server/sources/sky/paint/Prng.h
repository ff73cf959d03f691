// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace moravel::server::sky {

/// splitmix64 by Sebastiano Vigna (public domain, https://prng.di.unimi.it/splitmix64.c): the same
/// numbers on every machine, which the standard library's distributions do not promise.
class Prng
{
public:
    constexpr explicit Prng(std::uint64_t seed) : m_state(seed) { }

    constexpr std::uint64_t next()
    {
        std::uint64_t z = (m_state += 0x9e3779b97f4a7c15);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }

    /// In [0, 1).
    constexpr float uniform() { return static_cast<float>(next() >> 40) * 0x1p-24f; }

    constexpr float uniform(float low, float high) { return low + (high - low) * uniform(); }

private:
    std::uint64_t m_state;
};

} // namespace moravel::server::sky
