// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include <QString>

namespace kalvenor::dao {

/// What SQLite complains of, without a place. `offset` counts UTF-8 bytes of the statement; negative where unknown.
basic::Error sqlError(const QString &complaint, const QString &sql, int offset, bool hasQuotes);

} // namespace kalvenor::dao
