// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a database: everything in it is read, and only kalvenor::Error may come out.
#include "platform/basic/error.h"
#include "platform/jet/reader/database.h"
#include <cstddef>
#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

void readTable(kalvenor::jet::Database &database, const QString &name)
{
    try {
        const auto table = database.table(name);
        QString buffer;
        for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
            for (int column = 0; column < static_cast<int>(table->columns().size()); ++column) {
                table->isNull(row, column);
                table->value(row, column);
                table->number(row, column);
                table->text(row, column, buffer);
            }
        }
    } catch (const kalvenor::basic::Error &) { // one damaged table does not hide the others
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    try {
        const auto database =
            kalvenor::jet::Database::open(kalvenor::jet::Image::fromBytes(u"fuzz"_s, std::span(data, size)));
        for (const kalvenor::jet::CatalogueEntry &entry : database->entries())
            readTable(*database, entry.name);
    } catch (const kalvenor::basic::Error &) { // refused as a whole
    }
    return 0;
}
