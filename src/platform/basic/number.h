// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

// Numbers as the classic BASIC runtime reads, rounds and writes them.
namespace kalvenor::basic {

/// Leading-number read (Val): blanks, tabs and line ends anywhere are skipped, "." is the only decimal point,
/// E e D d start an exponent, &H and &O read hexadecimal and octal. No number gives 0, one beyond the range infinity;
/// never fails.
double leadingNumber(QStringView text);

/// Number to text with a sign position (Str): " 12.3", "-.5", 15 significant digits.
QString numberText(double value);

/// The same without the sign blank, as `Trim$(Str$(x))` gives it: "12.3", ".5".
QString trimmedNumberText(double value);

/// Rounds half to even. Throws Error(Overflow) outside -32768..32767 (NaN included).
qint16 toInteger16(double value);
/// Rounds half to even. Throws Error(Overflow) outside the 32-bit range.
qint32 toLong32(double value);
/// A whole text that must be a number (CInt of a text). Throws Error(TypeMismatch) or Error(Overflow).
qint16 textToInteger16(QStringView text);

/// Currency: a value rounded half to even to four decimals. Throws Error(Overflow) beyond its range.
double toCurrency(double value);

} // namespace kalvenor::basic
