// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <QStringView>

namespace kalvenor::jet::creating {

/// A whole number of up to 28 digits as Numeric columns hold it: the most significant group first.
struct Decimal {
    bool negative = false;
    std::array<std::uint32_t, 4> groups{};
};

/// The number × 10^scale of a decimal text such as "-12.5"; nothing for another text, for more than 28 digits and for
/// more decimals than the scale (zeros excepted).
inline std::optional<Decimal> parseDecimal(QStringView text, int scale)
{
    constexpr int maximumDigits = 28;
    Decimal number;
    int digits = 0;
    const auto append = [&](std::uint32_t digit) {
        if (digits > 0 || digit != 0)
            ++digits;
        std::uint64_t carry = digit;
        for (std::size_t group = number.groups.size(); group > 0; --group) {
            carry += std::uint64_t{10} * number.groups[group - 1];
            number.groups[group - 1] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
    };
    if (text.startsWith(u'-')) {
        number.negative = true;
        text = text.mid(1);
    }
    const qsizetype point = text.indexOf(u'.');
    const QStringView whole = point < 0 ? text : text.left(point);
    QStringView decimals = point < 0 ? QStringView() : text.mid(point + 1);
    while (decimals.size() > scale && decimals.endsWith(u'0'))
        decimals.chop(1);
    if (whole.isEmpty() || decimals.size() > scale)
        return std::nullopt;
    for (const QStringView part : {whole, decimals}) {
        for (const QChar character : part) {
            if (character < u'0' || character > u'9')
                return std::nullopt;
            append(character.unicode() - static_cast<std::uint32_t>(u'0'));
            if (digits > maximumDigits)
                return std::nullopt;
        }
    }
    for (qsizetype i = decimals.size(); i < scale; ++i)
        append(0);
    if (digits > maximumDigits)
        return std::nullopt;
    if (digits == 0)
        number.negative = false;
    return number;
}

inline std::optional<std::int64_t> toInt64(const Decimal &number)
{
    const std::uint64_t magnitude = std::uint64_t{number.groups[2]} << 32 | number.groups[3];
    const std::uint64_t limit =
        static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) + (number.negative ? 1 : 0);
    if (number.groups[0] != 0 || number.groups[1] != 0 || magnitude > limit)
        return std::nullopt;
    return static_cast<std::int64_t>(number.negative ? 0 - magnitude : magnitude);
}

} // namespace kalvenor::jet::creating
