// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QDate>
#include <QString>
#include <QStringView>

// Date serials: day 0 is 30 December 1899; the fraction is the time of day, and for negative serials it still
// counts forwards. Years 100 to 9999.
namespace kalvenor::basic {

/// In which order the system takes the numbers of a date, unless only another order makes one: 13-02-1950 is
/// 13 February in both.
enum class DateOrder {
    DayMonthYear, ///< German: 31.12.1997
    MonthDayYear, ///< US: 12/31/1997; also where the system writes the year first
};

/// The order of the locale this process runs under.
DateOrder systemDateOrder();

QDate calendarDate(qint64 dayNumber);

/// Day number of a date of the (proleptic) Gregorian calendar, nothing where there is no such day.
std::optional<qint64> dayNumber(int year, int month, int day);

/// Reads a date text (CDate), nothing where it is not one (IsDate). A text that is a time of day alone gives its
/// fraction.
std::optional<double> dateFromText(QStringView text, DateOrder order);
inline bool isDate(QStringView text, DateOrder order)
{
    return dateFromText(text, order).has_value();
}

/// The date as the system writes it (CStr): "31.12.1997" or "12/31/1997".
QString dateText(double serial, DateOrder order);

/// Formats with d dd m mm yyyy hh h nn ss and literal characters; "mm" directly behind "hh" means minutes.
/// A serial outside the years 100–9999 (or NaN) gives "".
QString formatDate(double serial, QStringView pattern);

} // namespace kalvenor::basic
