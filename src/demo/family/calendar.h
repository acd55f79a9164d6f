// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QString>

// Day numbers (day 0 = 30 December 1899) of the years 1400 to 2150.
namespace kalvenor::demo {

inline constexpr int UnknownDay = 767011; ///< 1 January 4000
inline constexpr int Today = 40359;       ///< 30 June 2010, the day on which the demonstration stands still

struct Date {
    int year;
    int month;
    int day;
};

int dayOf(int year, int month = 1, int day = 1);
int yearOf(int day);
Date dateOf(int day);
/// "05.02.1782"
QString dateText(int day);

} // namespace kalvenor::demo
