// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

// Day numbers (day 0 = 30 December 1899).
namespace kalvenor::demo {

inline constexpr int UnknownDay = 767011; ///< 1 January 4000
inline constexpr int Today = 40359;       ///< 30 June 2010, the day on which the demonstration stands still
inline constexpr qint64 JulianDayZero = 2415019;

inline int dayOf(int year, int month = 1, int day = 1)
{
    return static_cast<int>(QDate(year, month, day).toJulianDay() - JulianDayZero);
}

inline QDate dateOf(int day)
{
    return QDate::fromJulianDay(day + JulianDayZero);
}

inline int yearOf(int day)
{
    return dateOf(day).year();
}

} // namespace kalvenor::demo
