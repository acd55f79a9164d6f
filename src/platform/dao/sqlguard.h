// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include <functional>
#include <optional>
#include <QString>
#include <sqlite3.h>

namespace kalvenor::dao {

class SqlRun;

/// What statements may do, as SQLite is told it: reading the declared tables, and a few functions. Everything else is
/// refused by name.
class SqlGuard {
public:
    /// `current` is the run at hand or null; `isDeclared` is asked for each table that is read.
    SqlGuard(SqlRun **current, std::function<bool(const QString &)> isDeclared)
        : m_current(current), m_isDeclared(std::move(isDeclared))
    {
    }

    /// Registers the collation GENERAL and Jet's LIKE and sets the limits. Returns SQLite's code.
    int setUp(sqlite3 *handle);
    /// Off while tables are declared.
    void watch(sqlite3 *handle, bool on);

private:
    static int authorize(void *self, int action, const char *first, const char *second, const char *, const char *);
    static int tick(void *self);
    static void like(sqlite3_context *context, int count, sqlite3_value **arguments);
    /// The refusal, without a place; nothing where the action is allowed.
    std::optional<basic::Error> objection(int action, const QString &first, const QString &second) const;

    SqlRun **m_current;
    std::function<bool(const QString &)> m_isDeclared;
};

} // namespace kalvenor::dao
