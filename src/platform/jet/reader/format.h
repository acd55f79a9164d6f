// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QString>
#include <vector>

// The parts of a Jet table that its definition names. Public sources for the format: the HACKING notes of mdbtools
// and the documentation of Jackcess.
namespace kalvenor::jet {

enum class Version : std::uint8_t { Jet3, Jet4 };

enum class ColumnType : std::uint8_t {
    Unreadable = 0, ///< a type code this reader does not know; its values read as null
    Boolean = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Money = 5,
    Float = 6,
    Double = 7,
    DateTime = 8,
    Binary = 9,
    Text = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Numeric = 16,
};

struct Column {
    QString name;
    ColumnType type = ColumnType::Unreadable;
    std::uint16_t number = 0;        ///< place in the null mask
    std::uint16_t variableIndex = 0; ///< place among the variable columns
    std::uint16_t fixedOffset = 0;   ///< from the start of the fixed data
    std::uint16_t length = 0;        ///< bytes; 0 for Memo and Ole
    std::uint8_t flags = 0;          ///< 0x01 fixed, 0x04 autonumber
    std::uint8_t extraFlags = 0;     ///< 0x01 compressible, 0xc0 calculated
    std::uint8_t scale = 0;          ///< Numeric only

    bool isFixed() const { return (flags & 0x01) != 0; }
    bool isCalculated() const { return (extraFlags & 0xc0) == 0xc0; }
};

struct IndexColumn {
    std::uint16_t columnNumber = 0; ///< Column::number
    bool ascending = true;
};

/// A logical index together with the physical one behind it.
struct Index {
    QString name;
    std::vector<IndexColumn> columns;
    bool unique = false;
    bool ignoresNulls = false;
    bool primary = false;
    std::uint32_t rootPage = 0;
};

} // namespace kalvenor::jet
