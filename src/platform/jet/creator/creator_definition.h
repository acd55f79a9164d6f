// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/creator/creator_pages.h"
#include "platform/jet/creator/creator_spec.h"
#include <cstdint>
#include <span>
#include <vector>

namespace kalvenor::jet::creating {

/// What a definition says beside the table's shape. All zero while its length is all that is asked for.
struct DefinitionFacts {
    std::uint32_t rows = 0;
    std::int32_t lastAutonumber = 0;
    RowAddress ownedMap = 0;
    RowAddress freeMap = 0;
    struct IndexFacts {
        std::uint32_t entries = 0;
        RowAddress map = 0;
        std::uint32_t root = 0;
    };
    std::vector<IndexFacts> indexes; ///< as many as the table has
    struct LongValueFacts {
        std::uint16_t column = 0;
        RowAddress ownedMap = 0;
        RowAddress freeMap = 0;
    };
    std::vector<LongValueFacts> longValues;
};

/// Pages that the definition of a table takes.
std::uint32_t definitionPageCount(const TableSpec &spec);
/// Writes the definition into these pages, of which there are as many as it takes.
void writeDefinition(PageStore &store, std::span<const std::uint32_t> pages, const TableSpec &spec,
                     const DefinitionFacts &facts);

} // namespace kalvenor::jet::creating
