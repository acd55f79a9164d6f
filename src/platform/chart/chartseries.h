// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chartdrawing.h"

class QChart;

// The shapes of a chart, told apart by colour, line style and mark.
namespace kalvenor::chart {

/// To a chart that has its two axes.
void addSeries(QChart &chart, const ChartSubject &subject, const ChartStyle &style);
void addPie(QChart &chart, const ChartSubject &subject, const ChartStyle &style);
/// The marks at the points of lines, areas and point charts.
void drawMarks(QPainter &painter, const ChartSubject &subject, const ChartLayout &layout, const ChartStyle &style);
/// The legend's sample of a series (of a row in a pie).
void drawSwatch(QPainter &painter, const ChartSubject &subject, int index, const QRectF &box, bool dark);

} // namespace kalvenor::chart
