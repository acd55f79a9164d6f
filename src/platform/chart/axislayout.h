// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chartlayout.h"

namespace kalvenor::chart {

/// The plot, its axes with their texts, and the figures at bars and points.
void layoutAxes(LayoutTry &attempt);

} // namespace kalvenor::chart
