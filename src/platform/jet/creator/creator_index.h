// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/creator/creator_pages.h"
#include "platform/jet/creator/creator_spec.h"
#include <cstdint>
#include <span>
#include <vector>

namespace kalvenor::jet::creating {

/// The entries of one index, collected row by row, then sorted and written as a tree of pages.
class IndexEntries {
public:
    /// The specs must live as long as the entries.
    IndexEntries(const TableSpec &table, const IndexSpec &index);

    /// Makes the key of a row whose record was just made, from its values and its fixed bytes. Throws
    /// Error(InvalidProcedureCall) for a text outside the sort order and for null in an index that requires values.
    void prepare(std::span<const NewValue> values, const std::uint8_t *fixedData);
    /// Takes the prepared key for the row at this address.
    void add(RowAddress row);
    std::uint32_t count() const { return static_cast<std::uint32_t>(m_longs.size() + m_entries.size()); }

    /// Throws Error(InvalidProcedureCall) where a unique index has a key twice.
    void sort();

    struct Tree {
        std::uint32_t root = 0;
        std::vector<std::uint32_t> pages; ///< ascending
    };
    /// The entries must be sorted. `owner` is the page of the table's definition.
    Tree write(PageStore &store, std::uint32_t owner) const;

private:
    struct Entry {
        std::uint64_t start; ///< in m_keys
        std::uint16_t length;
        bool hasNull;
        RowAddress row;
    };
    std::span<const std::uint8_t> key(const Entry &entry) const { return {m_keys.data() + entry.start, entry.length}; }
    void appendKey(const Column &column, const NewValue &value, const std::uint8_t *fixedData);
    [[noreturn]] void refuseDuplicate(std::span<const std::uint8_t> key) const;

    const TableSpec *m_table;
    const IndexSpec *m_index;
    // A key of one Long and its row need 8 bytes; the other keys (null among them) lie one behind the other.
    std::vector<std::uint64_t> m_longs;
    std::vector<std::uint8_t> m_keys;
    std::vector<Entry> m_entries;
    std::vector<std::uint8_t> m_prepared;
    bool m_preparedNull = false;
    bool m_isSingleLong = false;
};

} // namespace kalvenor::jet::creating
