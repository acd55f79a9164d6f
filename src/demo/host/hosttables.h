// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/family/random.h"
#include "platform/jet/creator/creator.h"
#include <cstdint>
#include <vector>

namespace kalvenor::demo {

jet::NewColumn longColumn(const char16_t *name);
jet::NewColumn textColumn(const char16_t *name, int length);
jet::NewColumn column(const char16_t *name, jet::ColumnType type);
/// The unique index "Counter" over the column of that name.
std::vector<jet::NewIndex> counterIndex();

/// Adds the tables of that file that this program does not read but wants to see; enough rows to look at. `counters`
/// holds the persons' numbers.
void addHostTables(jet::Creator &creator, const QString &fileName, const std::vector<std::int32_t> &counters,
                   Random &random);

} // namespace kalvenor::demo
