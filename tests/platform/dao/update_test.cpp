// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "family.h"
#include "platform/dao/sqltext.h"
#include "platform/jet/creator/creator.h"
#include "support/files.h"

using namespace Qt::StringLiterals;

namespace kalvenor::test {

namespace {

TEST_F(Family, SetsMarksByStatement)
{
    const struct {
        const char *sql;
        int matched;
        QList<qint32> changed;
        QList<int> markedThen;
    } cases[] = {
        {"Update Daten SET Markierung = 0 ;", 8, {10, 40, 60}, {}},
        {"Update Daten SET Markierung = -1 WHERE Listname LIKE '*m*'  AND Markierung = 0 ",
         5,
         {20, 50, 60, 70, 80},
         {20, 50, 60, 70, 80}},
        {"Update Daten SET Markierung = 0 Where Markierung = -1 ;", 5, {20, 50, 60, 70, 80}, {}},
        {"update DATEN set MARKIERUNG = 1 where vater = 10 or vater = 40", 3, {20, 40, 80}, {20, 40, 80}},
        {"UPDATE Daten SET Markierung = true WHERE Counter = 10", 1, {10}, {10, 20, 40, 80}},
        {"UPDATE Daten SET Markierung = -1 WHERE Counter = 10", 1, {}, {10, 20, 40, 80}},
        {"UPDATE [Daten] SET \"Markierung\" = False WHERE Counter IN (10, 10, 20)", 2, {10, 20}, {40, 80}},
        {"UPDATE Daten SET Markierung = 0 WHERE Sterbedatum >= 1AND Counter = 40", 0, {}, {40, 80}},
        {"UPDATE Daten SET Markierung = 5 WHERE Vater = 10 OR Vater = 10 OR Counter = 20", 2, {20}, {20, 40, 80}},
        {"UPDATE Daten SET Markierung = 0 WHERE Counter IN (SELECT Vater FROM Daten WHERE Markierung = -1)",
         2,
         {40},
         {20, 80}},
        {"UPDATE Daten SET Markierung = True WHERE (SELECT count(*) FROM Daten d WHERE d.Vater = Daten.Counter) = 1",
         1,
         {40},
         {20, 40, 80}},
        {"UPDATE Daten SET Markierung = 0 WHERE Daten.Listname > 'N' AND rowid < 3", 2, {}, {20, 40, 80}},
        {"Update Daten SET Markierung = -1 ;", 8, {10, 30, 50, 60, 70}, {10, 20, 30, 40, 50, 60, 70, 80}},
    };
    for (const auto &row : cases) {
        const dao::Execution done = database->execute(QString::fromUtf8(row.sql));
        EXPECT_EQ(done.matched, row.matched) << row.sql;
        EXPECT_EQ(QList<qint32>(done.changedKeys.begin(), done.changedKeys.end()), row.changed) << row.sql;
        EXPECT_EQ(marked(), row.markedThen) << row.sql;
        // The file itself says the same.
        dao::Engine other;
        const auto fresh = other.openDatabase(file);
        EXPECT_EQ(fresh->openQuery(u"SELECT * FROM Daten WHERE Markierung = -1"_s)->recordCount(),
                  row.markedThen.size())
            << row.sql;
    }
    EXPECT_EQ(database->generation(), 1U); // one's own writing is nobody else's change
}

TEST(SqlText, KnowsAnUpdateToOneValue)
{
    const struct {
        const char *sql;
        std::optional<bool> on;
        const char *condition;
    } cases[] = {
        {"Update Daten SET Markierung = -1 ;", true, ""},
        {"update [Daten] set [Markierung]=0where Counter = 1 ;;", false, "( Counter = 1)"},
        {"UPDATE Daten SET Markierung = true WHERE (a = ')')", true, "( (a = ')'))"},
        {"UPDATE Daten SET Markierung = FALSE", false, ""},
        {"UPDATE Daten SET Markierung = +0.0", false, ""},
        {"UPDATE Daten SET Markierung = .5e2", true, ""},
        {"UPDATE Daten SET Markierung = 0 WHERE", false, "()"},
        {"UPDATE Daten SET Markierung = Yes", {}, ""},
        {"UPDATE Daten SET Markierung = [True]", {}, ""},
        {"UPDATE Daten SET Markierung = 'True'", {}, ""},
        {"UPDATE Daten SET Markierung = Null", {}, ""},
        {"UPDATE Daten SET Markierung = Vater", {}, ""},
        {"UPDATE Daten SET Markierung = 1 - 1", {}, ""},
        {"UPDATE Daten SET Markierung = 0x10", {}, ""},
        {"UPDATE Daten SET Markierung = -", {}, ""},
        {"UPDATE Daten SET Markierung = 0, Markierung = -1", {}, ""},
        {"UPDATE Daten SET Markierung = 0 FROM Daten d WHERE d.Counter = 1", {}, ""},
        {"UPDATE Daten SET Markierung = 0 WHERE 1) UNION SELECT (1", {}, ""},
        {"UPDATE Daten SET Markierung = 0 WHERE (1", {}, ""},
        {"UPDATE Daten AS d SET Markierung = 0", {}, ""},
        {"UPDATE OR IGNORE Daten SET Markierung = 0", {}, ""},
        {"SELECT * FROM Daten", {}, ""},
        {"UPDATE", {}, ""},
    };
    for (const auto &row : cases) {
        const auto update = dao::SqlText(QString::fromUtf8(row.sql), {}).constantUpdate({u"Yes"_s});
        ASSERT_EQ(update.has_value(), row.on.has_value()) << row.sql;
        if (!update)
            continue;
        EXPECT_EQ(update->on, row.on.value()) << row.sql;
        EXPECT_EQ(update->condition, QString::fromUtf8(row.condition)) << row.sql;
        EXPECT_EQ(update->table, u"Daten"_s) << row.sql;
        EXPECT_EQ(update->column, u"Markierung"_s) << row.sql;
    }
    EXPECT_FALSE(dao::SqlText(u"UPDATE a SET b = True"_s, {}).constantUpdate({u"TRUE"_s}));
}

TEST_F(Family, ChangesNothingElse)
{
    const QByteArray before = contentOf(file);
    const struct {
        const char *sql;
        basic::ErrorKind kind;
    } cases[] = {
        {"UPDATE Daten SET Counter = 5", basic::ErrorKind::Refused},
        {"UPDATE Daten SET Markierung = 0, Listname = 'x'", basic::ErrorKind::Refused},
        {"UPDATE Daten SET rowid = 5", basic::ErrorKind::Refused},
        {"UPDATE Daten SET Markierung = 0; UPDATE Daten SET Counter = 5", basic::ErrorKind::Refused},
        {"UPDATE Daten SET Markierung = (SELECT randomblob(5))", basic::ErrorKind::Refused},
        {"UPDATE sqlite_master SET Markierung = 0", basic::ErrorKind::TableNotFound},
        {"UPDATE MSysObjects SET Markierung = 0", basic::ErrorKind::TableNotFound},
        {"UPDATE Daten SET Markierung = 0 RETURNING Counter", basic::ErrorKind::Refused},
        {"UPDATE Daten SET Markierung = 0 WHERE 1 = 1 RETURNING Counter", basic::ErrorKind::InvalidSql},
        {"UPDATE Daten SET Markierung = 0 WHERE 1 = 1 ORDER BY Vater LIMIT 2", basic::ErrorKind::InvalidSql},
        {"UPDATE Daten SET Markierung = 0 WHERE", basic::ErrorKind::InvalidSql},
        {"UPDATE Daten SET Markierung = 0 WHERE Nichts = 1", basic::ErrorKind::InvalidSql},
        {"UPDATE Daten SET Markierung = 0 WHERE count(*) > 1", basic::ErrorKind::InvalidSql},
        {"UPDATE Daten SET Markierung = 0 WHERE (SELECT count(*) FROM sqlite_master) = 0", basic::ErrorKind::Refused},
        {"UPDATE Namen SET Markierung = 0", basic::ErrorKind::ColumnNotFound},
        {"UPDATE Nichts SET Markierung = 0", basic::ErrorKind::TableNotFound},
        {"UPDATE Daten SET Markierung = Vater", basic::ErrorKind::Refused},
        {"UPDATE Daten SET Markierung = 0 WHERE Listname LIKE '['", basic::ErrorKind::InvalidPattern},
        {"SELECT * FROM Daten", basic::ErrorKind::Refused},
        {"DELETE FROM Daten", basic::ErrorKind::Refused},
        {"INSERT INTO Daten (Counter) VALUES (1)", basic::ErrorKind::Refused},
        {"REPLACE INTO Daten (Counter) VALUES (1)", basic::ErrorKind::Refused},
        {"DROP TABLE Daten", basic::ErrorKind::Refused},
        {"VACUUM INTO '/tmp/x'", basic::ErrorKind::Refused},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(kindOf([&] { (void)database->execute(QString::fromUtf8(row.sql)); }), row.kind) << row.sql;
    }
    EXPECT_EQ(contentOf(file), before);
}

TEST_F(Family, EditsOneRow)
{
    const auto table = database->openTable(u"Daten"_s);
    const QString mark = u"markierung"_s;
    table->setIndex(u"Counter"_s);
    table->seekEqual(20);
    EXPECT_EQ(kindOf([&] { table->setValue(mark, true); }), basic::ErrorKind::Refused);
    EXPECT_EQ(kindOf([&] { (void)table->update(); }), basic::ErrorKind::Refused);
    table->edit();
    EXPECT_EQ(kindOf([&] { table->setValue(u"Vater"_s, true); }), basic::ErrorKind::Refused);
    EXPECT_EQ(kindOf([&] { table->setValue(u"Nichts"_s, true); }), basic::ErrorKind::ColumnNotFound);
    table->setValue(mark, true);
    EXPECT_TRUE(table->update());
    EXPECT_EQ(marked(), (QList<int>{10, 20, 40, 60}));
    EXPECT_TRUE(table->boolean(table->fieldIndex(mark)));
    table->edit();
    table->setValue(mark, true);
    EXPECT_FALSE(table->update()); // it was on already
    table->edit();
    table->setValue(mark, false);
    table->moveFirst(); // gives the edit up
    EXPECT_EQ(kindOf([&] { (void)table->update(); }), basic::ErrorKind::Refused);
    EXPECT_EQ(marked(), (QList<int>{10, 20, 40, 60}));
    table->seekEqual(99);
    EXPECT_EQ(kindOf([&] { table->edit(); }), basic::ErrorKind::NoCurrentRow);
}

TEST_F(Family, WritesTheRightRowAfterAnotherProgramMovedIt)
{
    const auto table = database->openTable(u"Daten"_s);
    table->setIndex(u"Counter"_s);
    table->seekEqual(80);
    table->edit();
    table->setValue(u"Markierung"_s, true);
    persons.erase(persons.begin() + 1, persons.begin() + 4);
    writeFamily(file, persons);
    EXPECT_TRUE(table->update());
    EXPECT_EQ(table->text(1), u"Muth, Ida"_s);
    EXPECT_EQ(marked(), (QList<int>{10, 60, 80}));

    table->seekEqual(10);
    table->edit();
    table->setValue(u"Markierung"_s, false);
    persons.erase(persons.begin());
    writeFamily(file, persons);
    EXPECT_EQ(kindOf([&] { (void)table->update(); }), basic::ErrorKind::ChangedElsewhere);
    EXPECT_EQ(marked(), (QList<int>{60}));
}

TEST_F(Family, RunsAnewWhereAnotherProgramCameBetween)
{
    bool between = false;
    const auto comeBetween = [&](qint64, qint64) {
        if (!std::exchange(between, true))
            markElsewhere(20, true);
        return true;
    };
    const dao::Execution done =
        database->execute(u"Update Daten SET Markierung = 0 Where Markierung = -1 ;"_s, comeBetween);
    EXPECT_EQ(done.matched, 4);
    EXPECT_EQ(done.changedKeys, (std::vector<qint32>{10, 20, 40, 60}));
    EXPECT_EQ(marked(), QList<int>{});

    bool on = false;
    const auto alwaysBetween = [&](qint64, qint64) {
        markElsewhere(30, on = !on);
        return true;
    };
    EXPECT_EQ(kindOf([&] { (void)database->execute(u"Update Daten SET Markierung = -1 ;"_s, alwaysBetween); }),
              basic::ErrorKind::ChangedElsewhere);
}

TEST_F(Family, StopsWritingWhereTheWatcherWishes)
{
    const QByteArray before = contentOf(file);
    EXPECT_EQ(kindOf([&] {
                  (void)database->execute(u"Update Daten SET Markierung = 0 ;"_s, [](qint64, qint64) { return false; });
              }),
              basic::ErrorKind::Cancelled);
    EXPECT_EQ(contentOf(file), before);
    EXPECT_EQ(marked(), (QList<int>{10, 40, 60}));
}

TEST(Update, NeedsAKeyOfWholeNumbers)
{
    using T = jet::ColumnType;
    QTemporaryDir folder;
    const QString file = folder.filePath(u"a.mdb"_s);
    jet::Creator creator;
    const jet::NewColumn mark{.name = u"Markierung"_s, .type = T::Boolean};
    const jet::NewColumn text{.name = u"Counter"_s, .type = T::Text};
    const jet::NewColumn number{.name = u"Counter"_s, .type = T::Long};
    const jet::NewColumn wrong{.name = u"Markierung"_s, .type = T::Long};
    creator.addTable(u"NoKey"_s, {mark}).addRow({jet::NewValue(false)});
    creator.addTable(u"TextKey"_s, {text, mark}).addRow({jet::NewValue(u"a"_s), jet::NewValue(false)});
    creator.addTable(u"NoMark"_s, {number, wrong}).addRow({jet::NewValue(1), jet::NewValue(0)});
    auto &twice = creator.addTable(u"Twice"_s, {number, mark});
    for (int i = 0; i < 2; ++i)
        twice.addRow({jet::NewValue(1), jet::NewValue(false)});
    creator.write(file);
    const QByteArray before = contentOf(file);
    dao::Engine engine;
    const auto database = engine.openDatabase(file);
    const dao::Execution left = database->execute(u"UPDATE Twice SET Markierung = -1"_s);
    EXPECT_TRUE(left.matched == 2 && left.changedKeys.empty());
    ASSERT_EQ(left.left.size(), 2U);
    EXPECT_TRUE(left.left[1].why == basic::Fault::KeyRepeated && left.left[1].key == 1);
    for (const char *table : {"NoKey", "TextKey", "NoMark"}) {
        const QString name = QString::fromUtf8(table);
        const auto error = thrownBy([&] { (void)database->execute(u"UPDATE %1 SET Markierung = -1"_s.arg(name)); });
        ASSERT_TRUE(error) << table;
        EXPECT_EQ(error->kind(), basic::ErrorKind::NotMarkable) << table;
        EXPECT_TRUE(QString(error->what()).contains(name) && error->place().file == file) << error->what();
    }
    EXPECT_EQ(contentOf(file), before);
}

} // namespace

} // namespace kalvenor::test
