// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/marksnapshot.h"

#include "platform/dao/tableview.h"

namespace kalvenor::dao {

MarkDifference MarkSnapshot::since(const MarkSnapshot &before) const
{
    const jet::Table &table = *m_view->table();
    const int key = keyColumnOf(table);
    const bool sameRows = m_view == before.m_view;
    const LongIndex *formerRows = nullptr;
    if (!sameRows)
        formerRows = &before.m_view->index(keyColumnOf(*before.m_view->table()));

    MarkDifference difference;
    for (quint32 row = 0; row < table.rowCount(); ++row) {
        const bool now = m_marks.test(row);
        if (sameRows && before.m_marks.test(row) == now)
            continue;
        const auto counter = table.integer(row, key);
        if (!counter)
            continue;
        if (!sameRows) {
            const auto former = formerRows->rows(*counter);
            if (former.empty() || before.m_marks.test(former.front()) == now)
                continue;
        }
        (now ? difference.marked : difference.unmarked).push_back(*counter);
    }
    return difference;
}

} // namespace kalvenor::dao
