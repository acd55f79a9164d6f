// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/table.h"
#include <vector>

namespace kalvenor::dao {

/// All rows of the table in the General order of a text column: null first, equal ones in row order.
std::vector<quint32> generalOrder(const jet::Table &table, int column);

} // namespace kalvenor::dao
