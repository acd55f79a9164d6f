// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// What a chart shows and how. Columns are series (the legend), rows are categories along the axis.
namespace kalvenor {

/// Types by the numbers of the chart control. The solid ones are drawn as their flat kin.
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

/// The chart control's table: data[row][column] are number texts with a point.
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
    bool values = false;   ///< the figures at the bars and points
    double fontFactor = 3; ///< scales the fonts of legend and axes; 3 is the size of the surrounding text
    QString title = {};
    QString categoryTitle = {}; ///< below the axis of the rows
    QString valueTitle = {};    ///< beside the axis of the figures
    QString emptyText = {};     ///< shown instead of a chart where the table is empty
    QString valueFormat = {};   ///< of a figure under the mouse: "%1: %2 years" (series, figure)
};

} // namespace kalvenor
