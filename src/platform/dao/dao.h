// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/fault.h"
#include "platform/basic/progress.h"
#include "platform/dao/marksnapshot.h"
#include "platform/dao/recordset.h"
#include "platform/jet/reader/damage.h"
#include <functional>
#include <memory>
#include <optional>
#include <QString>
#include <span>
#include <vector>

// The database objects the program works with: an engine with databases (its one, default workspace), a database with
// recordsets. Whoever holds an object keeps it alive; once closed, every use throws Error(ObjectClosed).
namespace kalvenor::dao {

class SqlSession;
struct UpdateResult;

/// A row that cannot take the mark it should have.
struct LeftRow {
    basic::Fault why;               ///< RowWithoutKey, KeyRepeated or RecordTooOld
    std::optional<qint32> key = {}; ///< its `Counter`
};

/// What an UPDATE did.
struct Execution {
    qint64 matched = 0;                ///< rows the statement selected
    std::vector<qint32> changedKeys{}; ///< `Counter` of the rows whose mark really changed, in row order
    std::vector<LeftRow> left{};       ///< those that stayed as they were though they should not
};

class Database : public std::enable_shared_from_this<Database> {
public:
    struct Private;
    explicit Database(std::unique_ptr<Private> priv);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    const QString &file() const;
    bool isOpen() const;
    /// A table-type recordset, on the first row. The name counts without case, trailing blanks count.
    /// Throws TableNotFound, Damaged.
    std::shared_ptr<Recordset> openTable(const QString &name);
    /// A query recordset (a keyset: row numbers, no values copied), on the first row. The SQL text is executed as it
    /// stands, one SELECT only. Throws InvalidSql, InvalidPattern, TableNotFound, Refused, Cancelled.
    std::shared_ptr<Recordset> openQuery(const QString &sql, const basic::Progress &progress = {});
    /// Executes one UPDATE table SET Markierung = number, True or False, with or without WHERE. Throws as openQuery,
    /// and as setMarks.
    Execution execute(const QString &sql, const basic::Progress &progress = {});
    /// Sets `Markierung` of the rows with these `Counter` values, as Edit and Update would one by one; keys that the
    /// table does not hold are passed over. Throws TableNotFound, ColumnNotFound, and as jet::MarkWriter::write.
    Execution setMarks(const QString &table, std::span<const qint32> keys, bool value,
                       const basic::Progress &progress = {});

    /// The marks of a table as they are in memory. Throws TableNotFound, ColumnNotFound.
    MarkSnapshot marks(const QString &table);

    /// Reads the file anew where another program changed it. True where it did. Query recordsets keep
    /// their state, the others let go of theirs.
    bool refresh();
    /// True where another program changed the file since it was read. Throws as refresh, where the file is gone.
    bool isStale() const;
    /// Counts up with each reload; a model compares it to know that its rows are old.
    quint64 generation() const;
    /// What damage was passed over so far, in the file and in the tables read.
    std::vector<jet::Damage> damage() const;

    /// The open ones. A query recordset that nobody else holds is dropped when the next one is opened.
    const std::vector<std::shared_ptr<Recordset>> &recordsets() const;
    /// Closes its recordsets, last first, and itself.
    void close();

private:
    friend class Recordset;
    friend class Engine;
    /// Writes what `collect` finds in the present state of the file; where another program changed it meanwhile, reads
    /// it anew and does both once more.
    Execution writeMarks(const std::function<UpdateResult(SqlSession &)> &collect, const basic::Progress &progress);
    std::unique_ptr<Private> d;
};

class Engine {
public:
    Engine() = default;
    ~Engine() { close(); }
    Engine(const Engine &) = delete;
    Engine &operator=(const Engine &) = delete;

    /// Opens a file (native path), shared. Throws FileNotFound, FileUnreadable, NotADatabase, Damaged.
    std::shared_ptr<Database> openDatabase(const QString &file);
    const std::vector<std::shared_ptr<Database>> &databases() const { return m_databases; }
    /// Closes its databases, last first.
    void close();

private:
    friend class Database;
    std::vector<std::shared_ptr<Database>> m_databases;
};

} // namespace kalvenor::dao
