// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/order/like.h"
#include "platform/jet/reader/table.h"
#include <cstdint>
#include <utility>

namespace kalvenor::jet {

/// Compares the values of one Text or Memo column with a pattern, row after row. For one thread.
class LikeScan {
public:
    /// The table must outlive it.
    LikeScan(const Table &table, int column, LikePattern pattern)
        : m_table(table), m_column(table.columns()[static_cast<std::size_t>(column)]), m_index(column),
          m_pattern(std::move(pattern)), m_bytes(m_pattern, table.image().byteCharacters())
    {
    }

    /// Null matches nothing.
    bool matches(std::uint32_t row)
    {
        if (m_column.type == ColumnType::Text) {
            const auto stored = Record(m_table.layout(), m_table.record(row)).field(m_column);
            if (!stored)
                return false;
            if (const auto text = m_table.image().byteText(*stored)) {
                if (const auto matched = m_bytes.matches(*text))
                    return *matched;
            }
        }
        return !m_table.isNull(row, m_index) && m_pattern.matches(m_table.text(row, m_index, m_buffer));
    }

private:
    const Table &m_table;
    const Column &m_column;
    int m_index;
    LikePattern m_pattern;
    ByteLike m_bytes;
    QString m_buffer;
};

} // namespace kalvenor::jet
