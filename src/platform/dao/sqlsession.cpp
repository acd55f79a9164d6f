// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/sqlsession.h"

#include "platform/basic/error.h"
#include "platform/dao/sqlerror.h"
#include "platform/dao/sqlguard.h"
#include "platform/dao/virtualtable.h"
#include <algorithm>
#include <sqlite3.h>

namespace kalvenor::dao {

using namespace Qt::StringLiterals;

namespace {

QString quoted(const QString &name)
{
    return u'"' + QString(name).replace(u'"', u"\"\""_s) + u'"';
}

/// What SQLite calls the number of a row, which a column of that name would hide.
QString rowNumberName(const jet::Table &table)
{
    for (const QString &name : {u"rowid"_s, u"_rowid_"_s, u"oid"_s}) {
        if (table.columnOf(name) < 0)
            return name;
    }
    throw basic::Error(basic::Fault::RowNumbersHidden, tablePlace(table.image().file(), table.name()));
}

} // namespace

SqlRun::SqlRun(SqlRun *&current, const QString &place, const basic::Progress &progress)
    : m_current(current), m_place(place), m_progress(progress)
{
    if (current != nullptr)
        throw basic::Error(basic::Fault::QueryRunning, {.file = place});
    current = this;
}

bool SqlRun::reached(qint64 rows, qint64 total)
{
    m_done = std::max(m_done, rows);
    m_total = std::max(m_total, total);
    return tick();
}

bool SqlRun::tick()
{
    if (m_cancelled || m_exception)
        return false;
    try {
        m_cancelled = m_progress && !m_progress(m_done, m_total);
    } catch (...) {
        keepException();
    }
    return !m_cancelled && !m_exception;
}

void SqlRun::rethrow() const
{
    try {
        if (m_exception)
            std::rethrow_exception(m_exception);
    } catch (const basic::Error &error) {
        throw error.place() == basic::Place() ? error.at({.file = m_place}) : error;
    }
    if (m_cancelled)
        throw basic::Error(basic::Fault::StoppedQuery, {.file = m_place});
    if (refusal)
        throw refusal->at({.file = m_place});
}

struct SqlSession::Parts {
    sqlite3 *handle = nullptr;
    SqlRun *run = nullptr;
    TableModule module;
    std::map<QString, std::shared_ptr<TableView>> declared; ///< by the catalogue's spelling
    SqlGuard guard;

    Parts() : guard(&run, [this](const QString &name) { return view(name) != nullptr; }) { module.current = &run; }
    ~Parts() { sqlite3_close(handle); }
    Parts(const Parts &) = delete;
    Parts &operator=(const Parts &) = delete;

    std::shared_ptr<TableView> view(const QString &name) const
    {
        for (const auto &[declaredName, declaredView] : declared) {
            if (declaredName.compare(name, Qt::CaseInsensitive) == 0)
                return declaredView;
        }
        return nullptr;
    }
};

/// A prepared statement. Errors of SQLite become ours.
class SqlSession::Statement {
public:
    Statement(Parts &parts, const QString &adapted, const QString &place)
        : m_parts(parts), m_adapted(adapted), m_place(place)
    {
        const QByteArray utf8 = m_adapted.toUtf8();
        const char *tail = nullptr;
        sqlite3_stmt *statement = nullptr;
        const int code =
            sqlite3_prepare_v2(parts.handle, utf8.constData(), static_cast<int>(utf8.size()) + 1, &statement, &tail);
        m_statement.reset(statement);
        if (code != SQLITE_OK)
            fail(code);
        if (statement == nullptr || tail != utf8.constData() + utf8.size())
            throw basic::Error(basic::Fault::OneStatement, {.file = m_place});
    }

    operator sqlite3_stmt *() const { return m_statement.get(); }

    /// False at the end.
    bool step()
    {
        const int code = sqlite3_step(m_statement.get());
        if (code != SQLITE_ROW && code != SQLITE_DONE)
            fail(code);
        return code == SQLITE_ROW;
    }

private:
    [[noreturn]] void fail(int code) const
    {
        m_parts.run->rethrow();
        const QString complaint = QString::fromUtf8(sqlite3_errmsg(m_parts.handle));
        const QString missingTable = u"no such table: "_s;
        if (complaint.startsWith(missingTable))
            throw basic::Error(basic::Fault::TableMissing, {.file = m_place}, {complaint.mid(missingTable.size())});
        if (code == SQLITE_NOMEM)
            throw std::bad_alloc();
        throw sqlError(complaint, m_adapted, sqlite3_error_offset(m_parts.handle), m_adapted.contains(u'\''))
            .at({.file = m_place});
    }

    Parts &m_parts;
    QString m_adapted;
    const QString &m_place;
    struct Finalize {
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

SqlSession::SqlSession(std::shared_ptr<Snapshot> snapshot, CopyLimits limits)
    : m_snapshot(std::move(snapshot)), m_limits(limits), m_parts(std::make_unique<Parts>())
{
    int code = sqlite3_open_v2(":memory:", &m_parts->handle,
                               SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code == SQLITE_OK)
        code = m_parts->guard.setUp(m_parts->handle);
    if (code == SQLITE_OK)
        code = registerTableModule(m_parts->handle, &m_parts->module);
    if (code != SQLITE_OK)
        throw basic::Error(basic::Fault::EngineNotSetUp, {.file = place()}, {QString::fromUtf8(sqlite3_errstr(code))});
}

SqlSession::~SqlSession() = default;

void SqlSession::declareTables(const SqlText &sql)
{
    for (const QString &name : sql.names()) {
        const jet::CatalogueEntry *entry = m_snapshot->database()->entry(name);
        if (entry != nullptr && !entry->system && !m_parts->declared.contains(entry->name))
            declare(entry->name);
    }
}

void SqlSession::declare(const QString &name)
{
    Parts &parts = *m_parts;
    parts.module.next = m_snapshot->view(name);
    parts.guard.watch(parts.handle, false);
    const int code =
        sqlite3_exec(parts.handle, u"CREATE VIRTUAL TABLE %1 USING jet"_s.arg(quoted(name)).toUtf8().constData(),
                     nullptr, nullptr, nullptr);
    parts.guard.watch(parts.handle, true);
    if (code != SQLITE_OK)
        throw basic::Error(basic::Fault::TableNotQueried, tablePlace(place(), name),
                           {QString::fromUtf8(sqlite3_errmsg(parts.handle))});
    parts.declared.emplace(name, std::exchange(parts.module.next, nullptr));
}

QStringList SqlSession::knownNames() const
{
    QStringList known;
    for (const auto &[name, view] : m_parts->declared) {
        known << name;
        for (const jet::Column &column : view->table()->columns())
            known << column.name;
    }
    return known;
}

std::shared_ptr<TableView> SqlSession::plainView(const SqlText &sql, const Statement &statement,
                                                 std::vector<int> &columns) const
{
    columns.clear();
    if (!sql.deliversPlainRows())
        return nullptr;
    std::shared_ptr<TableView> view;
    for (int i = 0; i < sqlite3_column_count(statement); ++i) {
        const char *table = sqlite3_column_table_name(statement, i);
        const auto fieldView = table == nullptr ? nullptr : m_parts->view(QString::fromUtf8(table));
        if (fieldView == nullptr || (view != nullptr && fieldView != view))
            return nullptr;
        view = fieldView;
        const QString origin = QString::fromUtf8(sqlite3_column_origin_name(statement, i));
        // Under another name a column could be sorted by or compared.
        const QString name = QString::fromUtf8(sqlite3_column_name(statement, i));
        columns.push_back(view->table()->columnOf(origin));
        if (columns.back() < 0 || name.compare(origin, Qt::CaseInsensitive) != 0)
            return nullptr;
    }
    return view;
}

namespace {

/// Adds the value's size to `bytes`.
QVariant cellOf(sqlite3_stmt *statement, int field, bool yesNo, qint64 &bytes)
{
    switch (sqlite3_column_type(statement, field)) {
    case SQLITE_INTEGER: {
        const qint64 whole = sqlite3_column_int64(statement, field);
        if (yesNo)
            return whole != 0;
        return whole == static_cast<qint32>(whole) ? QVariant(static_cast<qint32>(whole)) : QVariant(whole);
    }
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, field);
    case SQLITE_TEXT: {
        const auto *units = static_cast<const char16_t *>(sqlite3_column_text16(statement, field));
        const int size = sqlite3_column_bytes16(statement, field);
        bytes += size;
        return QString(reinterpret_cast<const QChar *>(units), size / 2);
    }
    case SQLITE_BLOB: {
        const auto *data = static_cast<const char *>(sqlite3_column_blob(statement, field));
        const int size = sqlite3_column_bytes(statement, field);
        bytes += size;
        return QByteArray(data, size);
    }
    default:
        return {};
    }
}

} // namespace

/// Runs the statement for the numbers of its rows alone. False where a row delivered is not the one that the table's
/// cursor stands on, because SQLite had to sort first. A plain order is applied afterwards: filters then read the rows
/// one behind the other, as they lie in memory.
bool SqlSession::collectRows(const SqlText &sql, QueryResult &result) const
{
    const QString order = sql.finalOrder();
    const int orderColumn = order.isEmpty() ? -1 : result.view->table()->columnOf(order);
    const bool ordersLater =
        orderColumn >= 0 && (result.view->isText(orderColumn) || result.view->isWhole(orderColumn));
    Statement statement(*m_parts, sql.adaptedForRows(knownNames(), !ordersLater), place());
    const std::vector<TableCursor *> &cursors = m_parts->run->cursors;
    while (statement.step()) {
        if (cursors.size() != 1 || cursors.front()->atEnd() ||
            sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_SORT, 0) != 0)
            return false;
        result.rows.push_back(cursors.front()->row);
    }
    if (ordersLater && result.rows.size() > 1) {
        Bits found(result.view->table()->rowCount());
        for (const quint32 row : result.rows)
            found.set(row, true);
        result.rows.clear();
        for (const quint32 row : result.view->order(orderColumn)) {
            if (found.test(row))
                result.rows.push_back(row);
        }
    }
    return true;
}

QueryResult SqlSession::query(const QString &text, const basic::Progress &progress)
{
    const SqlText sql(text, place());
    if (!sql.beginsWith(u"SELECT"))
        throw basic::Error(basic::Fault::NoSelect, {.file = place()});
    SqlRun run(m_parts->run, place(), progress);
    declareTables(sql);
    Statement statement(*m_parts, sql.adapted(knownNames()), place());
    Q_ASSERT(sqlite3_stmt_readonly(statement) != 0);
    QueryResult result;
    const int fields = sqlite3_column_count(statement);
    std::vector<bool> yesNo;
    for (int i = 0; i < fields; ++i) {
        result.names << QString::fromUtf8(sqlite3_column_name(statement, i));
        const char *table = sqlite3_column_table_name(statement, i);
        const auto view = table == nullptr ? nullptr : m_parts->view(QString::fromUtf8(table));
        const int column =
            view == nullptr ? -1 : view->table()->columnOf(QString::fromUtf8(sqlite3_column_origin_name(statement, i)));
        yesNo.push_back(column >= 0 && view->typeOf(column) == jet::ColumnType::Boolean);
    }
    if (!run.reached(0, 0))
        run.rethrow();

    result.view = plainView(sql, statement, result.columns);
    if (result.view && collectRows(sql, result))
        return result;
    result.view.reset();
    result.rows.clear();
    result.columns.clear();
    qint64 bytes = 0;
    while (statement.step()) {
        for (int i = 0; i < fields; ++i)
            result.cells.push_back(cellOf(statement, i, yesNo[static_cast<std::size_t>(i)], bytes));
        if (static_cast<qint64>(result.cells.size()) > m_limits.cells || bytes > m_limits.bytes)
            throw basic::Error(basic::Fault::ResultTooLarge, {.file = place()});
    }
    return result;
}

/// The rows are found as a query finds them. SQLite itself never writes.
UpdateResult SqlSession::update(const QString &text, const basic::Progress &progress)
{
    const SqlText sql(text, place());
    SqlRun run(m_parts->run, place(), progress);
    declareTables(sql);
    const auto wanted = sql.constantUpdate(knownNames());
    if (!wanted)
        throw basic::Error(basic::Fault::OnlyUpdate, {.file = place()}, {MarkColumnName});
    if (wanted->column.compare(MarkColumnName, Qt::CaseInsensitive) != 0)
        throw basic::Error(basic::Fault::OnlyMark, {.file = place()}, {MarkColumnName, wanted->column});
    UpdateResult update{m_snapshot->view(wanted->table)};
    QString select = u"SELECT %1 FROM %2"_s.arg(rowNumberName(*update.view->table()), quoted(wanted->table));
    if (!wanted->condition.isEmpty())
        select += u" WHERE "_s + wanted->condition;
    Statement statement(*m_parts, SqlText(select, place()).adapted(knownNames()), place());
    if (!run.reached(0, 0))
        run.rethrow();
    while (statement.step())
        update.marks.push_back({static_cast<std::uint32_t>(sqlite3_column_int64(statement, 0)), wanted->on});
    return update;
}

} // namespace kalvenor::dao
