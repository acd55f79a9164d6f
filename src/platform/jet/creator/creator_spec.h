// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/creator/creator.h"
#include "platform/jet/reader/format.h"
#include <cstdint>
#include <QString>
#include <vector>

// What a table that is being made looks like, in the format's own terms.
namespace kalvenor::jet::creating {

/// Flag byte of a column's descriptor.
enum ColumnFlag : std::uint8_t {
    fixedLength = 0x01,
    nullable = 0x02,
    autonumber = 0x04,
    systemColumn = 0x10,
    ownerColumn = 0x20,
};
/// Extra flag byte: text may be stored compressed.
inline constexpr std::uint8_t Compressible = 0x01;

/// Flag byte of a physical index.
enum IndexFlag : std::uint8_t { uniqueKeys = 0x01, ignoresNulls = 0x02, requiresValues = 0x08, alwaysSet = 0x80 };

struct IndexSpec {
    QString name;
    std::vector<std::uint16_t> columns; ///< numbers
    std::uint8_t flags = alwaysSet;
    bool primary = false;
};

/// Column numbers are places in the list.
struct TableSpec {
    QString name;
    bool system = false;
    std::vector<Column> columns;
    std::vector<IndexSpec> indexes;
    std::uint16_t variableColumns = 0;
    std::uint16_t fixedBytes = 0; ///< all fixed columns together
};

constexpr bool isLongValue(ColumnType type)
{
    return type == ColumnType::Memo || type == ColumnType::Ole;
}

/// Gives the columns their numbers, variable indexes and fixed offsets. A column is fixed as its flag says.
void layOut(TableSpec &spec);

/// Checks and lays out a user's table. Throws Error(InvalidProcedureCall).
TableSpec userTable(const QString &name, const std::vector<NewColumn> &columns, const std::vector<NewIndex> &indexes);

} // namespace kalvenor::jet::creating
