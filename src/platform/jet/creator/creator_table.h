// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/creator/creator_definition.h"
#include "platform/jet/creator/creator_index.h"
#include "platform/jet/creator/creator_pages.h"
#include "platform/jet/creator/creator_record.h"
#include "platform/jet/creator/creator_spec.h"
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace kalvenor::jet::creating {

/// One table on its way into the file: rows go straight to data pages, index entries wait for the end.
class TableBuilder {
public:
    /// Takes the pages of the definition. The maps' pages come with reserveMaps(), before the first row.
    TableBuilder(PageStore &store, TableSpec spec);
    TableBuilder(const TableBuilder &) = delete;
    TableBuilder &operator=(const TableBuilder &) = delete;

    void reserveMaps();
    const TableSpec &spec() const { return m_spec; }
    std::uint32_t definitionPage() const { return m_definitionPages.front(); }
    std::uint32_t rowCount() const { return m_rows; }

    /// Throws Error(InvalidProcedureCall); no row is added then.
    void addRow(std::span<const NewValue> values);
    /// Throws Error(InvalidProcedureCall) where a unique index has a key twice.
    void sortIndexes();
    /// Writes indexes, maps and definition. The indexes must be sorted.
    void finish();

private:
    PageStore &m_store;
    TableSpec m_spec;
    std::vector<std::uint32_t> m_definitionPages;
    std::optional<UsageMaps> m_maps;
    RowPages m_data;
    RecordEncoder m_encoder;
    std::vector<IndexEntries> m_indexes;
    std::uint32_t m_rows = 0;
    std::int32_t m_lastAutonumber = 0;
};

} // namespace kalvenor::jet::creating
