// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/date.h"

#include <cmath>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace kalvenor::basic;

namespace {

constexpr auto German = DateOrder::DayMonthYear;
constexpr auto American = DateOrder::MonthDayYear;

// "-" where the text is no date.
std::string readAs(const QString &text, DateOrder order)
{
    const auto serial = dateFromText(text, order);
    if (!serial)
        return "-";
    return formatDate(*serial, *serial >= 0 && *serial < 1 ? u"hh:nn:ss" : u"yyyy-mm-dd").toStdString();
}

} // namespace

TEST(Date, ReadInBothOrders)
{
    const struct {
        const char *text;
        const char *german;
        const char *american;
    } rows[] = {
        {"15.06.1950", "1950-06-15", "-"},
        {"1.1.1950", "1950-01-01", "-"},
        {"31.12.1997", "1997-12-31", "-"},
        {"15.6.50", "1950-06-15", "15:06:50"},
        {"15-06-1950", "1950-06-15", "1950-06-15"},
        {"06-15-1950", "1950-06-15", "1950-06-15"},
        {"6/15/1950", "1950-06-15", "1950-06-15"},
        {"01-02-1950", "1950-02-01", "1950-01-02"},
        {"15-06-4000", "4000-06-15", "4000-06-15"},
        {"15-06-0200", "0200-06-15", "0200-06-15"},
        {"01-01-100", "0100-01-01", "0100-01-01"},
        {"31.02.2000", "-", "-"},
        {"30-02-2000", "-", "-"},
        {"29-02-1900", "-", "-"},
        {"29-02-2000", "2000-02-29", "2000-02-29"},
        {"31-04-1950", "-", "-"},
        {"00-06-1950", "-", "-"},
        {"1950-06-15", "1950-06-15", "1950-06-15"},
        {"1950-15-06", "1950-06-15", "1950-06-15"},
        {"1950", "-", "-"},
        {"", "-", "-"},
        {"__.__.____", "-", "-"},
        {"15-06-19501", "-", "-"},
        {"15-06-29", "2029-06-15", "2029-06-15"},
        {"15-06-30", "1930-06-15", "1930-06-15"},
        {"15-06-00", "2000-06-15", "2000-06-15"},
        {" 15 .06-1950 ", "1950-06-15", "-"},
        {"15-06-1950 14:30", "1950-06-15", "1950-06-15"},
        {"15-06-1950 25:30", "-", "-"},
        {"14:30", "14:30:00", "14:30:00"},
        {"14:30:15", "14:30:15", "14:30:15"},
        {"24:00", "-", "-"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(readAs(row.text, German), row.german) << row.text;
        EXPECT_EQ(readAs(row.text, American), row.american) << row.text;
    }
}

TEST(Date, DayNumbers)
{
    EXPECT_EQ(dayNumber(1899, 12, 30), 0);
    EXPECT_EQ(dayNumber(1950, 1, 1), 18264);
    EXPECT_EQ(dayNumber(200, 1, 1), -620910);
    EXPECT_EQ(dayNumber(4000, 1, 1), 767011);
    EXPECT_EQ(dayNumber(100, 1, 1), -657434);
    EXPECT_EQ(dayNumber(9999, 12, 31), 2958465);
    EXPECT_FALSE(dayNumber(99, 12, 31) || dayNumber(10000, 1, 1) || dayNumber(1900, 2, 29) || dayNumber(1950, 13, 1));
}

TEST(Date, Format)
{
    const struct {
        double serial;
        const char16_t *pattern;
        const char *text;
    } rows[] = {
        {18264, u"dd-mm-yyyy", "01-01-1950"},
        {-620910, u"dd.mm.yyyy", "01.01.0200"},
        {18264.25, u"dd.mm.yyyy hh:mm", "01.01.1950 06:00"},
        {-1.25, u"dd.mm.yyyy hh:mm", "29.12.1899 06:00"},
        {-0.75, u"dd.mm.yyyy hh:mm", "30.12.1899 18:00"},
        {18264 + 1439.9999 / 1440, u"dd.mm.yyyy hh:nn:ss", "02.01.1950 00:00:00"},
        {18264.25 + 5.0 / 1440, u"d/m/yyyy h.m, mm", "1/1/1950 6.5, 01"},
        {2958465, u"YYYY", "9999"},
        {2958466, u"yyyy", ""},
        {-657434.5, u"yyyy-mm-dd hh", "0100-01-01 12"},
        {-657435, u"yyyy", ""},
        {1e300, u"yyyy", ""},
    };
    for (const auto &row : rows)
        EXPECT_EQ(formatDate(row.serial, row.pattern).toStdString(), row.text);
    EXPECT_EQ(formatDate(std::nan(""), u"yyyy"), QString());
    EXPECT_EQ(dateText(35795, German), u"31.12.1997"_s);
    EXPECT_EQ(dateText(35795, American), u"12/31/1997"_s);
}

TEST(Date, TimesOfNegativeDaysComeBack)
{
    const auto serial = dateFromText(u"01-01-0200 06:00", German);
    ASSERT_TRUE(serial);
    EXPECT_EQ(*serial, -620910.25);
    EXPECT_EQ(formatDate(*serial, u"dd-mm-yyyy hh:mm"), u"01-01-0200 06:00"_s);
}
