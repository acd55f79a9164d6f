// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <vector>

// What a chart shows and how. Columns are series (the legend), rows are categories along the axis.
namespace kalvenor::chart {

/// Types by the numbers of the chart control. The solid ones are drawn as their flat kin, any other number as bars.
/// Combination: the last column is a line over the bars of the others. Pie: one slice a row, of the last column.
enum class ChartType {
    Bar3D = 0,
    Bar = 1,
    Line3D = 2,
    Line = 3,
    Area3D = 4,
    Area = 5,
    Step3D = 6,
    Step = 7,
    Combination3D = 8,
    Combination = 9,
    Pie = 14,
    XY = 16,
};

/// The chart control's table: data[row][column] are number texts with a point. What is no number counts as 0, as does a
/// cell that a short row lacks; columns and rows without a label get none.
/// A 0 is a row without persons: no bar, and a gap in lines, areas, steps and points.
struct ChartTable {
    QStringList columnLabels;
    QStringList rowLabels;
    std::vector<QStringList> data;

    bool isEmpty() const { return data.empty(); }
};

struct ChartLook {
    ChartType type = ChartType::Bar;
    bool legend = true;
    bool grid = true;
    bool values = false; ///< the figures at the bars and points, where there is room
    /// Scales the fonts of legend, axes and figures: factor / 3 of the surrounding text, so that 3 is its size; at
    /// least half of it, at most three times. Not a number, 0 and less count as 3. Where the texts do not fit the
    /// picture, they are made smaller than that rather than cut.
    double fontFactor = 3;
    QString title = {};
    QString categoryTitle = {}; ///< below the axis of the rows
    QString valueTitle = {};    ///< beside the axis of the figures
    QString emptyText = {};     ///< shown instead of a chart where the table is empty
    QString valueFormat = {};   ///< of a figure under the mouse: "%1: %2 years" (series and row, figure)
    QLocale locale = {};        ///< how figures are written

    bool operator==(const ChartLook &) const = default;
};

} // namespace kalvenor::chart
