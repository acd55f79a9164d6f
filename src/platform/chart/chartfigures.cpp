// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartfigures.h"

#include "platform/basic/number.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kalvenor::chart {
namespace {

constexpr double LargestFigure = 1e15; // beyond it tenths are lost, and sums could overflow

double figure(const QString &text)
{
    const double value = basic::leadingNumber(text);
    return std::isfinite(value) ? std::clamp(value, -LargestFigure, LargestFigure) : 0;
}

} // namespace

ChartKind chartKind(ChartType type)
{
    switch (type) {
    case ChartType::Line3D:
    case ChartType::Line:
        return ChartKind::Lines;
    case ChartType::Area3D:
    case ChartType::Area:
        return ChartKind::Areas;
    case ChartType::Step3D:
    case ChartType::Step:
        return ChartKind::Steps;
    case ChartType::Combination3D:
    case ChartType::Combination:
        return ChartKind::Combination;
    case ChartType::Pie:
        return ChartKind::Pie;
    case ChartType::XY:
        return ChartKind::Points;
    case ChartType::Bar3D:
    case ChartType::Bar:
        break;
    }
    return ChartKind::Bars;
}

ChartFigures chartFigures(const ChartTable &table, ChartKind kind)
{
    qsizetype columns = table.columnLabels.size();
    for (const QStringList &row : table.data)
        columns = std::max(columns, row.size());

    ChartFigures figures;
    for (qsizetype row = 0; row < std::ssize(table.data); ++row)
        figures.rows << table.rowLabels.value(row).simplified();
    for (qsizetype column = kind == ChartKind::Pie ? std::max<qsizetype>(columns - 1, 0) : 0; column < columns;
         ++column) {
        figures.series << table.columnLabels.value(column).simplified();
        std::vector<double> &values = figures.values.emplace_back();
        for (const QStringList &row : table.data) {
            const double value = figure(row.value(column));
            values.push_back(kind == ChartKind::Pie ? std::max(value, 0.0) : value);
        }
    }
    return figures;
}

QString chartFigureText(double value, const QLocale &locale)
{
    return locale.toString(std::floor(value * 10) / 10, 'f', 1);
}

QString figuresText(const ChartTable &table, const ChartLook &look)
{
    if (table.isEmpty())
        return look.emptyText;
    const ChartFigures figures = chartFigures(table, ChartKind::Bars);
    QStringList lines;
    for (int row = 0; row < figures.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < figures.seriesCount(); ++column)
            cells
                << (figures.series[column] + u' ' + chartFigureText(figures.value(column, row), look.locale)).trimmed();
        lines << figures.rows[row] + u": "_s + cells.join(u"; "_s);
    }
    return lines.join(u'\n');
}

QString figuresForClipboard(const ChartTable &table, const QLocale &locale)
{
    const ChartFigures figures = chartFigures(table, ChartKind::Bars);
    QString text = u'\t' + figures.series.join(u'\t') + u'\n';
    for (int row = 0; row < figures.rowCount(); ++row) {
        text += figures.rows[row];
        for (int column = 0; column < figures.seriesCount(); ++column)
            text += u'\t' + chartFigureText(figures.value(column, row), locale);
        text += u'\n';
    }
    return text;
}

int ValueAxis::intervals() const
{
    return static_cast<int>(std::lround((high - low) / step));
}

ValueAxis valueAxis(const ChartFigures &figures, int mostIntervals)
{
    double lowest = 0;
    double highest = 0;
    for (const std::vector<double> &values : figures.values) {
        for (const double value : values) {
            lowest = std::min(lowest, value);
            highest = std::max(highest, value);
        }
    }
    if (highest - lowest < 1e-6) // nothing to be seen, and far from the end of what a double can split
        highest = lowest + 10;
    const double range = highest - lowest;
    const double power = std::pow(10, std::floor(std::log10(range)) - 2);
    // The first round step that needs no more intervals than allowed; both ends may take a part of one.
    for (double decade = power;; decade *= 10) {
        for (const double digit : {1.0, 2.0, 2.5, 5.0}) {
            const double step = digit * decade;
            const ValueAxis axis{std::floor(lowest / step) * step, std::ceil(highest / step) * step, step};
            if (axis.intervals() <= std::max(mostIntervals, lowest < 0 && highest > 0 ? 2 : 1))
                return axis;
        }
    }
}

} // namespace kalvenor::chart
