// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QString>
#include <QStringView>

// The age rules of all statistics. A year is always 365 days.
namespace kalvenor::statistics {

enum class Geschlecht { Unbekannt, Mann, Frau };
/// "M" and "W" as the field `Geschlecht` holds them; anything else is unknown.
Geschlecht geschlechtAus(QStringView text);

/// Not null and not the unknown day.
bool istBekannt(std::optional<double> datum);

/// Days from birth to death, where both are known and death lies after birth.
std::optional<double> lebenstage(std::optional<double> geburtsdatum, std::optional<double> sterbedatum);

/// Whole tenths of years, rounded down, in years: 3652 days are 10 years, 3653 too, 3700 are 10.1.
double altersjahre(double days);

/// Always 7 characters: the age right-aligned in 5, without a zero before the point, then two blanks ("   .5  ").
QString alterstext(double days);

/// The list name as the age list shows it: the first 42 characters, a blank, and from the 51st character on (43 to 50
/// are left out).
QString gekuerzterListname(QStringView listname);

} // namespace kalvenor::statistics
