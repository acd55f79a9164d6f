// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/sqlguard.h"

#include "platform/dao/sqlsession.h"
#include "platform/jet/order/like.h"
#include "platform/jet/order/sortkey.h"
#include <algorithm>
#include <array>

namespace kalvenor::dao {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array AllowedFunctions{u"abs",    u"avg",   u"coalesce", u"count", u"ifnull", u"length", u"like",
                                      u"lower",  u"ltrim", u"max",      u"min",   u"nullif", u"round",  u"rtrim",
                                      u"substr", u"sum",   u"total",    u"trim",  u"upper"};

struct Limit {
    int id;
    int value;
};
constexpr std::array Limits{
    Limit{SQLITE_LIMIT_LENGTH, 64 * 1024 * 1024}, // a picture of an OLE column must fit
    Limit{SQLITE_LIMIT_SQL_LENGTH, 100'000},
    Limit{SQLITE_LIMIT_COLUMN, 1024},
    Limit{SQLITE_LIMIT_EXPR_DEPTH, 200},
    Limit{SQLITE_LIMIT_COMPOUND_SELECT, 8},
    Limit{SQLITE_LIMIT_VDBE_OP, 100'000},
    Limit{SQLITE_LIMIT_FUNCTION_ARG, 16},
    Limit{SQLITE_LIMIT_ATTACHED, 0},
    Limit{SQLITE_LIMIT_VARIABLE_NUMBER, 0},
    Limit{SQLITE_LIMIT_TRIGGER_DEPTH, 1},
    Limit{SQLITE_LIMIT_WORKER_THREADS, 0},
};

constexpr int StepsPerTick = 20'000; ///< instructions of SQLite's machine; about a millisecond

int compareTexts(void *, int leftBytes, const void *left, int rightBytes, const void *right)
{
    return jet::compareGeneral({static_cast<const char16_t *>(left), leftBytes / 2},
                               {static_cast<const char16_t *>(right), rightBytes / 2});
}

QStringView textOf(sqlite3_value *value)
{
    const auto *units = static_cast<const char16_t *>(sqlite3_value_text16(value));
    return {units, sqlite3_value_bytes16(value) / 2};
}

void forgetPattern(void *pattern)
{
    delete static_cast<jet::LikePattern *>(pattern);
}

void refuseEscape(sqlite3_context *context, int, sqlite3_value **)
{
    sqlite3_result_error(context, "LIKE knows no ESCAPE; put the character in brackets instead", -1);
}

} // namespace

// LIKE(pattern, text), as SQLite calls it for `text LIKE pattern`.
void SqlGuard::like(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    try {
        auto *pattern = static_cast<const jet::LikePattern *>(sqlite3_get_auxdata(context, 0));
        std::unique_ptr<jet::LikePattern> fresh;
        if (pattern == nullptr) {
            fresh = std::make_unique<jet::LikePattern>(textOf(arguments[0]));
            pattern = fresh.get();
        }
        sqlite3_result_int(context, pattern->matches(textOf(arguments[1])) ? 1 : 0);
        if (fresh)
            sqlite3_set_auxdata(context, 0, fresh.release(), forgetPattern);
    } catch (...) {
        const auto *self = static_cast<const SqlGuard *>(sqlite3_user_data(context));
        (*self->m_current)->keepException();
        sqlite3_result_error_code(context, SQLITE_ERROR);
    }
}

int SqlGuard::setUp(sqlite3 *handle)
{
    for (const auto &[option, on] :
         {std::pair{SQLITE_DBCONFIG_DQS_DML, 0}, std::pair{SQLITE_DBCONFIG_DQS_DDL, 0},
          std::pair{SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0}, std::pair{SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0}})
        sqlite3_db_config(handle, option, on, nullptr);
    for (const Limit &limit : Limits)
        sqlite3_limit(handle, limit.id, limit.value);
    sqlite3_progress_handler(handle, StepsPerTick, tick, this);
    // Texts stay in UTF-16, as they come; what must be sorted stays in memory.
    int code = sqlite3_exec(handle, "PRAGMA encoding='UTF-16'; PRAGMA temp_store=MEMORY;", nullptr, nullptr, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_create_collation_v2(handle, "GENERAL", SQLITE_UTF16_ALIGNED, nullptr, compareTexts, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_create_function_v2(handle, "like", 2, SQLITE_UTF16 | SQLITE_DETERMINISTIC, this, like, nullptr,
                                          nullptr, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_create_function_v2(handle, "like", 3, SQLITE_UTF16 | SQLITE_DETERMINISTIC, this, refuseEscape,
                                          nullptr, nullptr, nullptr);
    watch(handle, true);
    return code;
}

void SqlGuard::watch(sqlite3 *handle, bool on)
{
    sqlite3_set_authorizer(handle, on ? authorize : nullptr, on ? this : nullptr);
}

std::optional<basic::Error> SqlGuard::objection(int action, const QString &first, const QString &second) const
{
    using basic::Fault;
    switch (action) {
    case SQLITE_SELECT:
        return std::nullopt;
    case SQLITE_READ:
        return m_isDeclared(first) ? std::nullopt : std::optional(basic::Error(Fault::TableNotInFile, {}, {first}));
    case SQLITE_FUNCTION:
        if (std::ranges::any_of(AllowedFunctions, [&second](const char16_t *name) {
                return second.compare(QStringView(name), Qt::CaseInsensitive) == 0;
            }))
            return std::nullopt;
        return basic::Error(Fault::FunctionNotAvailable, {}, {second});
    case SQLITE_RECURSIVE:
        return basic::Error(Fault::NoRecursion);
    default:
        return basic::Error(Fault::OnlySelectAndUpdate, {}, {MarkColumnName});
    }
}

int SqlGuard::authorize(void *self, int action, const char *first, const char *second, const char *, const char *)
{
    const auto *guard = static_cast<const SqlGuard *>(self);
    try {
        const std::optional<basic::Error> refusal =
            guard->objection(action, QString::fromUtf8(first), QString::fromUtf8(second));
        if (!refusal)
            return SQLITE_OK;
        if (SqlRun *run = *guard->m_current; run != nullptr && !run->refusal)
            run->refusal = refusal;
    } catch (...) {
        if (SqlRun *run = *guard->m_current; run != nullptr)
            run->keepException();
    }
    return SQLITE_DENY;
}

int SqlGuard::tick(void *self)
{
    SqlRun *run = *static_cast<const SqlGuard *>(self)->m_current;
    return run == nullptr || run->tick() ? 0 : 1;
}

} // namespace kalvenor::dao
