// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QString>

class QTableView;

namespace kalvenor::statistics {

/// The selected rows of the view to the clipboard, a line each, from top to bottom; nothing where none is selected.
void copySelectedLines(const QTableView &view, const std::function<QString(int row)> &line);

} // namespace kalvenor::statistics
