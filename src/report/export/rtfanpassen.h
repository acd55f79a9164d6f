// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QTextDocument;

namespace kalvenor::report {

/// Prepares a rich text for the report: it is brought into the form that writeRtf gives it, its font sizes are
/// multiplied by `scale`, underscores become blanks, paragraph ends become line breaks (`\pard` becomes `\lined`, which
/// readers pass over, so that alignments and indents hold for the whole text), and it gets a colour table where it has
/// none, before its `\rtf1`: readRtf reads that. A text of nothing but blanks stays as it is. The first argument is not
/// read.
/// A scale that does not give whole half points leaves fractions behind `\fs`, which RTF shows as text. Throws
/// Error(Overflow) for a scale beyond the range of a currency value.
void rtfanpassen(int, QString &rtf, double scale = 1);
/// The same for a text that was read already and holds more than blanks.
QString rtfanpassen(const QTextDocument &control, double scale = 1);

} // namespace kalvenor::report
