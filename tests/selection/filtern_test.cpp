// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/filtern.h"

#include "support/startedprogram.h"
#include <gtest/gtest.h>

using namespace kalvenor;
using namespace kalvenor::selection;

namespace {

constexpr auto German = DateOrder::DayMonthYear;
const QString Empty = "__-__-____";
const QString All = "SELECT * FROM Daten WHERE Listname LIKE '**' ";
const QString Unmarked = " AND Markierung = 0 ORDER BY Listname;";

Filter dates(std::array<int, 3> boxes, const QString &from, const QString &to)
{
    return {.Datumfilter = boxes, .Presse_Datum = {from, to}};
}

} // namespace

TEST(Filtern, PutsStarsAroundThePattern)
{
    const struct {
        QString typed;
        QString pattern;
    } rows[] = {{"", "**"},
                {"   ", "**"},
                {"*", "*"},
                {"Maier", "*Maier*"},
                {" *Maier ", "*Maier*"},
                {"Maier*", "*Maier*"},
                {"*Maier*", "*Maier*"},
                {"O'Brien", "*O'Brien*"}};
    for (const auto &row : rows) {
        const FilterQueries queries = filtern({.Presse = row.typed}, German);
        EXPECT_EQ(queries.pattern, row.pattern);
        EXPECT_EQ(queries.queries[0], "SELECT * FROM Daten WHERE Listname LIKE '" + row.pattern + "' " + Unmarked);
    }
}

TEST(Filtern, BuildsTheQueryLetterByLetter)
{
    const struct {
        Filter filter;
        QString where;
    } rows[] = {
        {{.Geschlechtfilter = {1, 0}}, "AND Geschlecht = 'M' "},
        {{.Geschlechtfilter = {0, 1}}, "AND Geschlecht = 'W' "},
        {{.Geschlechtfilter = {1, 1}}, ""},
        {dates({0, 0, 0}, "01-01-1900", "31-12-1950"), ""},
        {dates({1, 0, 0}, "15-06-1950", "01-01-1960"), "  AND Geburtsdatum >= 18429 AND Geburtsdatum <= 21916"},
        {dates({1, 0, 0}, Empty, Empty),
         "AND ( Geburt_XX = 'XXX_______' OR Geburtsdatum >= -620910 )  AND ( Geburt_XX = 'XXX_______' OR geburtsdatum "
         "<= 767011 ) "},
        // the upper bounds of death and change stand directly behind the day number
        {dates({0, 1, 0}, "15-06-1950", "01-01-1960"), "  AND Sterbedatum >= 18429AND sterbedatum <= 21916"},
        {dates({0, 1, 0}, Empty, Empty),
         " AND ( sterbe_XX = 'XXX_______' OR sterbedatum >= -620910 ) AND ( sterbe_XX = 'XXX_______' OR sterbedatum <= "
         "767011 ) "},
        {dates({0, 0, 1}, "15-06-1950", "01-01-1960"), "  AND geaendert >= 18429AND geaendert <= 21916"},
        {dates({0, 0, 1}, Empty, "01-01-1960"), "AND geaendert <= 21916"},
        {dates({0, 0, 1}, Empty, Empty), ""},
        {dates({0, 1, 1}, Empty, "01-01-1960"),
         " AND ( sterbe_XX = 'XXX_______' OR sterbedatum >= -620910 ) AND sterbedatum <= 21916AND geaendert <= 21916"},
        // a partly typed date is no date
        {dates({1, 0, 0}, "__-__-1950", "31-02-1950"),
         "AND ( Geburt_XX = 'XXX_______' OR Geburtsdatum >= -620910 )  AND ( Geburt_XX = 'XXX_______' OR geburtsdatum "
         "<= 767011 ) "},
    };
    for (const auto &row : rows)
        EXPECT_EQ(filtern(row.filter, German).queries[0], All + row.where + Unmarked);
}

TEST(Filtern, NarrowsOneListAndResetsTheOther)
{
    const FilterQueries queries = filtern({.Presse = "x", .Filterliste = PersonList::Marked}, German);
    EXPECT_EQ(queries.queries[0], plainListQuery(PersonList::Unmarked));
    EXPECT_EQ(queries.queries[1],
              "SELECT * FROM Daten WHERE Listname LIKE '*x*'  AND Markierung = -1 ORDER BY Listname;");
}

TEST(Filtern, SelectsWhomItSays)
{
    test::StartedProgram started({
        {.counter = 1, .listname = "Müller, Eva", .sex = "W", .birth = 100, .death = 767011, .changed = 50},
        {.counter = 2, .listname = "muller, Max", .sex = "M", .birth = 767011, .death = 900, .birthXX = "XXX_______"},
        {.counter = 3, .listname = "Bauer, Kim", .sex = "", .birth = 500, .death = 900, .changed = 100},
    });
    const struct {
        Filter filter;
        std::vector<int> counters; ///< in list order
    } rows[] = {
        {{}, {3, 1, 2}},
        {{.Presse = "MÜLLER"}, {1}},
        {{.Presse = "m?ller"}, {1, 2}},
        {{.Geschlechtfilter = {0, 1}}, {1}},
        {{.Geschlechtfilter = {1, 1}}, {3, 1, 2}},
        // 100 is 9 April 1900, 200 is 18 July 1900
        {dates({1, 0, 0}, "01-01-1900", "18-07-1900"), {1}},
        {dates({1, 0, 0}, Empty, "18-07-1900"), {1}},
        {dates({1, 0, 0}, Empty, Empty), {3, 1, 2}},
        {dates({0, 1, 0}, "01-01-1901", "31-12-1903"), {3, 2}},
        {dates({0, 0, 1}, "31-12-1899", "09-04-1900"), {3, 1}},
    };
    for (const auto &row : rows) {
        const QString query = filtern(row.filter, German).queries[0];
        const auto persons = started.program.databases.Familiendatenbank->openQuery(query);
        std::vector<int> counters;
        for (; !persons->eof(); persons->moveNext())
            counters.push_back(persons->value("Counter").toInt());
        EXPECT_EQ(counters, row.counters) << query.toStdString();
    }
}
