// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/date.h"
#include <QString>

namespace kalvenor::data {

/// Day number that stands for an unknown date: 1 January 4000.
inline constexpr int UnknownDay = 767011;

/// The truth rule for switches in settings: WAHR, TRUE or #TRUE# in any case is true, everything else false.
bool textwahr(const QString &text);

/// Turns a typed date ("dd.mm.yyyy", "dd-mm-yyyy", "mm-dd-yyyy", unknown parts as underscores) into a date value: the
/// date text padded with blanks to 20 characters, directly followed by its day number. A date value fed in again keeps
/// its day number. A text that is no date passes through; the empty text gives "__.__.____767011".
/// The typed text is changed as well: cut to ten characters, brought to the system's order, its year completed.
QString datumwandeln(QString &typed, basic::DateOrder order);

} // namespace kalvenor::data
