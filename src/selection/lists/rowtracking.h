// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/dao/recordset.h"
#include "selection/lists/personlistmodel.h"
#include <memory>
#include <QItemSelection>
#include <unordered_map>
#include <vector>

namespace kalvenor::selection {

/// Finds the persons of a list's former result again in the one that it shows now, also where the file was read anew
/// meanwhile. To be used while the former result is open.
class RowTracking {
public:
    RowTracking(dao::Recordset &before, const PersonListModel &now);

    /// The row of now for a row of before: the same person, else the next one that is still there, else the last row;
    /// -1 where the list is empty.
    int rowOrNext(int formerRow) const;
    /// The person of this row of before has the other list's mark now: moved, not only hidden by a filter. False where
    /// the file was read anew meanwhile.
    bool hasMoved(int formerRow) const;
    /// The same persons as a selection of rows of now.
    QItemSelection selection(const std::vector<std::pair<int, int>> &formerRanges) const;

private:
    static constexpr quint32 Gone = ~quint32(0);
    quint32 tableRow(int formerRow) const;
    int rowOf(quint32 tableRow) const;

    dao::Recordset &m_before; ///< its current row moves
    const PersonListModel &m_now;
    bool m_sameRows;             ///< before and now count in the same rows of the person table
    std::vector<bool> m_there{}; ///< by row of the present table; empty where values were computed
    int m_formerCounter = -1;    ///< field of before
    std::unordered_map<qint32, quint32> m_rowsByCounter{}; ///< used where the rows are others
};

/// Rows of the list that show these rows of its table, as a selection.
QItemSelection selectionOfTableRows(const PersonListModel &model, const std::vector<quint32> &tableRows);

} // namespace kalvenor::selection
