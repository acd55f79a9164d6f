// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/selectedlines.h"

#include <algorithm>
#include <QClipboard>
#include <QGuiApplication>
#include <QTableView>

namespace kalvenor::statistics {

void copySelectedLines(const QTableView &view, const std::function<QString(int row)> &line)
{
    QStringList lines;
    // Row by row of each range: a million selected rows are one range.
    QItemSelection ranges = view.selectionModel()->selection();
    std::sort(ranges.begin(), ranges.end(),
              [](const QItemSelectionRange &a, const QItemSelectionRange &b) { return a.top() < b.top(); });
    for (const QItemSelectionRange &range : std::as_const(ranges)) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            lines << line(row);
    }
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

} // namespace kalvenor::statistics
