// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/marking/marking.h"

#include "platform/jet/reader/database.h"
#include "selection/lists/listquery.h"
#include "selection/marking/leftpersons.h"
#include "selection/marking/markhistory.h"
#include "support/startedprogram.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <QFile>

using namespace kalvenor;
using namespace kalvenor::selection;

TEST(MarkAllStatement, ReusesTheWherePartOfTheList)
{
    const struct {
        PersonList from;
        QString query;
        QString statement;
    } rows[] = {
        {PersonList::Unmarked, plainListQuery(PersonList::Unmarked),
         "Update Daten SET Markierung = -1 WHERE Markierung = 0 "},
        {PersonList::Marked, plainListQuery(PersonList::Marked),
         "Update Daten SET Markierung = 0 WHERE Markierung = -1 "},
        {PersonList::Marked, "SELECT * FROM Daten WHERE Listname LIKE '*a*'  AND Markierung = -1 ORDER BY Listname;",
         "Update Daten SET Markierung = 0 WHERE Listname LIKE '*a*'  AND Markierung = -1 "},
        {PersonList::Unmarked,
         "SELECT * FROM Daten WHERE Listname LIKE '*ORDER*'  AND Markierung = 0 ORDER BY Listname;",
         "Update Daten SET Markierung = -1 WHERE Listname LIKE '*ORDER*'  AND Markierung = 0 "},
        {PersonList::Unmarked, "SELECT * FROM Daten ORDER BY Listname;", "Update Daten SET Markierung = -1 ;"},
        {PersonList::Marked, "", "Update Daten SET Markierung = 0 ;"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(markAllStatement(row.from, row.query), row.statement);
}

TEST(MarkPersons, ChangesThoseThatDiffer)
{
    test::StartedProgram started({{.counter = 1, .listname = "A"},
                                  {.counter = 5, .listname = "B", .marked = true},
                                  {.counter = 9, .listname = "C"}});
    data::Datenbankmodul &databases = started.program.databases;
    const std::vector<qint32> wanted{9, 5, 77, 1};
    EXPECT_EQ(unknownPersons(databases, wanted), std::vector<qint32>{77});
    EXPECT_EQ(markPersons(databases, wanted, true).changed, (std::vector<qint32>{1, 9}));
    EXPECT_EQ(databases.Familiendatenbank->openQuery(plainListQuery(PersonList::Marked))->recordCount(), 3);
}

TEST(MarkPersons, NamesThoseWhoKeepTheirMark)
{
    const test::Installation installation({{.counter = 1, .listname = "A"}, {.counter = 5, .listname = "B"}});
    const QString file = installation.folder.path() + "/QV/Familie/familie.mdb";
    {
        // As if the column had been made later than all rows, where their null mask has no room for it.
        const auto table = jet::Database::open(file)->table("Daten");
        const qint64 definition = qint64{table->definitionPage()} * 4096;
        const int mark = table->columns()[static_cast<std::size_t>(table->columnOf(u"Markierung"))].number;
        QFile family(file);
        ASSERT_TRUE(family.open(QIODevice::ReadWrite) && family.seek(definition + 51));
        const int indexes = family.read(1)[0];
        const auto put = [&](qint64 at, char value) {
            ASSERT_TRUE(family.seek(definition + at) && family.putChar(value));
        };
        put(41, 65);
        put(63 + 12 * indexes + 25 * mark + 5, 64);
    }
    test::FakeDesktop desktop;
    app::Program program(installation.programFolder(), desktop);
    ASSERT_TRUE(program.Main());
    const auto left = markPersons(program.databases, std::vector<qint32>{1, 5}, true).left;
    const QString told = leftPersons(program.language, program.databases, left);
    EXPECT_TRUE(left.size() == 2 && told.startsWith("2 Personen") && told.endsWith(": A (1); B (5)"))
        << told.toStdString();
    EXPECT_TRUE(leftPersons(program.language, program.databases, {}).isEmpty());
    EXPECT_TRUE(markPersons(program.databases, std::vector<qint32>{1, 5}, false).left.empty()) << "they are unmarked";
    EXPECT_TRUE(markPersons(program.databases, std::vector<qint32>{1}, false).changed.empty());
    EXPECT_THROW(markPersons(program.databases, std::vector<qint32>{1}, true), basic::Error);
}

namespace {

/// Great-grandparents to children: 1 ∞ 2 → 3 ∞ 4 → 5, 6 (5 is a woman) → 7, 8; 9 is a stranger, 10 its own father.
std::vector<test::TestPerson> family()
{
    return {{.counter = 1, .listname = "Urgroßvater", .sex = "M"},
            {.counter = 2, .listname = "Urgroßmutter", .sex = "W"},
            {.counter = 3, .listname = "Großvater", .sex = "", .father = 1, .mother = 2},
            {.counter = 4, .listname = "Großmutter", .sex = "W"},
            {.counter = 5, .listname = "Mutter", .sex = "W", .father = 3, .mother = 4},
            {.counter = 6, .listname = "Onkel", .sex = "M", .father = 3, .mother = 4},
            {.counter = 7, .listname = "Kind", .sex = "W", .father = 999, .mother = 5},
            {.counter = 8, .listname = "Kind des Onkels", .sex = "M", .father = 6},
            {.counter = 9, .listname = "Fremder", .sex = "M"},
            {.counter = 10, .listname = "Schleife", .sex = "M", .father = 10, .mother = 10}};
}

} // namespace

TEST(MarkPersons, TakesTheDirectLineAlong)
{
    const struct {
        qint32 person;
        Relatives relatives;
        std::vector<qint32> marked;
    } rows[] = {
        {5, {}, {5}},
        {3, {.children = true}, {3, 5, 6, 7, 8}},
        {4, {.children = true}, {4, 5, 6, 7, 8}},
        {5, {.children = true}, {5, 7}},
        {7, {.parents = true}, {1, 2, 3, 4, 5, 7}},
        {5, {.children = true, .parents = true}, {1, 2, 3, 4, 5, 7}},
        {10, {.children = true, .parents = true}, {10}},
        {77, {.children = true}, {}},
    };
    test::StartedProgram started(family());
    for (const auto &row : rows) {
        const std::vector<qint32> person{row.person};
        auto changed = markPersons(started.program.databases, person, true, row.relatives).changed;
        std::sort(changed.begin(), changed.end());
        EXPECT_EQ(changed, row.marked) << row.person;
        markPersons(started.program.databases, changed, false);
    }
}

TEST(MarkPersons, EndsTheWalkAtTheThousandthRelative)
{
    for (const int relatives : {999, 1000, 1500}) {
        std::vector<test::TestPerson> persons{{.counter = 1, .listname = "Vater"}};
        for (qint32 i = 0; i < relatives; ++i)
            persons.push_back({.counter = 2 + i, .listname = "Kind", .father = 1});
        test::StartedProgram started(persons);
        const std::vector<qint32> start{1};
        const MarkingResult result = markPersons(started.program.databases, start, true, {.children = true});
        EXPECT_EQ(result.limitReached, relatives >= 1000) << relatives;
        EXPECT_EQ(result.changed.size(), static_cast<std::size_t>(std::min(relatives, 1000) + 1)) << relatives;
    }
}

TEST(MarkHistory, RestoresExactlyTheRowsThatChanged)
{
    auto persons = family();
    persons[8].marked = true;
    test::StartedProgram started(persons);
    data::Datenbankmodul &databases = started.program.databases;
    const auto marked = [&] {
        const auto rows = databases.Familiendatenbank->openQuery(plainListQuery(PersonList::Marked));
        std::vector<qint32> counters;
        for (; !rows->eof(); rows->moveNext())
            counters.push_back(rows->value("Counter").toInt());
        std::sort(counters.begin(), counters.end());
        return counters;
    };

    MarkHistory history;
    history.record({});
    EXPECT_FALSE(history.canUndo());
    // Person 9 is marked already, so taking the step back must leave it so.
    history.record({.marked = markPersons(databases, std::vector<qint32>{8, 9}, true).changed, .unmarked = {}});
    history.record({.marked = {}, .unmarked = markPersons(databases, std::vector<qint32>{9}, false).changed});
    EXPECT_EQ(marked(), std::vector<qint32>{8});
    history.undo(databases);
    EXPECT_EQ(marked(), (std::vector<qint32>{8, 9}));
    history.undo(databases);
    EXPECT_EQ(marked(), std::vector<qint32>{9});
    history.redo(databases);
    EXPECT_EQ(marked(), (std::vector<qint32>{8, 9}));
    history.record({.marked = markPersons(databases, std::vector<qint32>{1}, true).changed, .unmarked = {}});
    EXPECT_FALSE(history.canRedo());
    history.undo(databases);
    history.undo(databases);
    EXPECT_EQ(marked(), std::vector<qint32>{9}) << "the step that was taken back before is forgotten";
}
