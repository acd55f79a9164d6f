// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/dao/dao.h"
#include "platform/dao/sqlsession.h"
#include <functional>

// What the objects keep inside. For the sources of this room only.
namespace kalvenor::dao {

struct Database::Private {
    QString file;
    Engine *engine = nullptr;
    std::shared_ptr<SqlSession> session; ///< none once closed; another one after each reload
    quint64 generation = 0;
    std::vector<std::shared_ptr<Recordset>> recordsets{};

    /// Throws ObjectClosed.
    SqlSession &open() const;
    void reload();
    bool reloadIfStale();
};

struct Recordset::Private {
    std::weak_ptr<Database> database;
    bool isTable = false;
    bool isOpen = true;
    basic::Place place;
    std::shared_ptr<Snapshot> snapshot; ///< none once closed, and in a table recordset that was not used since a reload
    QueryResult result;                 ///< of a table recordset: the view and all its columns, no rows
    qint64 count = 0;
    qint64 position = 0;
    bool valid = false; ///< stands on a row

    int indexColumn = -1; ///< the sought column
    bool noMatch = false;
    bool editing = false;
    std::optional<bool> edited{};

    /// Throw ObjectClosed, NoCurrentRow. A table recordset goes over to the present state where it let go of its own.
    void requireOpen();
    void requireRow();
    /// Throws Refused for a query recordset.
    void requireTable();
    quint32 row() const
    {
        Q_ASSERT(valid && (isTable || position < static_cast<qint64>(result.rows.size())));
        return isTable ? static_cast<quint32>(position) : result.rows[static_cast<std::size_t>(position)];
    }
    const QVariant &cell(int field) const
    {
        Q_ASSERT(valid && !result.view && field < result.names.size());
        return result.cells[static_cast<std::size_t>(position * result.names.size() + field)];
    }
    int column(int field) const { return result.columns[static_cast<std::size_t>(field)]; }
    void requireField(int field);
    void stand(qint64 where);
    /// A sorted query leads all over the file: lets the processor fetch what the next rows need.
    void fetchAhead() const;
    /// Goes over to another state of the file; the current row is then none.
    void adopt(const std::shared_ptr<Snapshot> &other);
    /// A table recordset's part of a reload: nothing of the former state is kept in memory.
    void letGo();
    void setResult(QueryResult &&given);
};

} // namespace kalvenor::dao
