// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/printdocument.h"

namespace kalvenor::test {

/// Columns as a test writes them, "<4000|^1200|>900": a sign (< left, ^ centre, > right, = justified, left without one)
/// and the width.
inline std::vector<print::Column> columns(QStringView format)
{
    using print::Alignment;
    std::vector<print::Column> columns;
    for (const QStringView part : format.split(u'|')) {
        const auto sign = QStringView(u"<^>=").indexOf(part.front());
        constexpr Alignment alignments[] = {Alignment::Left, Alignment::Centre, Alignment::Right, Alignment::Justified};
        print::Column column;
        column.alignment = alignments[std::max<qsizetype>(sign, 0)];
        column.width = part.mid(sign < 0 ? 0 : 1).toInt();
        columns.push_back(column);
    }
    return columns;
}

} // namespace kalvenor::test
