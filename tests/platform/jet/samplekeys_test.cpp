// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/order/sortkey.h"

#include "indexwalker.h"
#include "platform/basic/error.h"
#include "platform/jet/reader/database.h"
#include "samples.h"
#include <algorithm>
#include <optional>

namespace kalvenor::jet {
namespace {

using testing::sample;
using testing::sampleDatabases;

/// The key that an index over Long and Text columns must hold for a row; nothing for other indexes and for texts
/// outside the order.
std::optional<QByteArray> expectedKey(const Table &table, const Index &index, std::uint32_t row)
{
    QByteArray key;
    for (const IndexColumn &part : index.columns) {
        const auto column = std::find_if(table.columns().begin(), table.columns().end(),
                                         [&](const Column &c) { return c.number == part.columnNumber; });
        if (column == table.columns().end() || !part.ascending)
            return std::nullopt;
        const auto place = static_cast<int>(column - table.columns().begin());
        if (table.isNull(row, place)) {
            key += '\0';
        } else if (column->type == ColumnType::Long) {
            const quint32 number = qToBigEndian(static_cast<quint32>(*table.integer(row, place)) ^ 0x80000000U);
            key += '\x7f' + QByteArray(reinterpret_cast<const char *>(&number), 4);
        } else if (column->type == ColumnType::Text) {
            try {
                key += '\x7f' + generalKey(table.text(row, place), Unlisted::Refused);
            } catch (const basic::Error &) {
                return std::nullopt;
            }
        } else {
            return std::nullopt;
        }
    }
    return key;
}

TEST(GeneralKey, equalsTheIndexesOfSampleFiles)
{
    SKIP_WITHOUT_SAMPLES();
    int compared = 0;
    for (const QString &name : sampleDatabases()) {
        const auto database = Database::open(sample(name));
        if (database->image()->version() != Version::Jet4)
            continue;
        for (const CatalogueEntry &entry : database->entries()) {
            if (entry.definitionPage == 0)
                continue;
            const auto table = database->table(entry.name);
            std::map<std::pair<std::uint32_t, int>, std::uint32_t> rows;
            for (std::uint32_t row = 0; row < table->rowCount(); ++row)
                rows[{table->place(row).firstPage, table->place(row).firstSlot}] = row;
            for (const Index &index : table->indexes()) {
                SCOPED_TRACE((name + u' ' + entry.name + u' ' + index.name).toStdString());
                const test::IndexWalker walker(*database->image(), entry.definitionPage, index.rootPage);
                for (const auto &found : walker.leafEntries) {
                    ASSERT_TRUE(rows.contains({found.page, found.slot}));
                    const auto wanted = expectedKey(*table, index, rows[{found.page, found.slot}]);
                    if (!wanted)
                        continue;
                    EXPECT_EQ(found.key.toHex().toStdString(), wanted->toHex().toStdString());
                    ++compared;
                }
            }
        }
    }
    EXPECT_GT(compared, 2000);
}

} // namespace
} // namespace kalvenor::jet
