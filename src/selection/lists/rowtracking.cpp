// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/lists/rowtracking.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

RowTracking::RowTracking(dao::Recordset &before, const PersonListModel &now)
    : m_before(before), m_now(now), m_sameRows(now.countsIn(before))
{
    if (before.tableRowCount() == 0 || now.personCount() == 0)
        return;
    m_there.resize(static_cast<std::size_t>(now.personCount()));
    for (const quint32 row : now.tableRows())
        m_there[row] = true;
    if (m_sameRows)
        return;
    m_formerCounter = before.fieldIndex(u"Counter"_s);
    m_rowsByCounter.reserve(now.tableRows().size());
    for (std::size_t row = 0; row < now.tableRows().size(); ++row)
        m_rowsByCounter.emplace(now.counterAt(static_cast<int>(row)), now.tableRows()[row]);
}

quint32 RowTracking::tableRow(int formerRow) const
{
    if (m_sameRows) {
        const quint32 row = m_before.rows()[static_cast<std::size_t>(formerRow)];
        return m_there[row] ? row : Gone;
    }
    m_before.moveTo(formerRow);
    const auto key = m_before.integer(m_formerCounter);
    const auto found = key ? m_rowsByCounter.find(*key) : m_rowsByCounter.end();
    return found == m_rowsByCounter.end() ? Gone : found->second;
}

int RowTracking::rowOf(quint32 tableRow) const
{
    const auto rows = m_now.tableRows();
    const auto found = std::find(rows.begin(), rows.end(), tableRow);
    return static_cast<int>(found - rows.begin());
}

int RowTracking::rowOrNext(int formerRow) const
{
    const int last = m_now.rowCount() - 1;
    if (last < 0 || m_there.empty() || formerRow < 0)
        return std::min(formerRow, last);
    const int formerCount = static_cast<int>(m_before.rows().size());
    if (formerCount == 0)
        return std::min(formerRow, last);
    for (int row = formerRow; row < formerCount; ++row) {
        if (const quint32 found = tableRow(row); found != Gone)
            return rowOf(found);
    }
    return last;
}

bool RowTracking::hasMoved(int formerRow) const
{
    if (!m_sameRows)
        return false;
    m_before.moveTo(formerRow);
    return m_before.boolean(m_before.fieldIndex(u"Markierung"_s)) != (m_now.list() == PersonList::Marked);
}

QItemSelection RowTracking::selection(const std::vector<std::pair<int, int>> &formerRanges) const
{
    if (m_there.empty())
        return {};
    std::vector<quint32> found;
    for (const auto &[first, last] : formerRanges) {
        for (int row = first; row <= last; ++row) {
            if (const quint32 tableRow = this->tableRow(row); tableRow != Gone)
                found.push_back(tableRow);
        }
    }
    return selectionOfTableRows(m_now, found);
}

QItemSelection selectionOfTableRows(const PersonListModel &model, const std::vector<quint32> &tableRows)
{
    QItemSelection selection;
    if (tableRows.empty() || model.personCount() == 0)
        return selection;
    std::vector<bool> wanted(static_cast<std::size_t>(model.personCount()));
    for (const quint32 row : tableRows)
        wanted[row] = true;
    const auto rows = model.tableRows();
    const auto isWanted = [&](std::size_t row) {
        return row < rows.size() && wanted[rows[row]];
    };
    for (std::size_t first = 0; first < rows.size(); ++first) {
        if (!isWanted(first))
            continue;
        std::size_t last = first;
        while (isWanted(last + 1))
            ++last;
        selection.append(
            QItemSelectionRange(model.index(static_cast<int>(first)), model.index(static_cast<int>(last))));
        first = last;
    }
    return selection;
}

} // namespace kalvenor::selection
