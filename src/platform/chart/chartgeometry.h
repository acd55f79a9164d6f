// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chartlayout.h"

#include <optional>

// Where the figures of a chart are drawn, in a layout: the one geometry for shapes, texts and the mouse.
namespace kalvenor::chart {

/// Whether the column is drawn as bars.
bool isBarColumn(const ChartSubject &subject, int column);
/// How wide one bar is, in rows.
double barWidth(const ChartSubject &subject);
/// Where a value stands between the axes: 0 on the left rim for `rows` = -0.5, one row a slot.
QPointF plotPoint(const ChartSubject &subject, const ChartLayout &layout, double rows, double value);
/// Where a row's figure stands between the axes. Of bars: the middle of the bar's end.
QPointF figurePoint(const ChartSubject &subject, const ChartLayout &layout, int column, int row);
/// From 0 to the figure.
QRectF barRect(const ChartSubject &subject, const ChartLayout &layout, int column, int row);

/// A slice's begin and extent in degrees, clockwise from the top.
struct PieSlice {
    double begin;
    double span;
};
std::vector<PieSlice> pieSlices(const ChartFigures &figures);

struct ChartHit {
    int column;
    int row;
};
/// The figure that is drawn there.
std::optional<ChartHit> figureAt(const ChartSubject &subject, const ChartLayout &layout, QPointF place);

} // namespace kalvenor::chart
