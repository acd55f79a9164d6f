// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// Little-endian numbers out of bytes that nobody vouches for.
namespace kalvenor::jet {

inline std::uint16_t load16(const std::uint8_t *at)
{
    return static_cast<std::uint16_t>(at[0] | at[1] << 8);
}

inline std::uint32_t load32(const std::uint8_t *at)
{
    return static_cast<std::uint32_t>(at[0]) | static_cast<std::uint32_t>(at[1]) << 8 |
           static_cast<std::uint32_t>(at[2]) << 16 | static_cast<std::uint32_t>(at[3]) << 24;
}

inline std::uint64_t load64(const std::uint8_t *at)
{
    return load32(at) | static_cast<std::uint64_t>(load32(at + 4)) << 32;
}

/// Walks forwards over bytes. It never throws: a read past the end gives 0 or nothing and latches failed(), so that a
/// reader asks once after a whole structure.
class Cursor {
public:
    explicit Cursor(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    bool failed() const { return m_failed; }
    std::size_t position() const { return m_position; }

    std::span<const std::uint8_t> bytes(std::size_t count)
    {
        if (m_failed || count > m_bytes.size() - m_position) {
            m_failed = true;
            return {};
        }
        const auto result = m_bytes.subspan(m_position, count);
        m_position += count;
        return result;
    }
    void skip(std::size_t count) { bytes(count); }
    void moveTo(std::size_t position)
    {
        m_failed = m_failed || position > m_bytes.size();
        m_position = m_failed ? m_position : position;
    }

    std::uint8_t u8()
    {
        const auto at = bytes(1);
        return at.empty() ? std::uint8_t{0} : at[0];
    }
    std::uint16_t u16()
    {
        const auto at = bytes(2);
        return at.empty() ? std::uint16_t{0} : load16(at.data());
    }
    std::uint32_t u32()
    {
        const auto at = bytes(4);
        return at.empty() ? 0U : load32(at.data());
    }

private:
    std::span<const std::uint8_t> m_bytes;
    std::size_t m_position = 0;
    bool m_failed = false;
};

} // namespace kalvenor::jet
