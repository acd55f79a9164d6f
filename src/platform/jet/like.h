// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QStringView>
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

} // namespace kalvenor::jet
