// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/family/random.h"

namespace kalvenor::demo {

/// Draws the day of death of somebody born on that day; the day of birth itself for a stillborn child. Infant
/// mortality, wars and epidemics follow the centuries. May lie in the future.
int drawDeath(int birth, bool woman, Random &random);

/// In how many of 10,000 births of that year the mother dies.
int childbedDeaths(int year);

} // namespace kalvenor::demo
