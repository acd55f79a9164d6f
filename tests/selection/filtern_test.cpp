// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/filter/filtern.h"

#include <gtest/gtest.h>

using namespace kalvenor;
using namespace kalvenor::selection;

namespace {

constexpr auto German = basic::DateOrder::DayMonthYear;
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
    // 15 June 1950 is day 18429, 1 January 1960 day 21916.
    const struct {
        const char *from, *fromAny, *to, *toAny;
    } dateClauses[] = {{"  AND Geburtsdatum >= 18429", "AND ( Geburt_XX = 'XXX_______' OR Geburtsdatum >= -620910 ) ",
                        " AND Geburtsdatum <= 21916", " AND ( Geburt_XX = 'XXX_______' OR geburtsdatum <= 767011 ) "},
                       {"  AND Sterbedatum >= 18429", " AND ( sterbe_XX = 'XXX_______' OR sterbedatum >= -620910 ) ",
                        "AND sterbedatum <= 21916", "AND ( sterbe_XX = 'XXX_______' OR sterbedatum <= 767011 ) "},
                       {"  AND geaendert >= 18429", "", "AND geaendert <= 21916", ""}};
    const char *sexClauses[2][2] = {{"", "AND Geschlecht = 'W' "}, {"AND Geschlecht = 'M' ", ""}};
    for (int controls = 0; controls < 4 * 8 * 4 * 2; ++controls) {
        const auto bit = [controls](int place) {
            return controls >> place & 1;
        };
        const bool from = bit(5) == 1;
        const bool to = bit(6) == 1;
        const bool marked = bit(7) == 1;
        // a date that does not exist or is half typed is none
        const QString noDate = bit(0) == 1 ? "31-02-1950" : bit(1) == 1 ? "__-__-1950" : Empty;
        Filter filter = dates({bit(2), bit(3), bit(4)}, from ? "15-06-1950" : noDate, to ? "01-01-1960" : noDate);
        filter.Geschlechtfilter = {bit(0), bit(1)};
        filter.Filterliste = marked ? PersonList::Marked : PersonList::Unmarked;

        QString query = All + sexClauses[bit(0)][bit(1)];
        for (std::size_t date = 0; date < 3; ++date) {
            if (filter.Datumfilter[date] == 1)
                query = query + (from ? dateClauses[date].from : dateClauses[date].fromAny) +
                        (to ? dateClauses[date].to : dateClauses[date].toAny);
        }
        const FilterQueries made = filtern(filter, German);
        EXPECT_EQ(made.queries[0],
                  marked ? "SELECT * FROM Daten WHERE Markierung = 0 ORDER BY Listname;" : query + Unmarked);
        EXPECT_EQ(made.queries[1], marked ? query + " AND Markierung = -1 ORDER BY Listname;"
                                          : "SELECT * FROM Daten WHERE Markierung = -1 ORDER BY Listname;");
    }
}

TEST(Filtern, TakesTheMonthFirstInTheUsOrder)
{
    const QString birthAny = "AND ( Geburt_XX = 'XXX_______' OR Geburtsdatum >= -620910 ) ";
    const struct {
        Filter filter;
        QString where;
    } rows[] = {
        {dates({1, 0, 0}, "12-31-1950", "01-02-1960"), "  AND Geburtsdatum >= 18628 AND Geburtsdatum <= 21917"},
        {dates({0, 1, 0}, "12-31-1950", "12-31-1950"), "  AND Sterbedatum >= 18628AND sterbedatum <= 18628"},
        {dates({0, 0, 1}, "12-31-1950", Empty), "  AND geaendert >= 18628"},
        {dates({1, 0, 0}, "02-31-1950", "12-31-1950"), birthAny + " AND Geburtsdatum <= 18628"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(filtern(row.filter, basic::DateOrder::MonthDayYear).queries[0], All + row.where + Unmarked);
}
