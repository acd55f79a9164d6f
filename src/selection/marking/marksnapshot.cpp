// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/marking/marksnapshot.h"

#include "platform/jet/reader/table.h"
#include <unordered_map>

namespace kalvenor::selection {

namespace {

std::shared_ptr<const jet::Table> personTable(const data::Datenbankmodul &databases)
{
    databases.Datentabelle->moveFirst();
    return databases.Datentabelle->table();
}

std::vector<bool> marksOf(const jet::Table &table)
{
    std::vector<bool> marks(table.rowCount());
    const int column = table.columnOf(u"Markierung");
    for (quint32 row = 0; row < table.rowCount(); ++row)
        marks[row] = table.boolean(row, column);
    return marks;
}

} // namespace

MarkSnapshot::MarkSnapshot(const data::Datenbankmodul &databases)
    : m_table(personTable(databases)), m_marks(marksOf(*m_table))
{
}

MarkStep MarkSnapshot::changesSince(const data::Datenbankmodul &databases) const
{
    const std::shared_ptr<const jet::Table> table = personTable(databases);
    const std::vector<bool> marks = marksOf(*table);
    const int counter = table->columnOf(u"Counter");
    std::unordered_map<qint32, bool> before; // needed only where the file was read anew meanwhile
    if (table != m_table) {
        const int formerCounter = m_table->columnOf(u"Counter");
        for (quint32 row = 0; row < m_table->rowCount(); ++row) {
            if (const auto key = m_table->integer(row, formerCounter))
                before.emplace(*key, m_marks[row]);
        }
    }
    MarkStep step;
    for (quint32 row = 0; row < table->rowCount(); ++row) {
        const auto key = table->integer(row, counter);
        if (!key)
            continue;
        bool former = marks[row];
        if (table == m_table) {
            former = m_marks[row];
        } else if (const auto found = before.find(*key); found != before.end()) {
            former = found->second;
        }
        if (former != marks[row])
            (marks[row] ? step.marked : step.unmarked).push_back(*key);
    }
    return step;
}

} // namespace kalvenor::selection
