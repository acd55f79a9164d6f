// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/textcodec.h"
#include <array>
#include <cstdint>
#include <optional>
#include <QStringView>
#include <span>
#include <vector>

namespace kalvenor::jet {

/// A pattern of Jet's LIKE: * ? # [list] [!list]; % and _ stand for themselves. Case does not count, accents do.
class LikePattern {
public:
    /// Throws Error(InvalidPattern) for an open "[" or a range whose ends descend.
    explicit LikePattern(QStringView pattern);
    /// The whole text must match. Linear in the text for each run between stars; never exponential.
    bool matches(QStringView text) const;

private:
    friend class ByteLike;
    struct Range {
        std::uint32_t first;
        std::uint32_t last;
    };
    struct Token {
        enum class Kind : std::uint8_t { Character, AnyOne, AnyRun, Digit, List, NotInList };
        Kind kind = Kind::AnyOne;
        std::uint32_t identity = 0;   ///< Character
        std::uint32_t firstRange = 0; ///< List: into m_ranges
        std::uint32_t rangeCount = 0;
    };
    void addList(QStringView pattern, QStringView list);
    bool matchesOne(const Token &token, char16_t unit) const;
    std::vector<Token> m_tokens;
    std::vector<Range> m_ranges; ///< by generalRank
};

/// A pattern made ready for many texts of one byte a character. It follows all ways through the pattern at once, a bit
/// each, so that a text is read once and never again.
class ByteLike {
public:
    /// `characters`: what each byte stands for.
    ByteLike(const LikePattern &pattern, const ByteCharacters &characters);

    /// As LikePattern::matches; nothing where the text has a zero byte before all is decided, or the pattern is too
    /// long.
    std::optional<bool> matches(std::span<const std::uint8_t> text) const
    {
        std::uint64_t states = m_start;
        if (states == 0)
            return std::nullopt;
        for (const std::uint8_t byte : text) {
            if (byte == 0)
                return std::nullopt;
            states = (states << 1 & m_accepts[byte]) | (states & m_stays);
            if (states == 0)
                return false;
        }
        return (states & m_end) != 0;
    }

private:
    // Bit i of a set: the first i tokens other than stars are passed.
    std::array<std::uint64_t, 256> m_accepts{}; ///< for each byte the places it can be the step to
    std::uint64_t m_start = 0;                  ///< 0 for a pattern that does not fit
    std::uint64_t m_stays = 0;                  ///< where a star lets any character pass
    std::uint64_t m_end = 0;
};

} // namespace kalvenor::jet
