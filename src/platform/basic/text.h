// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

// Cutting of texts by the rules of the classic BASIC runtime. Positions count UTF-16 units from 1.
namespace kalvenor::basic {

/// The first `length` units, or all there are. Throws Error(InvalidProcedureCall) for a negative length.
QString leftPart(QStringView text, qsizetype length);
/// The last `length` units. Throws like leftPart.
QString rightPart(QStringView text, qsizetype length);
/// From unit `start` (1 = first) to the end or `length` units. Past the end gives "". Throws for start < 1 or length <
/// 0.
QString midPart(QStringView text, qsizetype start);
QString midPart(QStringView text, qsizetype start, qsizetype length);
/// Without blanks (U+0020 only) at both ends.
QString trimBlanks(QStringView text);
/// Padded with blanks on the right to `length` units, or unchanged where it is longer.
QString padRight(QStringView text, qsizetype length);

} // namespace kalvenor::basic
