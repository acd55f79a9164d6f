// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chartlayout.h"

namespace kalvenor::chart {

/// The circle, and a text with a leader for each slice.
void layoutPie(LayoutTry &attempt);

} // namespace kalvenor::chart
