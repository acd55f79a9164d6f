// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include "platform/jet/reader/format.h"
#include "platform/jet/reader/image.h"
#include <cstdint>
#include <QString>
#include <vector>

namespace kalvenor::jet {

/// A table definition as its pages state it.
struct Definition {
    std::vector<Column> columns; ///< by number, each number and name once
    std::vector<Index> indexes;
    std::vector<std::uint16_t> indexedColumns; ///< numbers of all physical indexes, ascending
    std::uint32_t rowCount = 0;                ///< stated; only a hint
    std::uint16_t greatestColumns = 0;
    std::uint16_t variableColumns = 0;
    std::uint32_t ownedPages = 0;          ///< row pointer of the usage map
    std::vector<std::uint32_t> indexPages; ///< the root page of each index, and
    std::vector<std::uint32_t> otherMaps;  ///< row pointers of the maps of indexes and of long values
    std::vector<basic::Error> damage;      ///< passed over; without a place
};

/// Throws Error(Damaged), its place naming `table` and the page.
Definition readDefinition(const Image &image, const QString &table, std::uint32_t firstPage);

} // namespace kalvenor::jet
