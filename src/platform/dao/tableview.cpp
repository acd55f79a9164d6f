// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/tableview.h"

#include "platform/basic/error.h"
#include "platform/dao/generalorder.h"
#include <algorithm>

namespace kalvenor::dao {

using namespace Qt::StringLiterals;

basic::Place tablePlace(const QString &file, const QString &table)
{
    return {.file = file, .table = table};
}

int markColumnOf(const jet::Table &table)
{
    const int column = table.columnOf(MarkColumnName);
    if (column < 0)
        throw basic::Error(basic::Fault::ColumnMissing, tablePlace(table.image().file(), table.name()),
                           {MarkColumnName});
    return column;
}

int keyColumnOf(const jet::Table &table)
{
    const basic::Place place = tablePlace(table.image().file(), table.name());
    const int column = table.columnOf(KeyColumnName);
    if (column < 0)
        throw basic::Error(basic::Fault::NoKeyColumn, place, {KeyColumnName});
    if (table.columns()[static_cast<std::size_t>(column)].type != jet::ColumnType::Long)
        throw basic::Error(basic::Fault::KeyNotLong, place, {KeyColumnName});
    return column;
}

jet::ColumnType TableView::typeOf(int column) const
{
    Q_ASSERT(column >= 0 && static_cast<std::size_t>(column) < m_table->columns().size());
    return m_table->columns()[static_cast<std::size_t>(column)].type;
}

bool TableView::isWhole(int column) const
{
    const jet::ColumnType type = typeOf(column);
    return type == jet::ColumnType::Byte || type == jet::ColumnType::Integer || type == jet::ColumnType::Long;
}

bool TableView::isText(int column) const
{
    const jet::ColumnType type = typeOf(column);
    return type == jet::ColumnType::Text || type == jet::ColumnType::Memo;
}

const LongIndex &TableView::index(int column)
{
    Q_ASSERT(isWhole(column));
    auto found = m_indexes.find(column);
    if (found == m_indexes.end())
        found = m_indexes.emplace(column, LongIndex(*m_table, column)).first;
    return found->second;
}

const std::vector<quint32> &TableView::order(int column)
{
    if (isWhole(column))
        return index(column).order();
    Q_ASSERT(isText(column));
    auto found = m_orders.find(column);
    if (found == m_orders.end())
        found = m_orders.emplace(column, generalOrder(*m_table, column)).first;
    return found->second;
}

const Bits &TableView::marks(int column)
{
    auto found = m_marks.find(column);
    if (found == m_marks.end()) {
        const quint32 count = m_table->rowCount();
        Bits bits(count);
        for (quint32 row = 0; row < count; ++row) {
            m_table->fetchAhead(row);
            if (m_table->boolean(row, column))
                bits.set(row, true);
        }
        found = m_marks.emplace(column, std::move(bits)).first;
    }
    return found->second;
}

void TableView::flipMarks(int column, const std::vector<quint32> &rows)
{
    const auto found = m_marks.find(column);
    if (found == m_marks.end())
        return;
    for (const quint32 row : rows)
        found->second.set(row, !found->second.test(row));
}

std::shared_ptr<TableView> Snapshot::view(const QString &name)
{
    const std::shared_ptr<const jet::Table> table = m_database->table(name);
    std::shared_ptr<TableView> &view = m_views[table->name()];
    if (!view)
        view = std::make_shared<TableView>(table);
    return view;
}

std::vector<jet::Damage> Snapshot::damage() const
{
    std::vector<jet::Damage> all = m_database->damage();
    for (const auto &[name, view] : m_views) {
        const std::vector<jet::Damage> &kinds = view->table()->damage();
        all.insert(all.end(), kinds.begin(), kinds.end());
    }
    return all;
}

jet::MarksWritten Snapshot::write(TableView &view, int markColumn, std::span<const jet::Mark> marks,
                                  const basic::Progress &progress)
{
    auto writer = m_writers.find({&view, markColumn});
    if (writer == m_writers.end())
        writer = m_writers
                     .emplace(std::pair(&view, markColumn),
                              jet::MarkWriter(m_database, view.table(), markColumn, keyColumnOf(*view.table())))
                     .first;
    try {
        jet::MarksWritten written = writer->second.write(marks, progress);
        view.flipMarks(markColumn, written.changed);
        if (!std::ranges::is_sorted(written.changed))
            std::ranges::sort(written.changed);
        return written;
    } catch (...) {
        view.forgetMarks(markColumn);
        throw;
    }
}

} // namespace kalvenor::dao
