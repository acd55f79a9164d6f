// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/family/calendar.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

namespace {

constexpr int FirstYear = 1400;
constexpr int LastYear = 2150;

constexpr bool isLeap(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

constexpr int daysOf(int year)
{
    return isLeap(year) ? 366 : 365;
}

/// Day numbers of 1 January of each year.
constexpr auto YearStarts = [] {
    std::array<int, LastYear - FirstYear + 2> starts{};
    constexpr std::size_t epoch = 1900 - FirstYear;
    starts[epoch] = 2;
    for (std::size_t i = epoch + 1; i < starts.size(); ++i)
        starts[i] = starts[i - 1] + daysOf(FirstYear + static_cast<int>(i) - 1);
    for (std::size_t i = epoch; i > 0; --i)
        starts[i - 1] = starts[i] - daysOf(FirstYear + static_cast<int>(i) - 1);
    return starts;
}();

constexpr std::array<int, 13> MonthStarts = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};

/// Days of the year before the month (1 to 13).
constexpr int monthStart(int year, int month)
{
    return MonthStarts[std::size_t(month - 1)] + (month > 2 && isLeap(year) ? 1 : 0);
}

} // namespace

int dayOf(int year, int month, int day)
{
    return YearStarts[std::size_t(year - FirstYear)] + monthStart(year, month) + day - 1;
}

int yearOf(int day)
{
    const auto next = std::upper_bound(YearStarts.begin(), YearStarts.end(), day);
    return FirstYear + static_cast<int>(next - YearStarts.begin()) - 1;
}

Date dateOf(int day)
{
    const int year = yearOf(day);
    const int inYear = day - dayOf(year);
    int month = 12;
    while (monthStart(year, month) > inYear)
        --month;
    return {year, month, inYear - monthStart(year, month) + 1};
}

QString dateText(int day)
{
    const Date date = dateOf(day);
    return u"%1.%2.%3"_s.arg(date.day, 2, 10, QChar(u'0')).arg(date.month, 2, 10, QChar(u'0')).arg(date.year);
}

} // namespace kalvenor::demo
