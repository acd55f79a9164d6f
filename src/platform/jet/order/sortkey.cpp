// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/order/sortkey.h"

#include "platform/basic/error.h"
#include "platform/jet/order/sortkey_table.h"
#include <algorithm>
#include <array>
#include <cstring>
#include <QChar>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

constexpr qsizetype KeyedUnits = 255; ///< Jet looks no further into a text

general::Code codeOf(char16_t unit)
{
    if (unit < general::Latin.size())
        return general::Latin[unit];
    const auto *found =
        std::lower_bound(general::FurtherCodes.begin(), general::FurtherCodes.end(), unit,
                         [](const general::Further &entry, char16_t value) { return entry.unit < value; });
    if (found != general::FurtherCodes.end() && found->unit == unit)
        return found->code;
    const auto folded = static_cast<char16_t>(QChar::toCaseFolded(static_cast<char32_t>(unit)));
    if (folded < general::Latin.size())
        return general::Latin[folded];
    return general::UnlistedMark | static_cast<general::Code>(folded) << 8;
}

bool isListed(char16_t unit)
{
    if (unit < general::Latin.size())
        return unit != 0;
    return std::any_of(general::FurtherCodes.begin(), general::FurtherCodes.end(),
                       [unit](const general::Further &entry) { return entry.unit == unit; });
}

int primaryLength(general::Code code)
{
    if ((code >> 24) == 0)
        return 0;
    if ((code & 0xFF000000) == general::UnlistedMark)
        return 3;
    return (code & 0x00FF0000) != 0 ? 2 : 1;
}

bool isIgnorable(general::Code code)
{
    return (code >> 24) == 0;
}

std::uint8_t accentOf(general::Code code)
{
    return (code & 0xFF000000) == general::UnlistedMark ? std::uint8_t{0} : static_cast<std::uint8_t>(code >> 8);
}

QStringView keyedPart(QStringView text)
{
    while (text.endsWith(u' '))
        text.chop(1);
    return text.left(KeyedUnits);
}

/// What follows the primary bytes of a key: 01, accents, tie breakers, 00.
struct Tail {
    explicit Tail(QStringView text)
    {
        std::array<std::uint8_t, KeyedUnits> accents;
        std::array<std::uint8_t, 4 * KeyedUnits> ties;
        std::size_t coded = 0;
        std::size_t accentCount = 0;
        std::size_t tieCount = 0;
        for (const QChar character : text) {
            const general::Code code = codeOf(character.unicode());
            if (isIgnorable(code)) {
                const auto position = static_cast<std::uint16_t>(0x8000 | (7 + 4 * coded));
                ties[tieCount++] = static_cast<std::uint8_t>(position >> 8);
                ties[tieCount++] = static_cast<std::uint8_t>(position);
                ties[tieCount++] = 0x06;
                ties[tieCount++] = static_cast<std::uint8_t>(code);
                continue;
            }
            const std::uint8_t accent = accentOf(code);
            accents[coded++] = accent != 0 ? accent : std::uint8_t{0x02};
            if (accent != 0)
                accentCount = coded;
        }
        append({0x01});
        std::copy_n(accents.begin(), accentCount, bytes.begin() + size);
        size += accentCount;
        if (tieCount > 0) {
            append({0x01, 0x01, 0x01});
            std::copy_n(ties.begin(), tieCount, bytes.begin() + size);
            size += tieCount;
        }
        append({0x00});
    }

    void append(std::initializer_list<std::uint8_t> some)
    {
        std::copy(some.begin(), some.end(), bytes.begin() + size);
        size += some.size();
    }

    std::array<std::uint8_t, 5 * KeyedUnits + 5> bytes;
    std::size_t size = 0;
};

/// The primary bytes of a text, one at a time.
class PrimaryBytes {
public:
    explicit PrimaryBytes(QStringView text) : m_text(text) {}

    static constexpr int Exhausted = -1;
    int next()
    {
        while (m_pendingCount == 0) {
            if (m_position == m_text.size())
                return Exhausted;
            m_pending = codeOf(m_text[m_position++].unicode());
            m_pendingCount = primaryLength(m_pending);
        }
        const auto byte = static_cast<int>(m_pending >> 24);
        m_pending <<= 8;
        --m_pendingCount;
        return byte;
    }

private:
    QStringView m_text;
    qsizetype m_position = 0;
    general::Code m_pending = 0;
    int m_pendingCount = 0;
};

} // namespace

void appendGeneralKey(QStringView text, std::vector<std::uint8_t> &key, Unlisted unlisted)
{
    const QStringView part = keyedPart(text);
    for (const QChar character : part) {
        if (unlisted == Unlisted::Refused && !isListed(character.unicode())) {
            throw basic::Error(basic::Fault::CharacterNotOrdered, {},
                               {u"%1"_s.arg(static_cast<uint>(character.unicode()), 4, 16, QLatin1Char('0')), part});
        }
    }
    std::array<std::uint8_t, 3 * KeyedUnits> primary;
    std::size_t size = 0;
    bool isPlain = true; // no accent, nothing ignorable
    for (const QChar character : part) {
        const general::Code code = codeOf(character.unicode());
        const auto length = static_cast<std::size_t>(primaryLength(code));
        for (std::size_t i = 0; i < length; ++i)
            primary[size++] = static_cast<std::uint8_t>(code >> (24 - 8 * i));
        isPlain = isPlain && length > 0 && accentOf(code) == 0;
    }
    key.insert(key.end(), primary.begin(), primary.begin() + static_cast<std::ptrdiff_t>(size));
    if (isPlain) {
        key.insert(key.end(), {0x01, 0x00});
        return;
    }
    const Tail tail(part);
    key.insert(key.end(), tail.bytes.begin(), tail.bytes.begin() + static_cast<std::ptrdiff_t>(tail.size));
}

QByteArray generalKey(QStringView text, Unlisted unlisted)
{
    std::vector<std::uint8_t> key;
    appendGeneralKey(text, key, unlisted);
    return {reinterpret_cast<const char *>(key.data()), static_cast<qsizetype>(key.size())};
}

int compareGeneral(QStringView left, QStringView right)
{
    left = keyedPart(left);
    right = keyedPart(right);
    const qsizetype shorter = std::min(left.size(), right.size());
    qsizetype same = 0;
    while (same < shorter && left[same] == right[same])
        ++same;
    if (same == left.size() && same == right.size())
        return 0;

    PrimaryBytes leftBytes(left.mid(same));
    PrimaryBytes rightBytes(right.mid(same));
    int leftByte = 0;
    do {
        leftByte = leftBytes.next();
        const int rightByte = rightBytes.next();
        if (leftByte != rightByte)
            return leftByte < rightByte ? -1 : 1;
    } while (leftByte != PrimaryBytes::Exhausted);

    const Tail leftTail(left);
    const Tail rightTail(right);
    return std::memcmp(leftTail.bytes.data(), rightTail.bytes.data(), std::min(leftTail.size, rightTail.size));
}

// Every code of the table belongs to one character and its other case, so that it serves for both.
std::uint32_t likeIdentity(char16_t unit)
{
    return codeOf(unit);
}

std::uint32_t generalRank(char16_t unit)
{
    return codeOf(unit);
}

} // namespace kalvenor::jet
