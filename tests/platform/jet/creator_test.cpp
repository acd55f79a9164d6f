// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator.h"

#include "platform/basic/error.h"
#include "platform/jet/reader/database.h"
#include "platform/jet/reader/datapage.h"
#include "platform/jet/reader/encoding.h"
#include "samples.h"
#include "support/errors.h"
#include "support/fixtures.h"
#include <algorithm>
#include <cmath>
#include <QTemporaryDir>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {
namespace {

using testing::readAll;

class CreatorTest : public ::testing::Test {
protected:
    std::shared_ptr<Database> written(Creator &creator, std::uint32_t key = 0)
    {
        creator.write(file, key);
        auto database = Database::open(file);
        EXPECT_TRUE(database->damage().empty());
        return database;
    }

    QTemporaryDir folder;
    QString file = folder.filePath(u"new.mdb"_s);
};

/// All rows of a table as the reader gives them.
std::vector<std::vector<QVariant>> rowsOf(Database &database, const QString &name)
{
    const auto table = database.table(name);
    EXPECT_TRUE(table->damage().empty());
    std::vector<std::vector<QVariant>> rows(table->rowCount());
    for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < static_cast<int>(table->columns().size()); ++column)
            rows[row].push_back(table->value(row, column));
    }
    return rows;
}

TEST_F(CreatorTest, keepsEveryValue)
{
    QByteArray blob(20000, '\0');
    for (qsizetype i = 0; i < blob.size(); ++i)
        blob[i] = static_cast<char>(i * 7 + i / 256);
    const QString umlauts = u"Äöüß ÿ\u0001"_s;
    const QUuid guid(u"{00112233-4455-6677-8899-aabbccddeeff}"_s);

    struct Case {
        NewColumn column;
        std::vector<std::pair<NewValue, QVariant>> values;
    };
    const auto same = [](const QString &text) {
        return std::pair<NewValue, QVariant>(text, text);
    };
    const auto bytes = [](const QByteArray &some) {
        return std::pair<NewValue, QVariant>(some, some);
    };
    const QString u0100 = QString(QChar(0x100)) + u"bc"_s;
    const QString withNul = u"a"_s + QChar(0) + u"bcd"_s;
    const Case cases[] = {
        {{"Yes", ColumnType::Boolean}, {{true, true}, {false, false}}},
        {{"Byte", ColumnType::Byte}, {{0, 0}, {255, 255}, {7.0, 7}}},
        {{"Integer", ColumnType::Integer}, {{-32768, -32768}, {32767, 32767}}},
        {{"Long", ColumnType::Long}, {{INT32_MIN, INT32_MIN}, {INT32_MAX, INT32_MAX}, {-1.0, -1}}},
        {{"Money", ColumnType::Money},
         {{QString("922337203685477.5807"), "922337203685477.5807"},
          {QString("-922337203685477.5808"), "-922337203685477.5808"},
          {-3.5, "-3.5"},
          {QString("0.0001"), "0.0001"}}},
        {{"Float", ColumnType::Float}, {{1.5, 1.5}, {-3.4028234663852886e38, -3.4028234663852886e38}}},
        {{"Double", ColumnType::Double},
         {{1.7976931348623157e308, 1.7976931348623157e308}, {5e-324, 5e-324}, {7, 7.0}}},
        {{"Date", ColumnType::DateTime}, {{-1.25, -1.25}, {2958465.5, 2958465.5}}},
        {{"Binary", ColumnType::Binary, 255}, {bytes(blob.left(255)), bytes(QByteArray(""))}},
        {{"Text", ColumnType::Text},
         {same(umlauts), same(""), same("ab"), same(QString(255, u'x')), same(QString(200, u'\u20ac')), same(u0100),
          same(withNul), same(u"\U0001F600"_s)}},
        {{"Wide", ColumnType::Text, 20, false}, {same(umlauts), same("plain text")}},
        {{"Memo", ColumnType::Memo},
         {same(""), same(QString(62, u'i')), same(QString(1024, u'r')), same(QString(1025, u'w')),
          same(QString(70, u'ö')), same(QString(2038, u'\u20ac')), same(QString(2039, u'\u20ac')),
          same(QString(9000, u'c') + umlauts)}},
        {{"Ole", ColumnType::Ole},
         {bytes(blob.left(64)), bytes(blob.left(65)), bytes(blob.left(4076)), bytes(blob.left(4077)),
          bytes(blob.left(8152)), bytes(blob.left(8153)), bytes(blob)}},
        {{"Guid", ColumnType::Guid}, {{guid.toRfc4122(), guid}}},
        {{"Numeric", ColumnType::Numeric, 0, true, false, 3},
         {{QString("-1234567890123456789012345.678"), "-1234567890123456789012345.678"},
          {QString("0.001"), "0.001"},
          {2.5, "2.5"}}},
    };
    Creator creator;
    std::vector<NewColumn> columns;
    std::size_t rowCount = 0;
    for (const Case &one : cases) {
        columns.push_back(one.column);
        rowCount = std::max(rowCount, one.values.size());
    }
    auto &table = creator.addTable("Alles", columns);
    ++rowCount; // the last one null everywhere
    for (std::size_t row = 0; row < rowCount; ++row) {
        std::vector<NewValue> values;
        for (const Case &one : cases)
            values.push_back(row < one.values.size() ? one.values[row].first : NewValue());
        table.addRow(values);
    }
    for (const std::uint32_t key : {0U, 0x4b1d5eedU}) {
        const auto rows = rowsOf(*written(creator, key), "Alles");
        ASSERT_EQ(rows.size(), rowCount);
        for (std::size_t row = 0; row < rowCount; ++row) {
            for (std::size_t column = 0; column < std::size(cases); ++column) {
                const Case &one = cases[column];
                QVariant wanted;
                if (row < one.values.size())
                    wanted = one.values[row].second;
                else if (one.column.type == ColumnType::Boolean)
                    wanted = false;
                EXPECT_EQ(rows[row][column], wanted) << one.column.name.toStdString() << " row " << row << ": "
                                                     << rows[row][column].toString().left(80).toStdString();
            }
        }
    }
}

TEST_F(CreatorTest, fillsPagesUpTo255Rows)
{
    Creator creator;
    auto &table = creator.addTable("Klein", {{"Ja", ColumnType::Boolean}});
    for (int row = 0; row < 600; ++row)
        table.addRow({row % 3 == 0});
    const auto database = written(creator);
    const auto read = database->table("Klein");
    ASSERT_EQ(read->rowCount(), 600U);
    for (std::uint32_t row = 0; row < 600; ++row) {
        EXPECT_EQ(read->boolean(row, 0), row % 3 == 0);
        EXPECT_EQ(read->place(row).firstSlot, row % 255);
    }
}

/// Bits of the global map, which says which pages are free.
std::vector<bool> freePages(const Image &image)
{
    const DataPage page(image.version(), image.page(1));
    const auto row = page.bytes(*page.slot(0));
    std::vector<bool> bits;
    const auto append = [&bits](std::span<const std::uint8_t> bitmap) {
        for (const std::uint8_t byte : bitmap) {
            for (int bit = 0; bit < 8; ++bit)
                bits.push_back((byte >> bit & 1) != 0);
        }
    };
    if (row[0] == 0) {
        EXPECT_EQ(load32(&row[1]), 0U);
        append(row.subspan(5));
        return bits;
    }
    for (std::size_t at = 1; at + 4 <= row.size() && load32(&row[at]) != 0; at += 4) {
        EXPECT_EQ(image.page(load32(&row[at]))[0], 5);
        append(image.page(load32(&row[at])).subspan(4));
    }
    return bits;
}

TEST_F(CreatorTest, mapsTablesOfManyPages)
{
    for (const int pages : {1, 480, 600, 8500, 33000}) {
        Creator creator;
        auto &table = creator.addTable("Breit", {{"Nr", ColumnType::Long},
                                                 {"A", ColumnType::Text, 255, false},
                                                 {"B", ColumnType::Text, 255, false},
                                                 {"C", ColumnType::Text, 255, false},
                                                 {"D", ColumnType::Text, 255, false},
                                                 {"E", ColumnType::Text, 255, false}});
        const NewValue wide(QString(255, u'b'));
        for (int row = 0; row < pages; ++row)
            table.addRow({row, wide, wide, wide, wide, wide});
        const auto database = written(creator);
        const Image &image = *database->image();
        const auto read = database->table("Breit");
        ASSERT_EQ(read->rowCount(), static_cast<std::uint32_t>(pages));
        for (std::uint32_t row = 0; row < read->rowCount(); row += 97)
            EXPECT_EQ(read->integer(row, 0), static_cast<int>(row));

        const std::vector<bool> freeBits = freePages(image);
        ASSERT_GE(freeBits.size(), image.pageCount());
        ASSERT_GE(freeBits.size(), 512U);
        for (std::uint32_t page = 0; page < freeBits.size(); ++page)
            ASSERT_EQ(freeBits[page], page >= image.pageCount()) << page << " of " << image.pageCount();
    }
}

TEST_F(CreatorTest, splitsALongDefinition)
{
    Creator creator;
    std::vector<NewColumn> columns;
    std::vector<NewIndex> indexes;
    std::vector<NewValue> row;
    columns.reserve(255);
    for (int i = 0; i < 255; ++i) {
        columns.push_back(
            {u"Spalte mit einem recht langen Namen Nummer %1"_s.arg(i), i < 40 ? ColumnType::Memo : ColumnType::Long});
        row.push_back(i < 40 ? NewValue(QString(200, u'm')) : NewValue(i));
    }
    indexes.reserve(32);
    for (int i = 0; i < 32; ++i)
        indexes.push_back({u"Index %1"_s.arg(i), {columns[100 + static_cast<std::size_t>(i)].name}});
    auto &table = creator.addTable("Viele Spalten", columns, indexes);
    table.addRow(row);
    const auto database = written(creator);
    const auto read = database->table("Viele Spalten");
    ASSERT_EQ(read->columns().size(), 255U);
    EXPECT_EQ(read->indexes().size(), 32U);
    ASSERT_EQ(read->rowCount(), 1U);
    EXPECT_EQ(read->columns()[254].name, columns[254].name);
    EXPECT_EQ(read->integer(0, 254), 254);
    EXPECT_EQ(read->text(0, 39), QString(200, u'm'));
    const auto definition = database->image()->page(read->definitionPage());
    EXPECT_EQ(load16(&definition[2]), 0);
    EXPECT_NE(load32(&definition[4]), 0U);
}

TEST_F(CreatorTest, writesTheSystemTables)
{
    Creator creator;
    creator.addTable("Adressen_DS ", {{"Counter"}});
    creator.addTable("Zweite", {{"Counter"}});
    const auto database = written(creator);
    struct Object {
        int id, parent;
        const char *name;
        int type, flags;
        const char *owner;
    };
    const Object objects[] = {
        {0x0f000001, 0x0f000000, "Tables", 3, INT32_MIN, "6589"},
        {0x0f000002, 0x0f000000, "Databases", 3, INT32_MIN, "6589"},
        {0x0f000003, 0x0f000000, "Relationships", 3, INT32_MIN, "6589"},
        {0x10000000, 0x0f000002, "MSysDb", 2, INT32_MIN, "648b"},
        {2, 0x0f000001, "MSysObjects", 1, INT32_MIN, "6589"},
        {3, 0x0f000001, "MSysACEs", 1, INT32_MIN, "6589"},
        {4, 0x0f000001, "MSysQueries", 1, INT32_MIN, "6589"},
        {5, 0x0f000001, "MSysRelationships", 1, INT32_MIN, "6589"},
        {10, 0x0f000001, "Adressen_DS ", 1, 0, "648b"},
        {12, 0x0f000001, "Zweite", 1, 0, "648b"},
    };
    const auto rows = rowsOf(*database, "MSysObjects");
    ASSERT_EQ(rows.size(), std::size(objects));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Object &wanted = objects[i];
        EXPECT_EQ(rows[i][0], wanted.id) << wanted.name;
        EXPECT_EQ(rows[i][1], wanted.parent) << wanted.name;
        EXPECT_EQ(rows[i][2], wanted.name);
        EXPECT_EQ(rows[i][3], wanted.type) << wanted.name;
        EXPECT_EQ(rows[i][6].toByteArray().toHex(), wanted.owner) << wanted.name;
        EXPECT_EQ(rows[i][7], wanted.flags) << wanted.name;
        EXPECT_TRUE(std::all_of(rows[i].begin() + 8, rows[i].end(), [](const QVariant &v) { return !v.isValid(); }));
    }
    QStringList rights;
    for (const auto &row : rowsOf(*database, "MSysACEs")) {
        rights += u"%1 %2 %3 %4"_s.arg(row[0].toInt(), 0, 16)
                      .arg(QString::fromLatin1(row[1].toByteArray().toHex()))
                      .arg(row[2].toInt())
                      .arg(row[3].toInt());
    }
    EXPECT_EQ(rights, (QStringList{"2 648b 393216 0",
                                   "3 648b 393216 0",
                                   "4 648b 393216 0",
                                   "5 648b 917504 0",
                                   "4 658b 20 0",
                                   "5 658b 20 0",
                                   "2 658b 20 0",
                                   "f000001 658e 983294 1",
                                   "f000001 648b 393217 0",
                                   "f000001 658b 1048319 1",
                                   "f000003 658e 983294 1",
                                   "f000003 648b 393217 0",
                                   "f000003 658b 1048575 1",
                                   "f000002 648b 393216 0",
                                   "10000000 648b 393230 0",
                                   "10000000 658b 14 0",
                                   "a 648b 1048575 0",
                                   "a 658b 1048575 0",
                                   "c 648b 1048575 0",
                                   "c 658b 1048575 0"}));
    EXPECT_EQ(database->table("MSysQueries")->rowCount(), 0U);
    EXPECT_EQ(database->table("MSysRelationships")->indexes().size(), 3U);

    auto header = readAll(file);
    maskHeader(std::span(header).first(4096), true);
    const auto part = [&](int from, int length) {
        return QByteArray(reinterpret_cast<const char *>(header.data()) + from, length).toHex();
    };
    EXPECT_EQ(part(0, 24), "000100005374616e64617264204a65742044420001000000");
    EXPECT_EQ(part(0x18, 24), "000100000101000002000000030000000400000005000000");
    EXPECT_EQ(part(0x3c, 10), "e4040000000059a50000");
    EXPECT_EQ(part(0x6a, 16), "1c260000090400003e85d33b3eabe440");
    EXPECT_EQ(part(0x98, 8), "54060000342e3000");
    EXPECT_EQ(part(0xe00, 6), "010100010001");
}

TEST_F(CreatorTest, refusesWhatTheFormatCannotHold)
{
    using basic::Fault;
    const struct {
        QString name;
        std::vector<NewColumn> columns;
        std::vector<NewIndex> indexes;
        Fault fault;
    } tables[] = {
        {"", {{"A"}}, {}, Fault::NameUnsuited},
        {QString(65, u'n'), {{"A"}}, {}, Fault::NameUnsuited},
        {"a.b", {{"A"}}, {}, Fault::NameUnsuited},
        {" a", {{"A"}}, {}, Fault::NameUnsuited},
        {"Ωmega", {{"A"}}, {}, Fault::CharacterNotOrdered},
        {"msysobjects", {{"A"}}, {}, Fault::NameTwice},
        {"t ", {{"A"}}, {}, Fault::NameTwice},
        {"U", {}, {}, Fault::TableTooWide},
        {"U", std::vector<NewColumn>(256, {"A"}), {}, Fault::TableTooWide},
        {"U", {{"A"}, {"a"}}, {}, Fault::NameTwice},
        {"U", {{"A", ColumnType::Text, 256}}, {}, Fault::ColumnImpossible},
        {"U", {{"A", ColumnType::Binary, 511}}, {}, Fault::ColumnImpossible},
        {"U", {{"A", ColumnType::Unreadable}}, {}, Fault::ColumnImpossible},
        {"U", {{"A", ColumnType::Text, 9, true, true}}, {}, Fault::ColumnImpossible},
        {"U", {{"A"}}, {{"I", {"B"}}}, Fault::IndexImpossible},
        {"U", {{"A", ColumnType::Memo}}, {{"I", {"A"}}}, Fault::IndexImpossible},
        {"U", {{"A"}, {"B"}}, {{"I", {"A"}, true, true}, {"J", {"B"}, true, true}}, Fault::IndexImpossible},
    };
    for (const auto &row : tables) {
        Creator creator;
        creator.addTable("T", {{"A"}});
        EXPECT_EQ(test::faultOf([&] { creator.addTable(row.name, row.columns, row.indexes); }), row.fault)
            << row.name.toStdString();
    }

    const struct {
        NewColumn column;
        NewValue value;
    } values[] = {
        {{"A", ColumnType::Byte}, 256},
        {{"A", ColumnType::Byte}, 1.5},
        {{"A", ColumnType::Integer}, 32768},
        {{"A", ColumnType::Long}, 2147483648.0},
        {{"A", ColumnType::Long}, std::nan("")},
        {{"A", ColumnType::Long}, QString("1")},
        {{"A", ColumnType::Boolean}, 1},
        {{"A", ColumnType::Float}, 1e39},
        {{"A", ColumnType::Money}, QString("922337203685477.5808")},
        {{"A", ColumnType::Money}, QString("1.00001")},
        {{"A", ColumnType::Money}, 1e20},
        {{"A", ColumnType::Numeric}, QString(29, u'9')},
        {{"A", ColumnType::Numeric}, QString("1e5")},
        {{"A", ColumnType::Text, 3}, QString("abcd")},
        {{"A", ColumnType::Text}, QString(QChar(0xFEFF)) + u'a'},
        {{"A", ColumnType::Text}, 5},
        {{"A", ColumnType::Binary, 3}, QByteArray("abcd")},
        {{"A", ColumnType::Guid}, QByteArray(15, 'g')},
        {{"A", ColumnType::Ole}, QString("text")},
    };
    for (const auto &row : values) {
        Creator creator;
        auto &table = creator.addTable("T", {row.column});
        EXPECT_EQ(test::faultOf([&] { table.addRow({row.value}); }), Fault::ValueUnsuited)
            << static_cast<int>(row.column.type);
        EXPECT_EQ(test::faultOf([&] { table.addRow({}); }), Fault::Misuse);
        EXPECT_EQ(table.rowCount(), 0U);
    }

    Creator creator;
    const NewValue wide(QString(255, u'\u20ac'));
    std::vector<NewColumn> texts;
    for (const QChar name : u"ABCDEFGH"_s)
        texts.push_back({QString(name), ColumnType::Text});
    auto &table = creator.addTable("T", texts);
    std::vector<NewValue> row(8, wide);
    EXPECT_EQ(test::faultOf([&] { table.addRow(row); }), Fault::RowTooLong);
    row.back() = {};
    table.addRow(row);
    EXPECT_EQ(rowsOf(*written(creator), "T").size(), 1U);
    EXPECT_EQ(test::faultOf([&] { table.addRow(row); }), Fault::Misuse) << "after the file was written";
    EXPECT_EQ(test::faultOf([&] { creator.write(folder.filePath("none/x.mdb")); }), Fault::NotWritten);
}

} // namespace
} // namespace kalvenor::jet
