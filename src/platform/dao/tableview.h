// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include "platform/dao/bits.h"
#include "platform/dao/longindex.h"
#include "platform/jet/marks/markwriter.h"
#include "platform/jet/reader/database.h"
#include <map>
#include <memory>
#include <vector>

namespace kalvenor::dao {

/// The one column that is ever changed, and the key that tells whose mark it is.
inline constexpr QStringView MarkColumnName = u"Markierung";
inline constexpr QStringView KeyColumnName = u"Counter";

/// "file, table name", as errors name their place.
basic::Place tablePlace(const QString &file, const QString &table);

/// The mark column of a table. Throws ColumnNotFound.
int markColumnOf(const jet::Table &table);
/// The key column of a table whose marks can be set. Throws NotMarkable.
int keyColumnOf(const jet::Table &table);

/// A table with what speeds its queries up, each made at its first use: indexes, orders and marks. For one thread.
class TableView {
public:
    explicit TableView(std::shared_ptr<const jet::Table> table) : m_table(std::move(table)) {}

    const std::shared_ptr<const jet::Table> &table() const { return m_table; }
    jet::ColumnType typeOf(int column) const;
    /// Byte, Integer or Long: what index() and order() can be asked for.
    bool isWhole(int column) const;
    /// Text or Memo: what order() can be asked for.
    bool isText(int column) const;

    const LongIndex &index(int column);
    /// All rows by the ascending values of a whole-number or text column (General order); null first.
    const std::vector<quint32> &order(int column);

    /// The values of a Yes/No column.
    const Bits &marks(int column);
    /// Takes over that these rows' values were turned round.
    void flipMarks(int column, const std::vector<quint32> &rows);
    /// To be read anew from the image.
    void forgetMarks(int column) { m_marks.erase(column); }

private:
    std::shared_ptr<const jet::Table> m_table;
    std::map<int, LongIndex> m_indexes;
    std::map<int, std::vector<quint32>> m_orders;
    std::map<int, Bits> m_marks;
};

/// One state of a database file with the views of its tables.
class Snapshot {
public:
    explicit Snapshot(std::shared_ptr<jet::Database> database) : m_database(std::move(database)) {}

    const std::shared_ptr<jet::Database> &database() const { return m_database; }
    /// Throws TableNotFound or Damaged.
    std::shared_ptr<TableView> view(const QString &name);
    /// What damage was passed over in the file and in the tables read so far.
    std::vector<jet::Damage> damage() const;
    /// Writes marks and keeps the view's marks right, also where writing fails half-way. The rows that changed come
    /// ascending. Throws NotMarkable, and as jet::MarkWriter::write.
    jet::MarksWritten write(TableView &view, int markColumn, std::span<const jet::Mark> marks,
                            const basic::Progress &progress);

private:
    std::shared_ptr<jet::Database> m_database;
    std::map<QString, std::shared_ptr<TableView>> m_views;                  ///< by the catalogue's spelling
    std::map<std::pair<const TableView *, int>, jet::MarkWriter> m_writers; ///< by view and mark column
};

} // namespace kalvenor::dao
