// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/cursor.h"
#include "platform/jet/reader/format.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

// One record: column count, fixed data, variable data, and from its end backwards the null mask, the number of
// variable columns and their offsets.
namespace kalvenor::jet {

/// What all records of a table have in common.
struct RecordLayout {
    Version version = Version::Jet4;
    bool hasVariable = false;          ///< the definition counts variable columns
    std::uint16_t greatestColumns = 0; ///< columns the table ever had
};

/// The bytes of a type of fixed size, 0 for those that vary.
constexpr std::size_t sizeOf(ColumnType type)
{
    switch (type) {
    case ColumnType::Byte:
        return 1;
    case ColumnType::Integer:
        return 2;
    case ColumnType::Long:
    case ColumnType::Float:
        return 4;
    case ColumnType::Money:
    case ColumnType::Double:
    case ColumnType::DateTime:
        return 8;
    case ColumnType::Guid:
        return 16;
    case ColumnType::Numeric:
        return 17;
    default:
        return 0;
    }
}

/// Never reads outside its bytes, whatever they hold; what does not fit reads as null.
class Record {
public:
    using Bytes = std::span<const std::uint8_t>;

    Record(const RecordLayout &layout, Bytes bytes) : m_bytes(bytes), m_layout(layout)
    {
        const std::size_t head = layout.version == Version::Jet4 ? 2 : 1;
        if (bytes.size() < head + 1)
            return;
        m_count = layout.version == Version::Jet4 ? load16(bytes.data()) : bytes[0];
        const std::size_t maskLength = (std::size_t{m_count} + 7) / 8;
        if (m_count == 0 || bytes.size() < head + maskLength)
            m_count = 0;
        else
            m_mask = bytes.size() - maskLength;
    }

    /// True where mask, counts and all offsets fit and ascend.
    bool isSound() const;

    /// Columns the table had when the row was written; 0 for a record that cannot be one.
    std::uint32_t columnCount() const { return m_count; }
    /// Columns of variable length the row has places for.
    std::size_t variableCount() const
    {
        const std::size_t width = head();
        if (!m_layout.hasVariable || m_mask < 2 * width)
            return 0;
        return width == 2 ? load16(&m_bytes[m_mask - 2]) : m_bytes[m_mask - 1];
    }
    bool has(std::uint16_t number) const { return number < m_count; }
    /// The byte of the null mask that holds the column's bit (number mod 8). Only where has(number).
    std::size_t maskByte(std::uint16_t number) const { return m_mask + number / 8; }
    bool bit(std::uint16_t number) const { return has(number) && (m_bytes[maskByte(number)] >> (number % 8) & 1) != 0; }

    /// The value's bytes; nothing for null and for what does not fit in the record. Not for Yes/No.
    std::optional<Bytes> field(const Column &column) const
    {
        if (!bit(column.number))
            return std::nullopt;
        return column.isFixed() ? fixedField(column) : variableField(column.variableIndex);
    }

private:
    std::size_t head() const { return m_layout.version == Version::Jet4 ? 2 : 1; }

    std::optional<Bytes> fixedField(const Column &column) const
    {
        const std::size_t ofType = sizeOf(column.type);
        const std::size_t length = ofType != 0 ? ofType : column.length;
        const std::size_t start = head() + column.fixedOffset;
        if (start + length > m_mask)
            return std::nullopt;
        return m_bytes.subspan(start, length);
    }
    std::optional<Bytes> variableField(std::uint32_t index) const
    {
        return m_layout.version == Version::Jet4 ? variableField4(index) : variableField3(index);
    }
    std::optional<Bytes> variableField4(std::uint32_t index) const
    {
        if (!m_layout.hasVariable || m_mask < 2)
            return std::nullopt;
        const std::size_t count = load16(&m_bytes[m_mask - 2]);
        if (index >= count || m_mask < 2 + 2 * (count + 1))
            return std::nullopt;
        const std::size_t first = m_mask - 4 - 2 * std::size_t{index};
        return between(load16(&m_bytes[first]), load16(&m_bytes[first - 2]));
    }
    std::optional<Bytes> variableField3(std::uint32_t index) const;
    std::optional<Bytes> between(std::size_t start, std::size_t end) const
    {
        if (start > end || end > m_bytes.size())
            return std::nullopt;
        return m_bytes.subspan(start, end - start);
    }

    /// The place of Jet 3's offset table: entry i at `entry0 - i`, `jumps` values below `jumpTop`.
    struct Offsets3 {
        std::size_t count = 0;
        std::size_t entry0 = 0;
        std::size_t jumpTop = 0;
        std::size_t jumps = 0;
    };
    std::optional<Offsets3> offsets3() const;
    std::size_t offset3(const Offsets3 &offsets, std::size_t entry) const;

    Bytes m_bytes;
    const RecordLayout &m_layout;
    std::uint32_t m_count = 0;
    std::size_t m_mask = 0;
};

} // namespace kalvenor::jet
