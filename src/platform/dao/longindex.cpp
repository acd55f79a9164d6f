// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/longindex.h"

#include <algorithm>

namespace kalvenor::dao {

LongIndex::LongIndex(const jet::Table &table, int column)
{
    const quint32 count = table.rowCount();
    std::vector<qint32> values;
    std::vector<quint32> rows;
    values.reserve(count);
    rows.reserve(count);
    m_order.reserve(count);
    for (quint32 row = 0; row < count; ++row) {
        if (const auto value = table.integer(row, column)) {
            values.push_back(*value);
            rows.push_back(row);
        } else {
            m_order.push_back(row);
        }
    }
    m_nulls = m_order.size();
    m_order.resize(count);
    if (values.empty())
        return;
    const auto [least, greatest] = std::minmax_element(values.begin(), values.end());
    m_first = *least;
    // Keys are usually given out one by one; a table of starts is then smaller and faster than a search.
    if (qint64(*greatest) - *least < 4 * qint64(count) + 1024)
        makeDense(values, rows, *greatest);
    else
        makeSparse(values, rows);
}

void LongIndex::makeDense(const std::vector<qint32> &values, const std::vector<quint32> &rows, qint32 last)
{
    const auto slot = [this](qint32 value) {
        return static_cast<std::size_t>(qint64(value) - m_first);
    };
    std::vector<quint32> next(slot(last) + 2, 0);
    for (const qint32 value : values)
        ++next[slot(value) + 1];
    next[0] = static_cast<quint32>(m_nulls);
    for (std::size_t i = 1; i < next.size(); ++i)
        next[i] += next[i - 1];
    m_starts = next;
    for (std::size_t i = 0; i < values.size(); ++i)
        m_order[next[slot(values[i])]++] = rows[i];
}

void LongIndex::makeSparse(const std::vector<qint32> &values, const std::vector<quint32> &rows)
{
    std::vector<std::pair<qint32, quint32>> pairs;
    pairs.reserve(values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        pairs.emplace_back(values[i], rows[i]);
    std::sort(pairs.begin(), pairs.end());
    m_keys.reserve(pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        m_keys.push_back(pairs[i].first);
        m_order[m_nulls + i] = pairs[i].second;
    }
}

std::span<const quint32> LongIndex::rows(qint32 key) const
{
    const std::span<const quint32> all(m_order);
    if (!m_starts.empty()) {
        const qint64 slot = qint64(key) - m_first;
        if (slot < 0 || slot + 1 >= static_cast<qint64>(m_starts.size()))
            return {};
        const auto at = static_cast<std::size_t>(slot);
        return all.subspan(m_starts[at], m_starts[at + 1] - m_starts[at]);
    }
    const auto [from, to] = std::equal_range(m_keys.begin(), m_keys.end(), key);
    return all.subspan(m_nulls + static_cast<std::size_t>(from - m_keys.begin()), static_cast<std::size_t>(to - from));
}

} // namespace kalvenor::dao
