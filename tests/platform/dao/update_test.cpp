// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "family.h"
#include "platform/jet/creator.h"
#include <QFile>

namespace kalvenor::test {

namespace {

QByteArray bytesOf(const QString &name)
{
    QFile in(name);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly));
    return in.readAll();
}

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
        {"UPDATE Daten SET Markierung = 'False' WHERE Counter IN (10, 20)", 2, {10, 20}, {40, 80}},
        {"UPDATE Daten SET Markierung = 0 WHERE Sterbedatum >= 1AND Counter = 40", 0, {}, {40, 80}},
        {"UPDATE Daten SET Markierung = Vater WHERE Listname LIKE 'M*'", 3, {20}, {20, 40, 80}},
        {"Update Daten SET Markierung = -1 ;", 8, {10, 30, 50, 60, 70}, {10, 20, 30, 40, 50, 60, 70, 80}},
    };
    for (const auto &row : cases) {
        const dao::Execution done = database->execute(QString::fromUtf8(row.sql));
        EXPECT_EQ(done.matched, row.matched) << row.sql;
        EXPECT_EQ(QList<qint32>(done.changedKeys.begin(), done.changedKeys.end()), row.changed) << row.sql;
        EXPECT_EQ(marked(), row.markedThen) << row.sql;
        // The file itself says the same.
        dao::Engine other;
        const auto fresh = other.workspace(0).openDatabase(file);
        EXPECT_EQ(fresh->openQuery(QStringLiteral("SELECT * FROM Daten WHERE Markierung = -1"))->recordCount(),
                  row.markedThen.size())
            << row.sql;
    }
    EXPECT_EQ(database->generation(), 1U); // one's own writing is nobody else's change
}

TEST_F(Family, ChangesNothingElse)
{
    const QByteArray before = bytesOf(file);
    const struct {
        const char *sql;
        ErrorKind kind;
    } cases[] = {
        {"UPDATE Daten SET Counter = 5", ErrorKind::Refused},
        {"UPDATE Daten SET Markierung = 0, Listname = 'x'", ErrorKind::Refused},
        {"UPDATE Daten SET rowid = 5", ErrorKind::Refused},
        {"UPDATE Daten SET Markierung = 0; UPDATE Daten SET Counter = 5", ErrorKind::Refused},
        {"UPDATE Daten SET Markierung = (SELECT randomblob(5))", ErrorKind::Refused},
        {"UPDATE sqlite_master SET sql = ''", ErrorKind::InvalidSql},
        {"UPDATE Daten SET Markierung = 0 RETURNING Counter", ErrorKind::InvalidSql},
        {"UPDATE Namen SET Markierung = 0", ErrorKind::InvalidSql},
        {"UPDATE Daten SET Markierung = Null", ErrorKind::TypeMismatch},
        {"UPDATE Daten SET Markierung = 'vielleicht'", ErrorKind::TypeMismatch},
        {"UPDATE Daten SET Markierung = 0 WHERE Listname LIKE '['", ErrorKind::InvalidPattern},
        {"SELECT * FROM Daten", ErrorKind::Refused},
        {"DELETE FROM Daten", ErrorKind::Refused},
        {"INSERT INTO Daten (Counter) VALUES (1)", ErrorKind::Refused},
        {"REPLACE INTO Daten (Counter) VALUES (1)", ErrorKind::Refused},
        {"DROP TABLE Daten", ErrorKind::Refused},
        {"VACUUM INTO '/tmp/x'", ErrorKind::Refused},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(errorOf([&] { (void)database->execute(QString::fromUtf8(row.sql)); }), row.kind) << row.sql;
    }
    EXPECT_EQ(bytesOf(file), before);
}

TEST_F(Family, EditsOneRow)
{
    const auto table = database->openTable(QStringLiteral("Daten"));
    const QString mark = QStringLiteral("markierung");
    table->setIndex(QStringLiteral("Counter"));
    table->seekEqual(20);
    EXPECT_EQ(errorOf([&] { table->setValue(mark, true); }), ErrorKind::Refused);
    EXPECT_EQ(errorOf([&] { (void)table->update(); }), ErrorKind::Refused);
    table->edit();
    EXPECT_EQ(errorOf([&] { table->setValue(QStringLiteral("Vater"), true); }), ErrorKind::Refused);
    EXPECT_EQ(errorOf([&] { table->setValue(QStringLiteral("Nichts"), true); }), ErrorKind::ColumnNotFound);
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
    EXPECT_EQ(errorOf([&] { (void)table->update(); }), ErrorKind::Refused);
    EXPECT_EQ(marked(), (QList<int>{10, 20, 40, 60}));
    table->seekEqual(99);
    EXPECT_EQ(errorOf([&] { table->edit(); }), ErrorKind::NoCurrentRow);
}

TEST_F(Family, WritesTheRightRowAfterAnotherProgramMovedIt)
{
    const auto table = database->openTable(QStringLiteral("Daten"));
    table->setIndex(QStringLiteral("Counter"));
    table->seekEqual(80);
    table->edit();
    table->setValue(QStringLiteral("Markierung"), true);
    persons.erase(persons.begin() + 1, persons.begin() + 4);
    writeFamily(file, persons);
    EXPECT_TRUE(table->update());
    EXPECT_EQ(table->text(1), QStringLiteral("Muth, Ida"));
    EXPECT_EQ(marked(), (QList<int>{10, 60, 80}));

    table->seekEqual(10);
    table->edit();
    table->setValue(QStringLiteral("Markierung"), false);
    persons.erase(persons.begin());
    writeFamily(file, persons);
    EXPECT_EQ(errorOf([&] { (void)table->update(); }), ErrorKind::ChangedElsewhere);
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
        database->execute(QStringLiteral("Update Daten SET Markierung = 0 Where Markierung = -1 ;"), comeBetween);
    EXPECT_EQ(done.matched, 4);
    EXPECT_EQ(done.changedKeys, (std::vector<qint32>{10, 20, 40, 60}));
    EXPECT_EQ(marked(), QList<int>{});

    bool on = false;
    const auto alwaysBetween = [&](qint64, qint64) {
        markElsewhere(30, on = !on);
        return true;
    };
    EXPECT_EQ(
        errorOf([&] { (void)database->execute(QStringLiteral("Update Daten SET Markierung = -1 ;"), alwaysBetween); }),
        ErrorKind::ChangedElsewhere);
}

TEST_F(Family, StopsWritingWhereTheWatcherWishes)
{
    const QByteArray before = bytesOf(file);
    EXPECT_EQ(errorOf([&] {
                  (void)database->execute(QStringLiteral("Update Daten SET Markierung = 0 ;"),
                                          [](qint64, qint64) { return false; });
              }),
              ErrorKind::Cancelled);
    EXPECT_EQ(bytesOf(file), before);
    EXPECT_EQ(marked(), (QList<int>{10, 40, 60}));
}

TEST(Update, NeedsAKeyOfWholeNumbers)
{
    using T = jet::ColumnType;
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.mdb"));
    jet::Creator creator;
    const jet::NewColumn mark{.name = QStringLiteral("Markierung"), .type = T::Boolean};
    const jet::NewColumn text{.name = QStringLiteral("Counter"), .type = T::Text};
    const jet::NewColumn number{.name = QStringLiteral("Counter"), .type = T::Long};
    const jet::NewColumn wrong{.name = QStringLiteral("Markierung"), .type = T::Long};
    creator.addTable(QStringLiteral("NoKey"), {mark}).addRow({jet::NewValue(false)});
    creator.addTable(QStringLiteral("TextKey"), {text, mark})
        .addRow({jet::NewValue(QStringLiteral("a")), jet::NewValue(false)});
    creator.addTable(QStringLiteral("NoMark"), {number, wrong}).addRow({jet::NewValue(1), jet::NewValue(0)});
    auto &twice = creator.addTable(QStringLiteral("Twice"), {number, mark});
    for (int i = 0; i < 2; ++i)
        twice.addRow({jet::NewValue(1), jet::NewValue(false)});
    creator.write(file);
    const QByteArray before = bytesOf(file);
    dao::Engine engine;
    const auto database = engine.workspace(0).openDatabase(file);
    for (const char *table : {"NoKey", "TextKey", "NoMark", "Twice"}) {
        QString message;
        const QString name = QString::fromUtf8(table);
        EXPECT_EQ(errorOf([&] { (void)database->execute(QStringLiteral("UPDATE %1 SET Markierung = -1").arg(name)); },
                          &message),
                  ErrorKind::NotMarkable)
            << table;
        EXPECT_TRUE(message.contains(name) && message.contains(file)) << message.toStdString();
    }
    EXPECT_EQ(bytesOf(file), before);
}

} // namespace

} // namespace kalvenor::test
