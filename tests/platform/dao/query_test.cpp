// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "family.h"
#include "platform/dao/sqlsession.h"
#include "platform/jet/creator/creator.h"

using namespace Qt::StringLiterals;

namespace kalvenor::test {

namespace {

struct Case {
    const char *sql;
    QList<int> counters; ///< `Counter` or the first field
};

TEST_F(Family, AnswersTheStatementsOfTheProgram)
{
    const Case cases[] = {
        {"SELECT * FROM Daten WHERE Markierung = 0 ORDER BY Listname;", {70, 20, 50, 80, 30}},
        {"SELECT * FROM Daten WHERE Markierung = 0 ORDER BY Listname ;", {70, 20, 50, 80, 30}},
        {"Select * FROM Daten WHERE Markierung = -1 ORDER BY Listname ;", {60, 40, 10}},
        {"SELECT Counter FROM Daten WHERE Markierung = -1 ;", {10, 40, 60}},
        {"SELECT Counter FROM Daten WHERE Vater = 10 ;", {20, 40}},
        {"SELECT Counter FROM Daten WHERE Mutter = 30 ;", {20}},
        {"SELECT Counter FROM Daten WHERE Mutter = -5 ;", {}},
        {"SELECT * FROM Daten WHERE Listname LIKE '**'  AND Markierung = 0 ORDER BY Listname;", {70, 20, 50, 80, 30}},
        {"SELECT * FROM Daten WHERE Listname LIKE '*müller*' AND Geschlecht = 'M'  AND Markierung = 0 ORDER BY "
         "Listname;",
         {50}},
        // A day number directly followed by the word of the next clause.
        {"SELECT * FROM Daten WHERE Listname LIKE '**'   AND Sterbedatum >= -80000AND sterbedatum <= 40000 AND "
         "Markierung = 0 ORDER BY Listname;",
         {30}},
        {"SELECT * FROM Daten WHERE Listname LIKE '**'   AND geaendert >= 38500AND geaendert <= 39500 AND Markierung = "
         "0 "
         "ORDER BY Listname;",
         {50}},
        // The marked text lets a date outside the range pass; null does not.
        {"SELECT * FROM Daten WHERE Listname LIKE '**' AND ( Geburt_XX = 'XXX_______' OR Geburtsdatum >= -620910 )  "
         "AND ( "
         "Geburt_XX = 'XXX_______' OR geburtsdatum <= 767011 )  AND Markierung = 0 ORDER BY Listname;",
         {70, 20, 50}},
        {"SELECT * FROM Daten WHERE Listname LIKE '**'   AND Geburtsdatum >= -620911 AND Geburtsdatum <= 18263 AND "
         "Markierung = -1 ORDER BY Listname;",
         {40, 10}},
        {"SELECT Counter FROM [Adressen_DS ]", {1}},
    };
    for (const Case &row : cases)
        EXPECT_EQ(numbers(QString::fromUtf8(row.sql)), row.counters) << row.sql;
}

TEST_F(Family, AnswersOtherQueriesAsSqlSays)
{
    const Case cases[] = {
        {"select COUNTER from DATEN where LISTNAME = 'weiss, EVA  '", {30}}, // General equality
        {"SELECT Counter FROM Daten WHERE Listname LIKE 'mu[a-z]*'", {80}},
        {"SELECT Counter FROM Daten WHERE Listname LIKE '%'", {}},
        {"SELECT Counter FROM Daten WHERE NOT Listname LIKE '*[elr], *'", {10, 30, 40, 70, 80}},
        {"SELECT Counter FROM Daten WHERE Listname LIKE 'O''Brien*'", {40}},
        {"SELECT Counter FROM Daten WHERE vnamen LIKE Null", {}},
        {"SELECT Counter FROM Daten WHERE Geburt_XX LIKE '*'", {50}}, // null is not like anything
        {"SELECT Counter FROM Daten WHERE NOT Geburt_XX LIKE 'a*'", {50}},
        {"SELECT Counter FROM Daten WHERE Listname LIKE 'M*' AND Listname LIKE '*a'", {20, 80}},
        {"SELECT Counter FROM Daten WHERE Counter = 30", {30}},
        {"SELECT Counter FROM Daten WHERE Counter = '30' AND Markierung = 0", {30}},
        {"SELECT Counter FROM Daten WHERE Counter = 30.5", {}},
        {"SELECT Counter FROM Daten WHERE Counter = 99999999999", {}},
        {"SELECT Counter FROM Daten WHERE Counter IN (80, 30, 30, 5) ORDER BY Counter", {30, 80}},
        {"SELECT Counter FROM Daten WHERE Counter = Null", {}},
        {"SELECT Counter FROM Daten WHERE Markierung = True", {10, 40, 60}},
        {"SELECT Counter FROM Daten WHERE Markierung <> False AND Vater = 10", {40}},
        {"SELECT Counter FROM Daten WHERE Markierung = 5", {}},
        {"SELECT Counter FROM Daten WHERE Vater = 10 OR Mutter = 30 OR Counter = 80 ORDER BY Listname", {20, 80, 40}},
        {"SELECT Counter FROM Daten WHERE Vater = 10 OR Vater = 10", {20, 40}},
        {"SELECT Counter FROM Daten ORDER BY Listname DESC LIMIT 2", {10, 30}},
        {"SELECT Counter FROM Daten ORDER BY Geburtsdatum, Counter LIMIT 2 OFFSET 3", {40, 50}},
        {"SELECT Counter FROM Daten ORDER BY 1 DESC LIMIT 1", {80}},
        {"SELECT Markierung, Counter FROM Daten ORDER BY 1, 2 LIMIT 1", {-1}},
        {"SELECT Counter AS Listname FROM Daten ORDER BY Listname LIMIT 2", {10, 20}}, // by the alias
        {"SELECT Vater AS v FROM Daten WHERE v > 10", {40}},
        {"SELECT count(*) FROM Daten WHERE Geschlecht = 'w'", {3}},
        {"SELECT count(*) FROM Daten GROUP BY Geschlecht ORDER BY 1", {3, 5}}, // M and m are one
        {"SELECT max(Counter) FROM Daten GROUP BY Markierung", {60, 80}},
        {"SELECT Vater FROM Daten GROUP BY Vater", {0, 10, 40}},
        {"SELECT DISTINCT Vater FROM Daten ORDER BY Vater", {0, 10, 40}},
        {"SELECT k.Counter FROM Daten k, Daten v WHERE k.Vater = v.Counter ORDER BY k.Listname", {20, 80, 40}},
        {"SELECT Counter FROM (SELECT * FROM Daten ORDER BY Listname LIMIT 3) WHERE Markierung = 0", {70, 20}},
        {"SELECT Counter FROM Daten WHERE Counter IN (SELECT Vater FROM Daten)", {10, 40}},
        {"SELECT 7", {7}},
    };
    for (const Case &row : cases)
        EXPECT_EQ(numbers(QString::fromUtf8(row.sql)), row.counters) << row.sql;
}

TEST_F(Family, GivesFieldsByNameWithoutCase)
{
    for (const char *sql :
         {"SELECT * FROM Daten WHERE Counter = 10", "SELECT * FROM Daten ORDER BY Counter * -1 DESC"}) {
        const auto rows = database->openQuery(QString::fromUtf8(sql));
        EXPECT_EQ(rows->text(rows->fieldIndex(u"LISTNAME"_s)), u"zu Berg, Karl"_s) << sql;
        EXPECT_EQ(rows->integer(rows->fieldIndex(u"geburtsdatum"_s)), 18263) << sql;
        EXPECT_EQ(rows->number(rows->fieldIndex(u"markierung"_s)), -1.0) << sql;
        EXPECT_TRUE(rows->boolean(rows->fieldIndex(u"Markierung"_s))) << sql;
        EXPECT_EQ(rows->value(u"Markierung"_s), QVariant(true)) << sql;
        EXPECT_FALSE(rows->value(u"Geburt_XX"_s).isValid()) << sql;
        EXPECT_EQ(rows->text(rows->fieldIndex(u"geburt_xx"_s)), QString()) << sql;
        EXPECT_FALSE(rows->integer(1)) << sql; // a text is no number
        EXPECT_EQ(kindOf([&] { (void)rows->value(u"Nachname"_s); }), basic::ErrorKind::ColumnNotFound) << sql;
    }
}

TEST(Query, QuotesColumnsThatAreWordsOfSql)
{
    QTemporaryDir folder;
    const QString file = folder.filePath(u"Ereignis.mdb"_s);
    jet::Creator creator;
    using T = jet::ColumnType;
    auto &table = creator.addTable(u"Français"_s, {{.name = u"Index"_s, .type = T::Long},
                                                   {.name = u"Größe"_s, .type = T::Long},
                                                   {.name = u"Art"_s, .type = T::Text}});
    table.addRow({jet::NewValue(3), jet::NewValue(5), jet::NewValue(u"Taufe Index"_s)});
    table.addRow({jet::NewValue(1), jet::NewValue(7), jet::NewValue(u"Geburt"_s)});
    table.addRow({jet::NewValue(), jet::NewValue(6), jet::NewValue()});
    creator.write(file);
    dao::Engine engine;
    const auto database = engine.openDatabase(file);
    const Case cases[] = {
        {"SELECT * FROM Français ORDER BY Index;", {-1, 1, 3}},
        {"select * from FRANÇAIS where INDEX > 0 order by GRÖßE;", {3, 1}},
        {"SELECT Index FROM [Français] WHERE Art = 'taufe index' AND [Index] = 3", {3}},
    };
    for (const Case &row : cases) {
        QList<int> found;
        for (const auto rows = database->openQuery(QString::fromUtf8(row.sql)); !rows->eof(); rows->moveNext())
            found << rows->integer(rows->fieldIndex(u"index"_s)).value_or(-1);
        EXPECT_EQ(found, row.counters) << row.sql;
    }
}

TEST_F(Family, SortsManyNamesAsTheirKeysCompare)
{
    // Same beginnings of many lengths, and equal names, which keep the order of the file.
    persons.clear();
    const QStringList ends{QString(), u"a"_s, u"-a"_s, u"'a"_s, u"ä"_s, u"A"_s, u"Ω"_s, u" "_s};
    for (int i = 0; i < 600; ++i) {
        const QString start = u"Schulze von der Heide"_s.left(i * 7 % 22);
        persons.push_back({.counter = i, .listname = start + ends[i % ends.size()] + ends[i / 8 % ends.size()]});
    }
    writeFamily(file, persons);
    const QList<int> found = numbers(u"SELECT Counter FROM Daten ORDER BY Listname"_s);
    QList<int> expected = numbers(u"SELECT Counter FROM Daten"_s);
    std::stable_sort(expected.begin(), expected.end(), [this](int a, int b) {
        return jet::compareGeneral(persons[static_cast<std::size_t>(a)].listname,
                                   persons[static_cast<std::size_t>(b)].listname) < 0;
    });
    EXPECT_EQ(found.size(), 600);
    EXPECT_EQ(found, expected);
}

TEST_F(Family, RefusesWhatIsNoPlainQuery)
{
    const struct {
        const char *sql;
        basic::ErrorKind kind;
        const char *says;
    } cases[] = {
        {"SELECT * FROM Daten; DELETE FROM Daten", basic::ErrorKind::Refused, "DELETE FROM Daten"},
        {"SELECT * FROM Daten;;SELECT 1;", basic::ErrorKind::Refused, "SecondStatement"},
        {"INSERT INTO Daten (Counter) VALUES (1)", basic::ErrorKind::Refused, "NoSelect"},
        {"DELETE FROM Daten", basic::ErrorKind::Refused, "NoSelect"},
        {"UPDATE Daten SET Markierung = 0", basic::ErrorKind::Refused, "NoSelect"},
        {"DROP TABLE Daten", basic::ErrorKind::Refused, "NoSelect"},
        {"ATTACH '/tmp/x' AS x", basic::ErrorKind::Refused, "NoSelect"},
        {"PRAGMA writable_schema = 1", basic::ErrorKind::Refused, "NoSelect"},
        {"BEGIN", basic::ErrorKind::Refused, "NoSelect"},
        {"EXPLAIN SELECT * FROM Daten", basic::ErrorKind::Refused, "NoSelect"},
        {"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i FROM n", basic::ErrorKind::Refused,
         "NoSelect"},
        {"SELECT i FROM (WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i FROM n)",
         basic::ErrorKind::Refused, "NoRecursion"},
        {"SELECT load_extension('x')", basic::ErrorKind::Refused, "load_extension"},
        {"SELECT randomblob(100000000)", basic::ErrorKind::Refused, "randomblob"},
        {"SELECT Counter FROM Daten WHERE Listname GLOB '*'", basic::ErrorKind::Refused, "glob"},
        {"SELECT * FROM sqlite_master", basic::ErrorKind::Refused, "sqlite_master"},
        {"SELECT * FROM pragma_database_list", basic::ErrorKind::Refused, "OnlySelectAndUpdate"},
        {"SELECT * FROM jet", basic::ErrorKind::TableNotFound, "jet"},
        {"SELECT * FROM MSysObjects", basic::ErrorKind::TableNotFound, "MSysObjects"},
        {"SELECT * FROM Adressen_DS", basic::ErrorKind::TableNotFound, "Adressen_DS"}, // the blank counts
        {"SELECT Nachname FROM Daten", basic::ErrorKind::InvalidSql, "Nachname"},
        {"SELECT \"M\" FROM Daten", basic::ErrorKind::InvalidSql, "M"},
        {"SELECT * FROM Daten WHERE Listname LIKE '*O'Brien*' AND Markierung = 0", basic::ErrorKind::InvalidSql,
         "'*O'Brien*' AND"},
        {"SELECT * FROM Daten WHERE Listname LIKE 'O'Bri'en'", basic::ErrorKind::InvalidSql, "DoubleApostrophe"},
        {"SELECT * FROM Daten WHERE Listname LIKE '*' -- AND Markierung = 0", basic::ErrorKind::InvalidSql,
         "NoComments (-, -)"},
        {"SELECT * FROM Daten /* alle", basic::ErrorKind::InvalidSql, "NoComments (/, *)"},
        {"SELECT * FROM Daten WHERE Counter = ?", basic::ErrorKind::InvalidSql, "?"},
        {"SELECT * FROM [Daten", basic::ErrorKind::InvalidSql, "[Daten"},
        {"SELECT * FROM Daten WHERE", basic::ErrorKind::InvalidSql, "SqlTooShort"},
        {"SELECT * FROM Daten WHERE AND", basic::ErrorKind::InvalidSql, "SqlSyntax (AND)"},
        {" ; ", basic::ErrorKind::InvalidSql, "StatementEmpty"},
        {"SELECT * FROM Daten WHERE Listname LIKE '[a'", basic::ErrorKind::InvalidPattern, "[a"},
        {"SELECT * FROM Daten WHERE NOT Listname LIKE '*[z-a]'", basic::ErrorKind::InvalidPattern, "[z-a]"},
        {"SELECT * FROM Daten WHERE Listname LIKE 'a' ESCAPE 'b'", basic::ErrorKind::InvalidSql, "ESCAPE"},
    };
    for (const auto &row : cases) {
        const auto error = thrownBy([&] { (void)database->openQuery(QString::fromUtf8(row.sql)); });
        ASSERT_TRUE(error) << row.sql;
        EXPECT_EQ(error->kind(), row.kind) << row.sql;
        const QString message = QString::fromUtf8(error->what());
        EXPECT_TRUE(message.contains(QString::fromUtf8(row.says)) && message.contains(file)) << error->what();
    }
    EXPECT_EQ(kindOf([&] { (void)database->openQuery(u"SELECT 1"_s + QChar(u'\0') + u'x'); }),
              basic::ErrorKind::InvalidSql);
    EXPECT_EQ(marked(), (QList<int>{10, 40, 60}));
}

TEST_F(Family, StopsWhereTheWatcherWishes)
{
    persons.clear();
    for (int i = 0; i < 20000; ++i)
        persons.push_back({.counter = i + 1, .listname = QString::number(i)});
    writeFamily(file, persons);
    for (const char *sql : {"SELECT * FROM Daten WHERE Listname LIKE '*x*'", "SELECT * FROM Daten ORDER BY Listname",
                            "SELECT count(*) FROM Daten a, Daten b"}) {
        for (const int calls : {1, 2}) {
            int left = calls;
            EXPECT_EQ(kindOf([&] {
                          (void)database->openQuery(QString::fromUtf8(sql), [&](qint64, qint64) { return --left > 0; });
                      }),
                      basic::ErrorKind::Cancelled)
                << sql;
            EXPECT_EQ(left, 0) << sql;
        }
    }
    // A watcher that begins another query, or throws, does no harm.
    EXPECT_EQ(kindOf([&] {
                  (void)database->openQuery(u"SELECT * FROM Daten"_s, [&](qint64, qint64) {
                      (void)database->openQuery(u"SELECT 1"_s);
                      return true;
                  });
              }),
              basic::ErrorKind::Refused);
    EXPECT_EQ(numbers(u"SELECT count(*) FROM Daten"_s), QList<int>{20000});
}

TEST_F(Family, RefusesTooLargeCopies)
{
    const struct {
        const char *sql;
        bool refused; ///< with 8 cells and 100 bytes
    } rows[] = {
        {"SELECT Counter + 0 FROM Daten", false},
        {"SELECT Counter + 0, 1 FROM Daten", true},
        {"SELECT Geschlecht || '' FROM Daten", false},
        {"SELECT Listname || '' FROM Daten", true},
        // Of these nothing is copied: the rows of the table are named.
        {"SELECT * FROM Daten WHERE Markierung = 0 ORDER BY Listname;", false},
        {"SELECT Listname, counter FROM Daten", false},
        {"SELECT * FROM Daten WHERE Vater = 10 OR Mutter = 30", false},
    };
    dao::SqlSession session(std::make_shared<dao::Snapshot>(jet::Database::open(file)), {.cells = 8, .bytes = 100});
    for (const auto &row : rows) {
        const auto error = kindOf([&] { (void)session.query(QString::fromUtf8(row.sql), {}); });
        EXPECT_EQ(error, row.refused ? std::optional(basic::ErrorKind::Refused) : std::nullopt) << row.sql;
    }
}

} // namespace

} // namespace kalvenor::test
