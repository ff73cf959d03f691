// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace moravel::server::art {

/// SplitMix64 (Steele, Lea, Flood, "Fast splittable pseudorandom number generators", OOPSLA 2014;
/// the constants are Sebastiano Vigna's public-domain version). The same numbers on every machine,
/// which the distributions of the standard library do not promise.
class Random
{
public:
    explicit Random(std::uint64_t seed) : m_state(seed) { }

    std::uint64_t next()
    {
        std::uint64_t z = (m_state += 0x9e3779b97f4a7c15ULL);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
        return z ^ (z >> 31);
    }

    /// A number in [0, 1).
    double unit() { return static_cast<double>(next() >> 11) * 0x1p-53; }

    double between(double low, double high) { return low + (high - low) * unit(); }

    float betweenF(float low, float high) { return static_cast<float>(between(low, high)); }

    bool chance(double probability) { return unit() < probability; }

    /// An index below @p count, which must not be 0.
    std::size_t below(std::size_t count) { return static_cast<std::size_t>(next() % count); }

private:
    std::uint64_t m_state;
};

/// Deals 0 … @p count − 1 in shuffled rounds, one card a day, so that neighbouring days differ and
/// no card stays away for long. @p salt separates the decks of different decisions.
inline std::size_t cardOfDay(std::int64_t julianDay, std::size_t count, std::uint64_t salt)
{
    const auto day = static_cast<std::uint64_t>(julianDay + (std::int64_t(1) << 40));
    Random random(day / count * 0x2545f4914f6cdd1dULL + salt);
    std::vector<std::size_t> deck(count);
    for (std::size_t i = 0; i < count; ++i)
        deck[i] = i;
    for (std::size_t i = count; i > 1; --i)
        std::swap(deck[i - 1], deck[random.below(i)]);
    return deck[day % count];
}

} // namespace moravel::server::art
