// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/marking.h"

#include "selection/listquery.h"
#include "support/startedprogram.h"
#include <gtest/gtest.h>

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
    EXPECT_EQ(markPersons(databases, wanted, true), (std::vector<qint32>{9, 1}));
    const auto marked = databases.Familiendatenbank->openQuery(plainListQuery(PersonList::Marked));
    EXPECT_EQ(marked->recordCount(), 3);

    // The marks lie in the file: another program sees them.
    test::FakeDesktop desktop;
    app::Program other(started.programFolder(), desktop);
    ASSERT_TRUE(other.Main());
    EXPECT_EQ(other.databases.Familiendatenbank->openQuery(plainListQuery(PersonList::Unmarked))->recordCount(), 0);
}

TEST(MarkPersons, StopsWhenAsked)
{
    test::StartedProgram started({{.counter = 1, .listname = "A"}, {.counter = 2, .listname = "B"}});
    const std::vector<qint32> wanted{1, 2};
    EXPECT_THROW(markPersons(started.program.databases, wanted, true, [](qint64 done, qint64) { return done < 1; }),
                 Error);
    EXPECT_EQ(started.program.databases.Familiendatenbank->openQuery(plainListQuery(PersonList::Marked))->recordCount(),
              1);
}
