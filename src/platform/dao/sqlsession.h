// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/progress.h"
#include "platform/dao/sqltext.h"
#include "platform/dao/tableview.h"
#include "platform/jet/marks/markwriter.h"
#include <exception>
#include <memory>
#include <optional>
#include <QVariant>
#include <vector>

namespace kalvenor::dao {

struct TableCursor;

/// What a SELECT gave: row numbers of one table, or values.
struct QueryResult {
    QStringList names{};
    std::vector<int> columns{};        ///< for each field the column of the view's table; empty where there is none
    std::shared_ptr<TableView> view{}; ///< set where the result is row numbers
    std::vector<quint32> rows{};
    std::vector<QVariant> cells{}; ///< else: row by row, names.size() each
};

/// What an UPDATE would set, in the order of the statement.
struct UpdateResult {
    std::shared_ptr<TableView> view{};
    std::vector<jet::Mark> marks{};
};

/// What a result may hold at most whose values SQLite had to sort or compute: they are copied. The lists of the program
/// never are.
struct CopyLimits {
    qint64 cells = 4'000'000;
    qint64 bytes = 512LL * 1024 * 1024; ///< of texts and bytes
};

/// What the callbacks of a running statement report to.
class SqlRun {
public:
    /// Takes the place of the run at hand until it ends. Throws Refused where one is at hand: a Progress must not
    /// begin another statement on the same database.
    SqlRun(SqlRun *&current, const QString &place, const basic::Progress &progress);
    ~SqlRun() { m_current = nullptr; }
    SqlRun(const SqlRun &) = delete;
    SqlRun &operator=(const SqlRun &) = delete;

    /// Rows looked at so far. False where the work shall end.
    bool reached(qint64 rows, qint64 total);
    /// The same without news, from time to time while SQLite computes.
    bool tick();
    /// Keeps the exception at hand until SQLite has returned.
    void keepException() { m_exception = std::current_exception(); }
    /// Throws what was kept, Cancelled, or Refused.
    void rethrow() const;

    std::optional<basic::Error> refusal;  ///< what the authorizer objected to
    std::vector<TableCursor *> cursors{}; ///< the open ones

private:
    SqlRun *&m_current;
    QString m_place;
    basic::Progress m_progress;
    std::exception_ptr m_exception;
    qint64 m_done = 0;
    qint64 m_total = 0;
    bool m_cancelled = false;
};

/// SQLite over one state of a database file. Tables are declared when a statement first names them.
class SqlSession {
public:
    /// Throws InvalidProcedureCall where SQLite itself cannot be set up.
    explicit SqlSession(std::shared_ptr<Snapshot> snapshot, CopyLimits limits = {});
    ~SqlSession();
    SqlSession(const SqlSession &) = delete;
    SqlSession &operator=(const SqlSession &) = delete;

    const std::shared_ptr<Snapshot> &snapshot() const { return m_snapshot; }
    /// Throws InvalidSql, InvalidPattern, TableNotFound, Damaged, Refused, Cancelled.
    QueryResult query(const QString &sql, const basic::Progress &progress);
    /// Collects what the UPDATE sets; nothing is changed yet. Throws as query.
    UpdateResult update(const QString &sql, const basic::Progress &progress);

private:
    class Statement;

    const QString &place() const { return m_snapshot->database()->file(); }
    void declareTables(const SqlText &sql);
    void declare(const QString &name);
    QStringList knownNames() const;
    /// Where each row of the result is a row of one table: that table and, for each field, its column.
    std::shared_ptr<TableView> plainView(const SqlText &sql, const Statement &statement,
                                         std::vector<int> &columns) const;
    bool collectRows(const SqlText &sql, QueryResult &result) const;

    struct Parts;
    std::shared_ptr<Snapshot> m_snapshot;
    CopyLimits m_limits;
    std::unique_ptr<Parts> m_parts;
};

} // namespace kalvenor::dao
