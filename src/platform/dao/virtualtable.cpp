// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/virtualtable.h"

#include "platform/basic/error.h"
#include "platform/dao/sqlsession.h"
#include "platform/jet/order/likescan.h"
#include <algorithm>
#include <cmath>
#include <limits>

namespace kalvenor::dao {

using namespace Qt::StringLiterals;

namespace {

struct VirtualTable : sqlite3_vtab {
    TableModule *module = nullptr;
    std::shared_ptr<TableView> view;
};

// A plan is a text of pairs, an operation and a column: "l1 m2 o1 ". Operations with an argument come first, in the
// order of their arguments; "o" has none.
enum Operation : char { Lookup = 'e', ByMark = 'm', ByPattern = 'l', Ordered = 'o' };

constexpr int MostArguments = 15; ///< SQLite drops its own check of no more terms than these

SqlRun &runOf(const sqlite3_vtab *table)
{
    SqlRun *run = *static_cast<const VirtualTable *>(table)->module->current;
    Q_ASSERT(run != nullptr);
    return *run;
}

/// No exception may cross SQLite.
template <class Work>
int guarded(const sqlite3_vtab *table, Work work)
{
    try {
        return work();
    } catch (...) {
        runOf(table).keepException();
        return SQLITE_ERROR;
    }
}

const char *typeOf(jet::ColumnType type)
{
    switch (type) {
    case jet::ColumnType::Boolean:
    case jet::ColumnType::Byte:
    case jet::ColumnType::Integer:
    case jet::ColumnType::Long:
        return " INTEGER";
    case jet::ColumnType::Money:
    case jet::ColumnType::Float:
    case jet::ColumnType::Double:
    case jet::ColumnType::DateTime:
    case jet::ColumnType::Numeric:
        return " REAL";
    case jet::ColumnType::Text:
    case jet::ColumnType::Memo:
    case jet::ColumnType::Guid:
        return " TEXT COLLATE GENERAL";
    default:
        return " BLOB";
    }
}

QString declaration(const TableView &view)
{
    QStringList columns;
    for (const jet::Column &column : view.table()->columns())
        columns << u'"' + QString(column.name).replace(u'"', u"\"\""_s) + u'"' + QLatin1StringView(typeOf(column.type));
    return u"CREATE TABLE x(%1)"_s.arg(columns.join(u','));
}

int create(sqlite3 *handle, void *aux, int, const char *const *, sqlite3_vtab **result, char **complaint)
{
    try {
        auto *module = static_cast<TableModule *>(aux);
        const int code = sqlite3_declare_vtab(handle, declaration(*module->next).toUtf8().constData());
        if (code != SQLITE_OK) {
            *complaint = sqlite3_mprintf("%s", sqlite3_errmsg(handle));
            return code;
        }
        Q_ASSERT(module->next != nullptr);
        auto table = std::make_unique<VirtualTable>();
        table->module = module;
        table->view = module->next;
        *result = table.release();
        return SQLITE_OK;
    } catch (const std::exception &error) {
        *complaint = sqlite3_mprintf("%s", error.what());
        return SQLITE_ERROR;
    }
}

// The same as create(), but another function: a module whose two are one could be queried under the module's name.
int connect(sqlite3 *handle, void *aux, int count, const char *const *arguments, sqlite3_vtab **result,
            char **complaint)
{
    return create(handle, aux, count, arguments, result, complaint);
}

int disconnect(sqlite3_vtab *table)
{
    delete static_cast<VirtualTable *>(table);
    return SQLITE_OK;
}

int bestIndex(sqlite3_vtab *table, sqlite3_index_info *info)
{
    return guarded(table, [&] {
        const TableView &view = *static_cast<VirtualTable *>(table)->view;
        const double all = view.table()->rowCount();
        double rows = all;
        double cost = all + 1;
        bool looksUp = false;
        int arguments = 0;
        QByteArray plan;
        const auto take = [&](int constraint, Operation operation, int column) {
            info->aConstraintUsage[constraint].argvIndex = ++arguments;
            info->aConstraintUsage[constraint].omit = 1;
            plan += operation + QByteArray::number(column) + ' ';
        };
        for (int i = 0; i < info->nConstraint && arguments < MostArguments; ++i) {
            const auto &constraint = info->aConstraint[i];
            const int column = constraint.iColumn;
            if (!constraint.usable || column < 0)
                continue;
            if (constraint.op == SQLITE_INDEX_CONSTRAINT_LIKE && view.isText(column)) {
                take(i, ByPattern, column);
                rows /= 8;
            } else if (constraint.op != SQLITE_INDEX_CONSTRAINT_EQ) {
                continue;
            } else if (view.isWhole(column) && !looksUp) {
                take(i, Lookup, column);
                looksUp = true;
                rows = std::min(rows, 10.0);
                cost = 20;
            } else if (view.typeOf(column) == jet::ColumnType::Boolean && !plan.contains(ByMark)) {
                take(i, ByMark, column);
                rows /= 2;
            }
        }
        // Asked for grouping or for distinct rows, SQLite would read on before it delivers: then it sorts itself.
        if (!looksUp && info->nOrderBy == 1 && !info->aOrderBy[0].desc && info->aOrderBy[0].iColumn >= 0 &&
            sqlite3_vtab_distinct(info) == 0) {
            const int column = info->aOrderBy[0].iColumn;
            if (view.isWhole(column) || view.isText(column)) {
                plan += Ordered + QByteArray::number(column) + ' ';
                info->orderByConsumed = 1;
            }
        }
        info->idxStr = sqlite3_mprintf("%s", plan.constData());
        if (info->idxStr == nullptr)
            return SQLITE_NOMEM;
        info->needToFreeIdxStr = 1;
        info->estimatedCost = cost;
        info->estimatedRows = static_cast<sqlite3_int64>(rows) + 1;
        return SQLITE_OK;
    });
}

int open(sqlite3_vtab *table, sqlite3_vtab_cursor **result)
{
    return guarded(table, [&] {
        auto cursor = std::make_unique<TableCursor>();
        cursor->view = static_cast<VirtualTable *>(table)->view;
        runOf(table).cursors.push_back(cursor.get());
        *result = cursor.release();
        return SQLITE_OK;
    });
}

int close(sqlite3_vtab_cursor *base)
{
    auto *cursor = static_cast<TableCursor *>(base);
    std::erase(runOf(base->pVtab).cursors, cursor);
    delete cursor;
    return SQLITE_OK;
}

constexpr quint32 RowsPerReport = 16384;

/// Stands on the next row that passes, from `position` on. SQLite's code.
int settle(TableCursor &cursor)
{
    for (; !cursor.atEnd(); ++cursor.position) {
        if (cursor.position % RowsPerReport == 0 && !runOf(cursor.pVtab).reached(cursor.position, cursor.end))
            return SQLITE_INTERRUPT;
        cursor.row = cursor.rowAt(cursor.position);
        if (cursor.passes(cursor.row))
            break;
    }
    return SQLITE_OK;
}

/// The value as a whole number, where a whole-number column can hold it.
std::optional<qint32> wholeNumber(sqlite3_value *value)
{
    const int type = sqlite3_value_numeric_type(value);
    if (type != SQLITE_INTEGER && type != SQLITE_FLOAT)
        return {};
    const double number = sqlite3_value_double(value);
    if (!(std::abs(number) <= 2147483648.0) || number != std::floor(number) ||
        number > std::numeric_limits<qint32>::max())
        return {};
    return static_cast<qint32>(number);
}

void nothing(TableCursor &cursor)
{
    cursor.listed = true;
    cursor.list = {};
    cursor.end = 0;
}

void lookUp(TableCursor &cursor, int column, sqlite3_value *value)
{
    const auto key = wholeNumber(value);
    if (!key) {
        nothing(cursor);
        return;
    }
    cursor.listed = true;
    cursor.list = cursor.view->index(column).rows(*key);
    cursor.end = static_cast<quint32>(cursor.list.size());
}

void chooseMarks(TableCursor &cursor, int column, sqlite3_value *value)
{
    const auto mark = wholeNumber(value);
    if (!mark || (*mark != 0 && *mark != -1)) {
        nothing(cursor);
        return;
    }
    cursor.marks = &cursor.view->marks(column);
    cursor.marksWanted = *mark == -1;
}

QStringView textOf(sqlite3_value *value)
{
    const auto *units = static_cast<const char16_t *>(sqlite3_value_text16(value));
    return {units, sqlite3_value_bytes16(value) / 2};
}

/// Compares all rows that can still be meant, in the order of the file: their texts lie one behind the other there.
int choosePattern(TableCursor &cursor, int column, sqlite3_value *value)
{
    if (sqlite3_value_type(value) == SQLITE_NULL) {
        nothing(cursor);
        return SQLITE_OK;
    }
    const jet::Table &table = *cursor.view->table();
    jet::LikeScan scan(table, column, jet::LikePattern(textOf(value)));
    Bits choice(table.rowCount());
    for (quint32 i = 0; i < cursor.end; ++i) {
        if (i % RowsPerReport == 0 && !runOf(cursor.pVtab).reached(i, cursor.end))
            return SQLITE_INTERRUPT;
        const quint32 row = cursor.rowAt(i);
        table.fetchAhead(row);
        if (cursor.passes(row) && scan.matches(row))
            choice.set(row, true);
    }
    cursor.choice = std::move(choice);
    cursor.chosen = true;
    return SQLITE_OK;
}

int filter(sqlite3_vtab_cursor *base, int, const char *planText, int count, sqlite3_value **arguments)
{
    return guarded(base->pVtab, [&] {
        auto &cursor = *static_cast<TableCursor *>(base);
        cursor.listed = false;
        cursor.marks = nullptr;
        cursor.chosen = false;
        cursor.position = 0;
        cursor.end = cursor.view->table()->rowCount();
        const QList<QByteArray> plan = QByteArray(planText).split(' ');
        // The cheap ones first; patterns look only at what is left.
        for (int i = 0; i < count; ++i) {
            if (plan[i][0] == Lookup)
                lookUp(cursor, plan[i].mid(1).toInt(), arguments[i]);
        }
        for (int i = 0; i < count; ++i) {
            if (plan[i][0] == ByMark)
                chooseMarks(cursor, plan[i].mid(1).toInt(), arguments[i]);
        }
        for (int i = 0; i < count; ++i) {
            if (plan[i][0] != ByPattern)
                continue;
            if (const int code = choosePattern(cursor, plan[i].mid(1).toInt(), arguments[i]); code != SQLITE_OK)
                return code;
        }
        for (const QByteArray &step : plan) {
            if (step.startsWith(Ordered) && !cursor.listed) {
                cursor.list = cursor.view->order(step.mid(1).toInt());
                cursor.listed = true;
            }
        }
        return settle(cursor);
    });
}

int next(sqlite3_vtab_cursor *base)
{
    return guarded(base->pVtab, [&] {
        auto &cursor = *static_cast<TableCursor *>(base);
        ++cursor.position;
        return settle(cursor);
    });
}

int atEnd(sqlite3_vtab_cursor *base)
{
    return static_cast<TableCursor *>(base)->atEnd() ? 1 : 0;
}

void giveText(sqlite3_context *context, QStringView text)
{
    sqlite3_result_text16(context, text.utf16(), static_cast<int>(text.size() * 2), SQLITE_TRANSIENT);
}

void giveValue(sqlite3_context *context, TableCursor &cursor, int column)
{
    const jet::Table &table = *cursor.view->table();
    switch (cursor.view->typeOf(column)) {
    case jet::ColumnType::Boolean:
        sqlite3_result_int(context, table.boolean(cursor.row, column) ? -1 : 0);
        break;
    case jet::ColumnType::Byte:
    case jet::ColumnType::Integer:
    case jet::ColumnType::Long:
        if (const auto value = table.integer(cursor.row, column))
            sqlite3_result_int(context, *value);
        break;
    case jet::ColumnType::Money:
    case jet::ColumnType::Float:
    case jet::ColumnType::Double:
    case jet::ColumnType::DateTime:
    case jet::ColumnType::Numeric:
        if (const auto value = table.number(cursor.row, column))
            sqlite3_result_double(context, *value);
        break;
    case jet::ColumnType::Text:
    case jet::ColumnType::Memo:
        if (!table.isNull(cursor.row, column))
            giveText(context, table.text(cursor.row, column, cursor.buffer));
        break;
    case jet::ColumnType::Guid:
        if (!table.isNull(cursor.row, column))
            giveText(context, table.value(cursor.row, column).toString());
        break;
    case jet::ColumnType::Binary:
    case jet::ColumnType::Ole:
        if (!table.isNull(cursor.row, column)) {
            const QByteArray bytes = table.bytes(cursor.row, column);
            sqlite3_result_blob64(context, bytes.constData(), static_cast<sqlite3_uint64>(bytes.size()),
                                  SQLITE_TRANSIENT);
        }
        break;
    case jet::ColumnType::Unreadable:
        break;
    }
}

int column(sqlite3_vtab_cursor *base, sqlite3_context *context, int index)
{
    return guarded(base->pVtab, [&] {
        giveValue(context, *static_cast<TableCursor *>(base), index);
        return SQLITE_OK;
    });
}

int rowid(sqlite3_vtab_cursor *base, sqlite3_int64 *result)
{
    *result = static_cast<TableCursor *>(base)->row;
    return SQLITE_OK;
}

const sqlite3_module ModuleFunctions = [] {
    sqlite3_module functions{};
    functions.iVersion = 1;
    functions.xCreate = create;
    functions.xConnect = connect;
    functions.xBestIndex = bestIndex;
    functions.xDisconnect = disconnect;
    functions.xDestroy = disconnect;
    functions.xOpen = open;
    functions.xClose = close;
    functions.xFilter = filter;
    functions.xNext = next;
    functions.xEof = atEnd;
    functions.xColumn = column;
    functions.xRowid = rowid;
    return functions;
}();

} // namespace

int registerTableModule(sqlite3 *handle, TableModule *module)
{
    return sqlite3_create_module(handle, "jet", &ModuleFunctions, module);
}

} // namespace kalvenor::dao
