// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartgeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace kalvenor::chart {
namespace {

constexpr double Near = 12; // from a point, in units of the drawing
constexpr double Slack = 2; // beside a bar

int barColumns(const ChartSubject &subject)
{
    const int count = subject.figures.seriesCount();
    return subject.kind == ChartKind::Combination ? std::max(1, count - 1) : count;
}

std::optional<ChartHit> sliceAt(const ChartFigures &figures, const QRectF &square, QPointF place)
{
    const QPointF from = place - square.center();
    if (std::hypot(from.x(), from.y()) > square.width() / 2)
        return {};
    double angle = std::atan2(from.x(), -from.y()) * 180 / std::numbers::pi;
    if (angle < 0)
        angle += 360;
    int row = 0;
    for (const PieSlice &slice : pieSlices(figures)) {
        if (angle >= slice.begin && angle < slice.begin + slice.span)
            return ChartHit{0, row};
        ++row;
    }
    return {};
}

} // namespace

bool isBarColumn(const ChartSubject &subject, int column)
{
    return subject.kind == ChartKind::Bars ||
           (subject.kind == ChartKind::Combination && column + 1 < std::max(2, subject.figures.seriesCount()));
}

double barWidth(const ChartSubject &subject)
{
    const int rows = subject.figures.rowCount();
    const double group = rows == 1 ? 0.5 : 0.8; // a lone row's bars would fill the plot
    return group / barColumns(subject);
}

QPointF plotPoint(const ChartSubject &subject, const ChartLayout &layout, double rows, double value)
{
    const double slot = layout.plot.width() / subject.figures.rowCount();
    const double part = (value - layout.axis.low) / (layout.axis.high - layout.axis.low);
    return {layout.plot.left() + slot * (rows + 0.5), layout.plot.bottom() - layout.plot.height() * part};
}

QPointF figurePoint(const ChartSubject &subject, const ChartLayout &layout, int column, int row)
{
    const double aside =
        isBarColumn(subject, column) ? (column - (barColumns(subject) - 1) / 2.0) * barWidth(subject) : 0;
    return plotPoint(subject, layout, row + aside, subject.figures.value(column, row));
}

QRectF barRect(const ChartSubject &subject, const ChartLayout &layout, int column, int row)
{
    const QPointF end = figurePoint(subject, layout, column, row);
    const double width = barWidth(subject) * layout.plot.width() / subject.figures.rowCount();
    const double zero = plotPoint(subject, layout, row, 0).y();
    return QRectF(end.x() - width / 2, end.y(), width, zero - end.y()).normalized();
}

std::vector<PieSlice> pieSlices(const ChartFigures &figures)
{
    const std::vector<double> &values = figures.values.front();
    const double total = std::accumulate(values.begin(), values.end(), 0.0);
    std::vector<PieSlice> slices;
    double begin = 0;
    for (const double value : values) {
        const double span = total > 0 ? value / total * 360 : 0;
        slices.push_back({begin, span});
        begin += span;
    }
    return slices;
}

std::optional<ChartHit> figureAt(const ChartSubject &subject, const ChartLayout &layout, QPointF place)
{
    const ChartFigures &figures = subject.figures;
    if (figures.isEmpty() || layout.plot.isEmpty())
        return {};
    if (subject.kind == ChartKind::Pie)
        return sliceAt(figures, layout.plot, place);

    const double slot = layout.plot.width() / figures.rowCount();
    const int row = static_cast<int>(std::floor((place.x() - layout.plot.left()) / slot));
    if (row < 0 || row >= figures.rowCount())
        return {};
    // Points lie over bars.
    std::optional<ChartHit> hit;
    double nearest = Near;
    for (int column = 0; column < figures.seriesCount(); ++column) {
        if (isBarColumn(subject, column) || figures.value(column, row) == 0)
            continue;
        const QPointF from = place - figurePoint(subject, layout, column, row);
        const double distance = subject.kind == ChartKind::Steps ? std::abs(from.y()) : std::hypot(from.x(), from.y());
        if (distance < nearest) {
            nearest = distance;
            hit = {column, row};
        }
    }
    for (int column = 0; !hit && column < figures.seriesCount(); ++column) {
        if (isBarColumn(subject, column) && figures.value(column, row) != 0 &&
            barRect(subject, layout, column, row).adjusted(0, -Slack, 0, Slack).contains(place))
            hit = {column, row};
    }
    return hit;
}

} // namespace kalvenor::chart
