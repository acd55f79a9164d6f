// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartlayout.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kalvenor::chart {
namespace {

constexpr double Near = 12; // from a point, in units of the drawing
constexpr double Slack = 2; // beside a bar

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
    if (hit)
        return hit;
    const double zero =
        layout.plot.bottom() + layout.plot.height() * layout.axis.low / (layout.axis.high - layout.axis.low);
    for (int column = 0; column < figures.seriesCount(); ++column) {
        if (!isBarColumn(subject, column) || figures.value(column, row) == 0)
            continue;
        const QPointF end = figurePoint(subject, layout, column, row);
        const bool beside = std::abs(place.x() - end.x()) <= barWidth(subject) * slot / 2;
        if (beside && place.y() >= std::min(end.y(), zero) - Slack && place.y() <= std::max(end.y(), zero) + Slack)
            return ChartHit{column, row};
    }
    return {};
}

} // namespace kalvenor::chart
