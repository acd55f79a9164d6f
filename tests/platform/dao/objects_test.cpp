// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "family.h"

using namespace Qt::StringLiterals;

namespace kalvenor::test {

namespace {

const QString Daten = u"Daten"_s;
const QString AllPersons = u"SELECT * FROM Daten"_s;

TEST_F(Family, OpensTablesByNameWithoutCaseButWithTheirBlanks)
{
    EXPECT_EQ(database->openTable(u"dATEN"_s)->recordCount(), 8);
    EXPECT_EQ(database->openTable(u"Adressen_DS "_s)->recordCount(), 1);
    for (const char *name : {"Adressen_DS", "Daten ", "Nichts", ""}) {
        const auto error = thrownBy([&] { (void)database->openTable(QString::fromUtf8(name)); });
        ASSERT_TRUE(error) << name;
        EXPECT_TRUE(error->kind() == basic::ErrorKind::TableNotFound && QString(error->what()).contains(file)) << name;
    }
}

TEST_F(Family, WalksFromTheFirstRowBehindTheLast)
{
    const auto table = database->openTable(Daten);
    QList<int> counters;
    for (; !table->eof(); table->moveNext())
        counters << table->integer(0).value_or(0);
    EXPECT_EQ(counters, (QList<int>{10, 20, 30, 40, 50, 60, 70, 80}));
    EXPECT_EQ(kindOf([&] { (void)table->text(1); }), basic::ErrorKind::NoCurrentRow);
    EXPECT_EQ(kindOf([&] { table->moveNext(); }), basic::ErrorKind::NoCurrentRow);
    table->moveTo(6);
    EXPECT_EQ(table->integer(0), 70);
    table->moveTo(-1);
    EXPECT_EQ(kindOf([&] { (void)table->integer(0); }), basic::ErrorKind::NoCurrentRow);
    table->moveFirst();
    EXPECT_EQ(table->integer(0), 10);
    EXPECT_EQ(kindOf([&] { (void)table->integer(13); }), basic::ErrorKind::ColumnNotFound);

    const auto none = database->openQuery(u"SELECT * FROM Daten WHERE Counter = 5"_s);
    EXPECT_TRUE(none->eof());
    EXPECT_EQ(none->recordCount(), 0);
    EXPECT_EQ(kindOf([&] { (void)none->integer(0); }), basic::ErrorKind::NoCurrentRow);
}

TEST_F(Family, SeeksByKey)
{
    const auto table = database->openTable(Daten);
    EXPECT_EQ(kindOf([&] { table->seekEqual(10); }), basic::ErrorKind::IndexNotFound);
    EXPECT_EQ(kindOf([&] { table->setIndex(u"Name"_s); }), basic::ErrorKind::IndexNotFound);
    table->setIndex(u"COUNTER"_s);
    for (const auto &[key, name] :
         {std::pair(50, "MÜLLER, Bert"), std::pair(10, "zu Berg, Karl"), std::pair(80, "Muth, Ida")}) {
        table->seekEqual(key);
        EXPECT_FALSE(table->noMatch()) << key;
        EXPECT_EQ(table->text(1), QString::fromUtf8(name));
    }
    for (const int key : {0, 9, 11, 81, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        table->seekEqual(key);
        EXPECT_TRUE(table->noMatch()) << key;
        EXPECT_EQ(kindOf([&] { (void)table->text(1); }), basic::ErrorKind::NoCurrentRow) << key;
    }
    const auto query = database->openQuery(AllPersons);
    EXPECT_EQ(kindOf([&] { query->seekEqual(10); }), basic::ErrorKind::Refused);
    EXPECT_EQ(kindOf([&] { query->edit(); }), basic::ErrorKind::Refused);
}

TEST_F(Family, SeeksFarApartKeys)
{
    persons.clear();
    const int keys[] = {2147483647, -2147483647 - 1, 0, 1900000000, -7};
    for (const int key : keys)
        persons.push_back({.counter = key, .listname = QString::number(key)});
    writeFamily(file, persons);
    const auto table = database->openTable(Daten);
    table->setIndex(u"Counter"_s);
    for (const int key : keys) {
        table->seekEqual(key);
        ASSERT_FALSE(table->noMatch()) << key;
        EXPECT_EQ(table->integer(0), key);
    }
    table->seekEqual(1);
    EXPECT_TRUE(table->noMatch());
    EXPECT_EQ(numbers(u"SELECT Counter FROM Daten ORDER BY Counter"_s),
              (QList<int>{-2147483647 - 1, -7, 0, 1900000000, 2147483647}));
}

TEST_F(Family, ClosesFromTheInsideOut)
{
    const auto other = engine.openDatabase(file);
    const auto table = other->openTable(Daten);
    const auto query = other->openQuery(AllPersons);
    EXPECT_EQ(other->recordsets().size(), 2U);
    query->close();
    query->close();
    EXPECT_EQ(other->recordsets().size(), 1U);
    other->close();
    EXPECT_TRUE(database->isOpen());
    engine.close();
    EXPECT_FALSE(table->isOpen());
    EXPECT_FALSE(other->isOpen());
    EXPECT_TRUE(other->recordsets().empty());
    EXPECT_FALSE(database->isOpen());
    EXPECT_TRUE(engine.databases().empty());
    EXPECT_TRUE(engine.openDatabase(file)->isOpen());
}

TEST_F(Family, RefusesUseAfterClosing)
{
    const auto table = database->openTable(Daten);
    const auto query = database->openQuery(AllPersons);
    database->close();
    const std::function<void()> uses[] = {
        [&] { (void)database->marks(Daten); },
        [&] { (void)database->openTable(Daten); },
        [&] { (void)database->openQuery(AllPersons); },
        [&] { (void)database->execute(u"UPDATE Daten SET Markierung = 0"_s); },
        [&] { (void)database->refresh(); },
        [&] { (void)database->damage(); },
        [&] { (void)query->recordCount(); },
        [&] { (void)query->eof(); },
        [&] { query->moveFirst(); },
        [&] { (void)query->text(0); },
        [&] { (void)query->fieldIndex(u"Counter"_s); },
        [&] { (void)query->rows(); },
        [&] { table->setIndex(u"Counter"_s); },
        [&] { table->seekEqual(1); },
        [&] { table->edit(); },
        [&] { (void)table->update(); },
    };
    int number = 0;
    for (const auto &use : uses)
        EXPECT_EQ(kindOf(use), basic::ErrorKind::ObjectClosed) << number++;
}

TEST_F(Family, DropsQueriesThatNobodyHolds)
{
    const auto held = database->openQuery(AllPersons);
    (void)database->openTable(Daten); // stays open though nobody holds it
    for (int i = 0; i < 5; ++i)
        (void)database->openQuery(AllPersons);
    EXPECT_EQ(database->recordsets().size(), 3U);
    EXPECT_EQ(held->recordCount(), 8);
}

TEST_F(Family, SeesWhatAnotherProgramChanged)
{
    const auto before = database->openQuery(u"SELECT * FROM Daten WHERE Markierung = -1 ORDER BY Listname"_s);
    const auto table = database->openTable(Daten);
    table->setIndex(u"Counter"_s);
    EXPECT_FALSE(database->refresh());
    const quint64 generation = database->generation();

    persons.erase(persons.begin());
    persons.push_back({.counter = 90, .listname = u"Neu, Nina"_s, .marked = true});
    writeFamily(file, persons);
    EXPECT_TRUE(database->refresh());
    EXPECT_FALSE(database->refresh());
    EXPECT_EQ(database->generation(), generation + 1);
    EXPECT_EQ(marked(), (QList<int>{40, 60, 90}));
    // What was opened before keeps its rows and values …
    EXPECT_EQ(before->recordCount(), 3);
    before->moveTo(2);
    EXPECT_EQ(before->text(1), u"zu Berg, Karl"_s);
    // … and a table lets go of its row and goes over at the next seek.
    EXPECT_EQ(kindOf([&] { (void)table->text(1); }), basic::ErrorKind::NoCurrentRow);
    EXPECT_EQ(table->recordCount(), 8);
    table->seekEqual(90);
    ASSERT_FALSE(table->noMatch());
    EXPECT_EQ(table->text(1), u"Neu, Nina"_s);

    markElsewhere(60, false); // without a refresh: the next query looks by itself
    EXPECT_EQ(marked(), (QList<int>{40, 90}));
    EXPECT_EQ(database->generation(), generation + 2);
}

} // namespace

} // namespace kalvenor::test
