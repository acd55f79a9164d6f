// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace kalvenor::dao {

/// The complaint of SQLite in plain words. `offset` counts UTF-8 bytes of the statement; negative where unknown.
QString plainComplaint(const QString &complaint, const QString &sql, int offset, bool hasQuotes);

} // namespace kalvenor::dao
