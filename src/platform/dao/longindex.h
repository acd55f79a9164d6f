// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/table.h"
#include <span>
#include <vector>

namespace kalvenor::dao {

/// The rows of a table by the values of one whole-number column, made in memory in one pass.
class LongIndex {
public:
    LongIndex(const jet::Table &table, int column);

    /// The rows with this value, in row order.
    std::span<const quint32> rows(qint32 key) const;
    /// All rows: null first, then by ascending value; equal ones in row order.
    const std::vector<quint32> &order() const { return m_order; }

private:
    void makeDense(const std::vector<qint32> &values, const std::vector<quint32> &rows, qint32 last);
    void makeSparse(const std::vector<qint32> &values, const std::vector<quint32> &rows);

    std::vector<quint32> m_order;
    std::size_t m_nulls = 0;       ///< how many rows of m_order have no value
    qint32 m_first = 0;            ///< dense: the least value
    std::vector<quint32> m_starts; ///< dense: for value m_first + i, where its rows begin in m_order
    std::vector<qint32> m_keys;    ///< sparse: the values of m_order, without the nulls
};

} // namespace kalvenor::dao
