// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chart.h"

// A chart's table made sound: a full rectangle of finite numbers.
namespace kalvenor::chart {

enum class ChartKind { Bars, Lines, Areas, Steps, Combination, Pie, Points };

ChartKind chartKind(ChartType type);

struct ChartFigures {
    QStringList series; ///< labels without blanks at their ends
    QStringList rows;
    std::vector<std::vector<double>> values; ///< [series][row], within ±1e15

    bool isEmpty() const { return series.isEmpty() || rows.isEmpty(); }
    int seriesCount() const { return static_cast<int>(series.size()); }
    int rowCount() const { return static_cast<int>(rows.size()); }
    double value(int column, int row) const
    {
        return values[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)];
    }
};

/// All columns; for a pie the last one alone, with nothing below 0.
ChartFigures chartFigures(const ChartTable &table, ChartKind kind);

/// A figure as the chart shows it: completed tenths ("45,9" for 45.99), like the ages of the statistic.
QString chartFigureText(double value, const QLocale &locale);
/// "1800-99: M 45,3; W 47,1", a line a row; the look's text where the table is empty.
QString figuresText(const ChartTable &table, const ChartLook &look);
/// Tab-separated with the labels, a line a row, as spreadsheets paste it.
QString figuresForClipboard(const ChartTable &table, const QLocale &locale);

/// The axis of the figures: from `low` to `high` in steps of `step` = 1, 2, 2.5 or 5 × a power of ten. It holds 0 and
/// every figure.
struct ValueAxis {
    double low = 0;
    double high = 10;
    double step = 2;

    int intervals() const;
};

ValueAxis valueAxis(const ChartFigures &figures, int mostIntervals);

} // namespace kalvenor::chart
