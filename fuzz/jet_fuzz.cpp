// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a database: everything in it is read, some of it by statements, and only Error may come out.
#include "memorystorage.h"
#include "platform/basic/error.h"
#include "platform/dao/sqlsession.h"
#include <algorithm>

using namespace kalvenor;
using namespace Qt::StringLiterals;

namespace {

const QString File = u"/nowhere/fuzzed"_s;

void readTable(const jet::Table &table)
{
    for (std::uint32_t row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < static_cast<int>(table.columns().size()); ++column) {
            table.isNull(row, column);
            table.value(row, column);
            table.number(row, column);
        }
    }
}

/// The first column of a type, as statements write its name; nothing where there is none.
QString nameOf(const jet::Table &table, jet::ColumnType type)
{
    const auto found = std::ranges::find(table.columns(), type, &jet::Column::type);
    return found == table.columns().end() ? QString() : u'[' + found->name + u']';
}

void query(dao::SqlSession &session, const jet::Table &table)
{
    const QString text = nameOf(table, jet::ColumnType::Text);
    const QString number = nameOf(table, jet::ColumnType::Long);
    session.query(u"SELECT * FROM [%1] WHERE %2 LIKE '*e*' AND %3 > 1 ORDER BY %2"_s.arg(table.name(), text, number),
                  {});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static MemoryStorage storage;
    storage.fill(File, data, size);
    try {
        const auto database = jet::Database::open(File);
        dao::SqlSession session(std::make_shared<dao::Snapshot>(database));
        for (const jet::CatalogueEntry &entry : database->entries()) {
            if (entry.system) // their rows are of the same kind
                continue;
            try {
                const auto table = database->table(entry.name);
                readTable(*table);
                query(session, *table);
            } catch (const basic::Error &) { // one damaged table does not hide the others
            }
        }
    } catch (const basic::Error &) { // refused as a whole
    }
    return 0;
}
