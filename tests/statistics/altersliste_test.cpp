// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ages/altersliste.h"

#include "platform/basic/number.h"
#include "statistics/ages/alter.h"
#include "support/errors.h"
#include "support/startedprogram.h"
#include <gtest/gtest.h>

using namespace kalvenor;
using namespace kalvenor::statistics;

TEST(Alterstext, IsSevenCharactersWide)
{
    const struct {
        double days;
        QString text;
    } rows[] = {
        {1, "   .0  "},     {36, "   .0  "},    {37, "   .1  "},     {182.5, "   .5  "}, {364, "   .9  "},
        {365, "  1.0  "},   {3652, " 10.0  "},  {3653, " 10.0  "},   {4380, " 12.0  "},  {38142.5, "104.5  "},
        {36499, " 99.9  "}, {36500, "100.0  "}, {365000, "000.0  "}, {766, "  2.0  "},   {767, "  2.1  "},
    };
    for (const auto &row : rows)
        EXPECT_EQ(alterstext(row.days), row.text) << row.days;
}

TEST(Alterstext, IsTheNumberTextSetInColumns)
{
    for (int days = 0; days < 400'000; days += 7) {
        QString text = "     " + basic::trimmedNumberText(altersjahre(days));
        text += text.contains('.') ? "" : ".0";
        EXPECT_EQ(alterstext(days), text.replace(" 0.0", "  .0").append("  ").right(7)) << days;
    }
}

TEST(Alterszeile, LeavesOutEightCharactersOfLongNames)
{
    const QString name = "123456789-123456789-123456789-123456789-12ABCDEFGHrest";
    const auto text = [](const QString &listname) {
        return Alterszeile{.tage = 365, .listname = listname}.text();
    };
    EXPECT_EQ(text(name), "  1.0  123456789-123456789-123456789-123456789-12 rest");
    EXPECT_EQ(text("Abel, Anna"), "  1.0  Abel, Anna ");
}

namespace {

QStringList lines(test::StartedProgram &started, const GeschlechtAlter &boxes)
{
    Altersliste list{{.listname = "old line"}};
    alterslistenausgabe(started.program.databases, boxes, list);
    QStringList texts;
    for (const auto &line : list)
        texts << QString::number(line.Counter) + "|" + line.text();
    return texts;
}

} // namespace

TEST(Alterslistenausgabe, ListsMarkedPersonsWithBothDates)
{
    test::StartedProgram started({
        {.counter = 11, .listname = "Zorn, Ida", .marked = true, .sex = "W", .birth = -365, .death = 0},
        {.counter = 12, .listname = "Abel, Max", .marked = true, .sex = "M", .birth = 0, .death = 3652},
        {.counter = 13, .listname = "Unmarkiert", .sex = "M", .birth = 0, .death = 3652},
        {.counter = 14, .listname = "Am selben Tag", .marked = true, .sex = "M", .birth = 5, .death = 5},
        {.counter = 15, .listname = "Vor der Geburt", .marked = true, .sex = "M", .birth = 5, .death = 4},
        {.counter = 16, .listname = "Lebt", .marked = true, .sex = "M", .birth = 5, .death = 767011},
        {.counter = 17, .listname = "Ohne Geburt", .marked = true, .sex = "W", .birth = 767011, .death = 9},
        {.counter = 18, .listname = "Leeres Feld", .marked = true, .sex = "W", .death = 9},
        {.counter = 19, .listname = "Geschlecht fehlt", .marked = true, .sex = "", .birth = 0, .death = 365},
        {.counter = 20, .listname = "Säugling", .marked = true, .sex = "M", .birth = 0, .death = 1},
    });
    const QString man = "12| 10.0  Abel, Max ";
    const QString infant = "20|   .0  Säugling ";
    const QString woman = "11|  1.0  Zorn, Ida ";
    const struct {
        GeschlechtAlter boxes;
        QStringList lines;
    } rows[] = {
        {{1, 1, 0, 0}, {man, infant, woman}},
        {{1, 0, 1, 1}, {man, infant}},
        {{0, 1, 0, 0}, {woman}},
        {{0, 0, 1, 1}, {}},
        {{2, 1, 0, 0}, {woman}},
        {{2, 0, 0, 0}, {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(lines(started, row.boxes), row.lines);
}

TEST(Alterslistenausgabe, IsEmptyWithoutMarksAndKeepsLinesWhenStopped)
{
    test::StartedProgram empty({{.counter = 1, .listname = "A", .birth = 0, .death = 365}});
    EXPECT_TRUE(lines(empty, {1, 1, 1, 1}).isEmpty());

    std::vector<test::TestPerson> many;
    for (qint32 i = 1; i <= 600; ++i)
        many.push_back({.counter = i, .listname = "P", .marked = true, .birth = 0, .death = 365});
    test::StartedProgram started(many);
    Altersliste list;
    EXPECT_EQ(test::kindOf([&] {
                  alterslistenausgabe(started.program.databases, {1, 1, 0, 0}, list,
                                      [](qint64 done, qint64 total) { return total != 600 || done < 256; });
              }),
              basic::ErrorKind::Cancelled);
    EXPECT_EQ(list.size(), 256U);
}
