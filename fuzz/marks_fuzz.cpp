// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a database whose rows are marked: what is refused leaves the file as it is, what is done changes one bit
// a row and no other value, and taking it back gives the same bytes again.
#include "memorystorage.h"
#include "platform/basic/error.h"
#include "platform/jet/marks/markwriter.h"
#include "platform/jet/reader/record.h"
#include <bit>
#include <cstdlib>
#include <QDataStream>
#include <QIODevice>

using namespace kalvenor;
using namespace Qt::StringLiterals;

namespace {

const QString File = u"/nowhere/fuzzed"_s;

int firstOf(const jet::Table &table, jet::ColumnType type)
{
    const auto found = std::ranges::find(table.columns(), type, &jet::Column::type);
    return found == table.columns().end() ? -1 : static_cast<int>(found - table.columns().begin());
}

/// All values but the marks, in bytes: some number is not equal to itself.
QByteArray otherValues(const jet::Table &table, int mark)
{
    QByteArray values;
    QDataStream stream(&values, QIODevice::WriteOnly);
    for (std::uint32_t row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < static_cast<int>(table.columns().size()); ++column) {
            if (column != mark)
                stream << table.value(row, column);
        }
    }
    return values;
}

int bitsChanged(const MemoryStorage::Bytes &before, const MemoryStorage::Bytes &after)
{
    int bits = 0;
    forEachDifference(before, after, [&bits](std::size_t, std::uint8_t changed) { bits += std::popcount(changed); });
    return bits;
}

void mark(MemoryStorage &storage, const std::shared_ptr<jet::Database> &database, const QString &name)
{
    const auto table = database->table(name);
    const int column = firstOf(*table, jet::ColumnType::Boolean);
    const int key = firstOf(*table, jet::ColumnType::Long);
    const MemoryStorage::Bytes before = storage.bytes(File);
    const auto changed = [&] {
        return bitsChanged(before, storage.bytes(File));
    };
    jet::MarkWriter writer(database, table, column, key);
    std::vector<jet::Mark> marks;
    for (std::uint32_t row = 0; row < table->rowCount(); ++row)
        marks.push_back({row, row % 3 != 0});
    const std::uint16_t number = table->columns()[static_cast<std::size_t>(column)].number;
    bool raises = false; // more than a bit a row
    for (const jet::Mark &wish : marks)
        raises = raises || !jet::Record(table->layout(), table->record(wish.row)).has(number);
    const jet::MarksWritten written = writer.write(marks);
    const std::vector<std::uint32_t> &rows = written.changed;
    if (!raises && changed() != static_cast<int>(rows.size()))
        std::abort();
    for (const jet::LeftRow &left : written.left)
        std::erase_if(marks, [&left](const jet::Mark &wish) { return wish.row == left.row; });
    const auto again = jet::Database::open(File)->table(name);
    if (otherValues(*again, column) != otherValues(*table, column))
        std::abort();
    for (const jet::Mark &wish : marks) {
        if (again->boolean(wish.row, column) != wish.on)
            std::abort();
    }
    for (jet::Mark &back : marks)
        back.on = !back.on;
    std::erase_if(marks, [&](const jet::Mark &back) { return std::ranges::find(rows, back.row) == rows.end(); });
    writer.write(marks);
    if (!raises && changed() != 0)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static MemoryStorage storage;
    storage.fill(File, data, size);
    try {
        const auto database = jet::Database::open(File);
        for (const jet::CatalogueEntry &entry : database->entries()) {
            try {
                if (!entry.system)
                    mark(storage, database, entry.name);
            } catch (const basic::Error &) { // this table cannot be marked
            }
        }
    } catch (const basic::Error &) { // refused as a whole
    }
    return 0;
}
