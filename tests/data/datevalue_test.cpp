// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datevalue.h"

#include <gtest/gtest.h>

using namespace kalvenor;
using data::datumwandeln;

namespace {

constexpr auto German = basic::DateOrder::DayMonthYear;
constexpr auto American = basic::DateOrder::MonthDayYear;

QString padded(const QString &date, const QString &day)
{
    return date.leftJustified(20) + day;
}

} // namespace

TEST(Textwahr, KnowsThreeWords)
{
    for (const QString yes : {"WAHR", "wahr", "True", "#TRUE#", "#true#"})
        EXPECT_TRUE(data::textwahr(yes)) << yes.toStdString();
    for (const QString no : {"", "#True", "1", "-1", " TRUE", "#WAHR#", "ja", "FALSE"})
        EXPECT_FALSE(data::textwahr(no)) << no.toStdString();
}

TEST(Datumwandeln, TurnsTypedDatesIntoDateValues)
{
    const struct {
        basic::DateOrder order;
        QString typed;
        QString value;
    } rows[] = {
        {German, "", "__.__.____767011"},
        {German, "          ", "__.__.____767011"},
        {American, "", "__.__.____767011"},
        {German, "15.06.1950", padded("15.06.1950", "18429")},
        {German, "15-06-1950", padded("15.06.1950", "18429")},
        {German, "15/06/1950", padded("15.06.1950", "18429")},
        {American, "15.06.1950", padded("06-15-1950", "18429")},
        {American, "06-15-1950", padded("06-15-1950", "18429")},
        // the order that makes a date is taken
        {American, "15-06-1950", padded("06-15-1950", "18429")},
        {German, "__-__-1950", padded("__-__-1950", "18264")},
        {German, "__.__.1950", padded("__.__.1950", "18264")},
        {American, "__.__.1950", padded("__-__-1950", "18264")},
        {German, "15-06-____", padded("15-06-____", "767177")},
        {German, "__-__-____", padded("__-__-____", "767011")},
        // a full date of the year 4000 shows as the mask
        {German, "15.06.4000", padded("__.__.____", "767177")},
        {American, "06-15-4000", padded("__-__-____", "767177")},
        {German, "01.01.0200", padded("01.01.0200", "-620910")},
        // no dates
        {German, "31.02.2000", "31.02.2000"},
        {German, "Unsinn", "Unsinn"},
        {German, "99-99-4000", "__.__.____"},
    };
    for (const auto &row : rows) {
        QString typed = row.typed;
        EXPECT_EQ(datumwandeln(typed, row.order), row.value) << row.typed.toStdString();
    }
}

TEST(Datumwandeln, CompletesTheCenturyInTheTypedTextOnly)
{
    QString typed = "15-06-50  ";
    const QString value = datumwandeln(typed, German);
    EXPECT_EQ(typed, "15-06-1950  ");
    // The working copy kept the two digits, which read as 1950 as well.
    EXPECT_EQ(value, padded("15.06.1950", "18429"));

    typed = "15-06-__  ";
    EXPECT_EQ(datumwandeln(typed, German), "15-06-19__  ");
}

TEST(Datumwandeln, KeepsTheDayNumberOfADateValue)
{
    for (const basic::DateOrder order : {German, American}) {
        for (const QString typed : {"15-06-1950", "__-__-1950", "15-06-____", ""}) {
            QString first = typed;
            const QString value = datumwandeln(first, order);
            QString again = value;
            // An empty date has no padding, so it is read as text; its number stays the unknown day all the same.
            const QString second = datumwandeln(again, order);
            EXPECT_EQ(second.mid(10).trimmed(), value.mid(10).trimmed()) << value.toStdString();
        }
    }
    QString moved = padded("15.06.1950", "100");
    EXPECT_EQ(datumwandeln(moved, German), padded("09.04.1900", "100"));
    QString beyond = padded("15.06.1950", "99999999");
    EXPECT_EQ(datumwandeln(beyond, German), "15.06.1950");
}
