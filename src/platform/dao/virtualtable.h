// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/dao/bits.h"
#include "platform/dao/tableview.h"
#include <memory>
#include <span>
#include <sqlite3.h>

namespace kalvenor::dao {

class SqlRun;

/// A walk over rows of a table view, as SQLite drives it.
struct TableCursor : sqlite3_vtab_cursor {
    std::shared_ptr<TableView> view;
    bool listed = false;           ///< visits `list`, else all rows
    std::span<const quint32> list; ///< belongs to the view
    const Bits *marks = nullptr;   ///< where set, only rows whose mark is `marksWanted`
    bool marksWanted = false;
    bool chosen = false; ///< only rows of `choice`
    Bits choice;
    quint32 position = 0;
    quint32 end = 0;
    quint32 row = 0;
    QString buffer;

    bool atEnd() const { return position >= end; }
    quint32 rowAt(quint32 place) const { return listed ? list[place] : place; }
    bool passes(quint32 candidate) const
    {
        return (marks == nullptr || marks->test(candidate) == marksWanted) && (!chosen || choice.test(candidate));
    }
};

/// What a virtual table needs from its session; `current` is null while no statement runs.
struct TableModule {
    SqlRun **current = nullptr;
    std::shared_ptr<TableView> next; ///< the view that the table being created shows
};

/// Registers the virtual tables' module "jet", which takes its views from `module`. Returns SQLite's code.
int registerTableModule(sqlite3 *handle, TableModule *module);

} // namespace kalvenor::dao
