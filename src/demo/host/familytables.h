// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/family/population.h"
#include "platform/jet/creator/creator.h"
#include <vector>

namespace kalvenor::demo {

jet::NewColumn longColumn(const char16_t *name);
jet::NewColumn textColumn(const char16_t *name, int length);
jet::NewColumn column(const char16_t *name, jet::ColumnType type);
/// The unique index "Counter" over the column of that name.
std::vector<jet::NewIndex> counterIndex();

/// Adds the host's tables beside the person table. `counters` holds the persons' numbers by index.
void addFamilyTables(jet::Creator &creator, const Population &population, const std::vector<std::int32_t> &counters,
                     Random &random);

} // namespace kalvenor::demo
