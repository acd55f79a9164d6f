// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

namespace kalvenor::demo {

/// A small generator (splitmix64, Steele, Lea and Flood 2014) whose numbers are the same with every library.
class Random {
public:
    explicit Random(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t next()
    {
        m_state += 0x9e3779b97f4a7c15u;
        std::uint64_t z = m_state;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        return z ^ (z >> 31);
    }
    /// 0 … bound-1; bound at least 1.
    int below(int bound) { return static_cast<int>(((next() >> 32) * static_cast<std::uint64_t>(bound)) >> 32); }
    /// first … last, both included.
    int between(int first, int last) { return first + below(last - first + 1); }
    /// True in so many of 10,000 cases.
    bool chance(int per10000) { return below(10000) < per10000; }
    template <typename T>
    const T &pick(std::span<const T> values)
    {
        return values[static_cast<std::size_t>(below(static_cast<int>(values.size())))];
    }

private:
    std::uint64_t m_state;
};

} // namespace kalvenor::demo
