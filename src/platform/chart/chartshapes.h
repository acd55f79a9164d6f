// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/canvas.h"
#include "platform/chart/chartlayout.h"
#include "platform/chart/chartstyle.h"

namespace kalvenor::chart {

/// The whole chart. The series are told apart by colour, line style and mark.
void drawChart(Canvas &canvas, const ChartSubject &subject, const ChartLayout &layout, const ChartStyle &style,
               QSizeF size);

} // namespace kalvenor::chart
