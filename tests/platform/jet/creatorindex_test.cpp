// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator.h"

#include "indexwalker.h"
#include "platform/basic/error.h"
#include "platform/jet/order/sortkey.h"
#include "platform/jet/reader/database.h"
#include "support/errors.h"
#include <algorithm>
#include <numeric>
#include <QTemporaryDir>
#include <random>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {
namespace {

struct Written {
    explicit Written(Creator &creator)
    {
        const QString file = folder.filePath(u"new.mdb"_s);
        creator.write(file);
        database = Database::open(file);
    }
    QTemporaryDir folder;
    std::shared_ptr<Database> database;
};

/// Walks an index of the table; the rows it names in order, each row of the table once.
std::vector<std::uint32_t> rowsInOrder(const Table &table, const Index &index, int depth = 0)
{
    const test::IndexWalker walker(table.image(), table.definitionPage(), index.rootPage);
    EXPECT_EQ(walker.leafEntries.size(), table.rowCount());
    if (depth != 0) {
        EXPECT_EQ(walker.depth, depth);
    }
    std::map<std::pair<std::uint32_t, int>, std::uint32_t> rowAt;
    for (std::uint32_t row = 0; row < table.rowCount(); ++row)
        rowAt[{table.place(row).firstPage, table.place(row).firstSlot}] = row;
    std::vector<std::uint32_t> rows;
    for (const auto &entry : walker.leafEntries) {
        const auto found = rowAt.find({entry.page, entry.slot});
        if (found == rowAt.end()) {
            ADD_FAILURE() << "no row at " << entry.page << ' ' << int{entry.slot};
            continue;
        }
        rows.push_back(found->second);
        rowAt.erase(found);
    }
    EXPECT_TRUE(rowAt.empty());
    return rows;
}

TEST(CreatedIndex, hasAsManyLevelsAsItNeeds)
{
    const struct {
        int rows;
        int depth;
    } cases[] = {{0, 1}, {1, 1}, {401, 1}, {402, 2}, {401 * 278, 2}, {401 * 278 + 1, 3}, {150000, 3}};
    for (const auto &[rows, depth] : cases) {
        Creator creator;
        auto &made = creator.addTable("Daten", {{"Counter"}}, {{"Counter", {"Counter"}}});
        std::vector<int> counters(static_cast<std::size_t>(rows));
        std::iota(counters.begin(), counters.end(), -rows / 2);
        std::shuffle(counters.begin(), counters.end(), std::mt19937(3));
        for (const int counter : counters)
            made.addRow({counter});
        const Written written(creator);
        const auto table = written.database->table("Daten");
        const std::vector<std::uint32_t> order = rowsInOrder(*table, table->indexes().at(0), depth);
        for (std::size_t i = 0; i < order.size(); ++i)
            ASSERT_EQ(table->integer(order[i], 0), -rows / 2 + static_cast<int>(i));
    }
}

TEST(CreatedIndex, ordersEveryKindOfKey)
{
    const std::vector<NewColumn> columns{{"L"},
                                         {"I", ColumnType::Integer},
                                         {"B", ColumnType::Byte},
                                         {"F", ColumnType::Float},
                                         {"D", ColumnType::Double},
                                         {"T", ColumnType::DateTime}};
    std::vector<NewIndex> indexes;
    indexes.reserve(columns.size());
    for (const NewColumn &column : columns)
        indexes.push_back({column.name, {column.name}, false});
    Creator creator;
    auto &made = creator.addTable("Daten", columns, indexes);
    std::mt19937 random(5);
    const double reals[] = {-1e30, -2.5, -1.0, -0.25, 0.0, 0.25, 1.0, 36526.25, 1e30};
    for (int row = 0; row < 3000; ++row) {
        const auto whole = static_cast<std::int32_t>(random());
        const double real = reals[random() % std::size(reals)];
        if (row % 50 == 0)
            made.addRow(std::vector<NewValue>(columns.size()));
        else
            made.addRow({whole, whole >> 16, whole & 0xff, real, real + row, -real});
    }
    const Written written(creator);
    const auto table = written.database->table("Daten");
    for (std::size_t column = 0; column < columns.size(); ++column) {
        SCOPED_TRACE(columns[column].name.toStdString());
        const std::vector<std::uint32_t> order = rowsInOrder(*table, table->indexes().at(column));
        std::optional<double> last;
        for (const std::uint32_t row : order) {
            const auto now = table->number(row, static_cast<int>(column));
            ASSERT_TRUE(now || !last) << "null behind a value";
            ASSERT_TRUE(!last || *last <= *now) << *last << ' ' << *now;
            last = now;
        }
    }
}

TEST(CreatedIndex, ordersTextsAndYesNoAndSeveralColumns)
{
    Creator creator;
    auto &made =
        creator.addTable("Daten", {{"Name", ColumnType::Text}, {"Ja", ColumnType::Boolean}, {"Nr", ColumnType::Long}},
                         {{"Name", {"Name"}, false}, {"Ja", {"Ja"}, false}, {"Beides", {"Ja", "Name", "Nr"}}});
    std::mt19937 random(9);
    const QString alphabet = u"abÄäzß-' E"_s;
    for (int row = 0; row < 4000; ++row) {
        QString name;
        for (auto length = random() % 40; length > 0; --length)
            name += alphabet[static_cast<qsizetype>(random() % 10)];
        made.addRow({row % 100 == 0 ? NewValue() : NewValue(name), random() % 2 == 0, row});
    }
    const Written written(creator);
    const auto table = written.database->table("Daten");
    ASSERT_EQ(table->indexes().size(), 3U);
    const auto name = [&](std::uint32_t row) {
        return table->isNull(row, 0) ? QByteArray() : generalKey(table->text(row, 0));
    };
    const auto key = [&](std::uint32_t row) {
        return std::tuple(!table->boolean(row, 1), name(row), *table->integer(row, 2));
    };
    const std::vector<std::uint32_t> byName = rowsInOrder(*table, table->indexes()[0]);
    EXPECT_TRUE(std::is_sorted(byName.begin(), byName.end(), [&](auto a, auto b) { return name(a) < name(b); }));
    const std::vector<std::uint32_t> byYes = rowsInOrder(*table, table->indexes()[1]);
    EXPECT_TRUE(table->boolean(byYes.front(), 1));
    EXPECT_FALSE(table->boolean(byYes.back(), 1));
    EXPECT_TRUE(std::is_sorted(byYes.begin(), byYes.end(),
                               [&](auto a, auto b) { return table->boolean(a, 1) && !table->boolean(b, 1); }));
    const std::vector<std::uint32_t> byBoth = rowsInOrder(*table, table->indexes()[2]);
    EXPECT_TRUE(std::is_sorted(byBoth.begin(), byBoth.end(), [&](auto a, auto b) { return key(a) < key(b); }));
}

TEST(CreatedIndex, refusesWhatItsKindForbids)
{
    const auto rowsTwice = [](const NewIndex &index, const NewValue &first, const NewValue &second) {
        Creator creator;
        auto &made =
            creator.addTable("Daten", {{"Nr"}, {"Name", ColumnType::Text}, {"Ja", ColumnType::Boolean}}, {index});
        const QTemporaryDir folder;
        for (const NewValue &value : {first, second}) {
            const bool isText = std::holds_alternative<QString>(value);
            made.addRow({isText ? NewValue() : value, isText ? value : NewValue(), true});
        }
        creator.write(folder.filePath("new.mdb"));
    };
    const NewIndex number{"I", {"Nr"}};
    const NewIndex name{"I", {"Name"}};
    using basic::Fault;
    const struct {
        NewIndex index;
        NewValue first, second;
        Fault fault;
    } rows[] = {
        {number, 7, 7, Fault::IndexKeyTwice},
        {name, QString("Weiß"), QString("WEISS "), Fault::IndexKeyTwice},
        {{"I", {"Ja"}}, 1, 2, Fault::IndexKeyTwice},
        {{"I", {"Name"}, false}, QString("Ω"), {}, Fault::CharacterNotOrdered},
        {{"I", {"Nr"}, true, true}, 7, {}, Fault::KeyUnsuited},
        {number, {}, {}, Fault::None},
        {{"I", {"Nr", "Name"}}, {}, {}, Fault::None},
        {{"I", {"Nr"}, false}, 7, 7, Fault::None},
    };
    for (const auto &row : rows)
        EXPECT_EQ(kalvenor::test::faultOf([&] { rowsTwice(row.index, row.first, row.second); }), row.fault);
    const auto error = kalvenor::test::thrownBy([&] { rowsTwice(number, -5, -5); });
    EXPECT_EQ(error.value().arguments(), QStringList({"I", "-5"}));
    EXPECT_EQ(error->place().table, "Daten");
}

} // namespace
} // namespace kalvenor::jet
