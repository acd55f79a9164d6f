// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartshapes.h"

#include "platform/chart/chartgeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kalvenor::chart {
namespace {

constexpr double MarkSize = 8;
constexpr double TickLength = 5;
constexpr float AreaAlpha = 0.18F;
constexpr float VeilAlpha = 0.8F;
constexpr double LoneHalfWidth = 0.2; // of an area that has one row only, in rows

QColor translucent(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

QPainterPath rectangle(const QRectF &box)
{
    QPainterPath path;
    path.addRect(box);
    return path;
}

QPainterPath polyline(const QPolygonF &points)
{
    QPainterPath path;
    path.addPolygon(points);
    return path;
}

QPainterPath star(QPointF centre, double radius, int points, double inner)
{
    QPolygonF shape;
    for (int i = 0; i < 2 * points; ++i) {
        const double angle = std::numbers::pi * i / points;
        shape << centre + QPointF(std::sin(angle), -std::cos(angle)) * (i % 2 == 0 ? radius : radius * inner);
    }
    shape << shape.first();
    return polyline(shape);
}

QPainterPath mark(int index, QPointF centre, double size)
{
    const double half = size / 2;
    QPainterPath disc;
    switch (index % 6) {
    case 0:
        disc.addEllipse(centre, half, half);
        return disc;
    case 1:
        return rectangle({centre - QPointF(half, half) * 0.9, QSizeF(size, size) * 0.9});
    case 2: {
        const QPointF tip = centre + QPointF(0, -half * 1.15);
        return polyline(
            {{tip, centre + QPointF(half * 1.1, half * 0.85), centre + QPointF(-half * 1.1, half * 0.85), tip}});
    }
    case 3:
        return star(centre, half * 1.2, 2, 1);
    case 4:
        return star(centre, half * 1.3, 5, 0.45);
    default:
        return star(centre, half * 1.2, 4, 0.4);
    }
}

/// What all steps of a drawing look at.
struct Drawing {
    Canvas &canvas;
    const ChartSubject &subject;
    const ChartLayout &layout;
    const ChartStyle &style;

    QPen thin(const QColor &color) const { return {color, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin}; }

    void grid() const;
    void axes() const;
    void bars(int column) const;
    void line(int column) const;
    void marks(int column) const;
    void pie() const;
    void swatch(const LegendSwatch &swatch) const;
    void texts() const;

private:
    QPolygonF run(int column, int first, int last) const;
};

double tickHeight(const ChartLayout &layout, int tick)
{
    return layout.plot.bottom() - layout.plot.height() * tick / layout.axis.intervals();
}

void Drawing::grid() const
{
    QPainterPath lines;
    for (int tick = 0; tick <= layout.axis.intervals(); ++tick) {
        const double y = tickHeight(layout, tick);
        lines.moveTo(layout.plot.left(), y);
        lines.lineTo(layout.plot.right(), y);
    }
    canvas.shape(lines, {}, thin(style.grid));
}

void Drawing::axes() const
{
    const QRectF &plot = layout.plot;
    QPainterPath lines = polyline({{{plot.left(), plot.bottom() + TickLength},
                                    plot.topLeft(),
                                    plot.bottomLeft(),
                                    plot.bottomRight(),
                                    {plot.right(), plot.bottom() + TickLength}}});
    for (int tick = 0; tick <= layout.axis.intervals(); ++tick) {
        lines.moveTo(plot.left() - TickLength, tickHeight(layout, tick));
        lines.lineTo(plot.left(), tickHeight(layout, tick));
    }
    canvas.shape(lines, {}, thin(style.text));
}

void Drawing::bars(int column) const
{
    const QColor color = style.seriesColor(column);
    for (int row = 0; row < subject.figures.rowCount(); ++row) {
        if (subject.figures.value(column, row) != 0)
            canvas.shape(rectangle(barRect(subject, layout, column, row)), color, style.edgePen(color));
    }
}

/// The line over rows that follow one another without a gap.
QPolygonF Drawing::run(int column, int first, int last) const
{
    double reach = 0; // to both sides of a row
    if (subject.kind == ChartKind::Steps)
        reach = 0.5;
    else if (subject.kind == ChartKind::Areas && first == last)
        reach = LoneHalfWidth;
    QPolygonF points;
    for (int row = first; row <= last; ++row) {
        const double value = subject.figures.value(column, row);
        points << plotPoint(subject, layout, row - reach, value);
        if (reach > 0)
            points << plotPoint(subject, layout, row + reach, value);
    }
    return points;
}

void Drawing::line(int column) const
{
    const auto gap = [&](int row) {
        return row >= subject.figures.rowCount() || subject.figures.value(column, row) == 0;
    };
    const double ground = plotPoint(subject, layout, 0, 0).y();
    int first = 0;
    for (int row = 0; row < subject.figures.rowCount(); ++row) {
        if (gap(row))
            first = row + 1;
        if (gap(row) || !gap(row + 1))
            continue;
        const QPolygonF points = run(column, first, row);
        if (points.size() < 2)
            continue; // a mark alone
        if (subject.kind == ChartKind::Areas) {
            const QPolygonF foot{{{points.last().x(), ground}, {points.first().x(), ground}, points.first()}};
            canvas.shape(polyline(points + foot), translucent(style.seriesColor(column), AreaAlpha), Qt::NoPen);
        }
        canvas.shape(polyline(points), {}, style.linePen(column));
    }
}

void Drawing::marks(int column) const
{
    // Large below small, so that each is seen where figures are the same.
    const double size = MarkSize + 2 * std::min(2, subject.figures.seriesCount() - 1 - column);
    for (int row = 0; row < subject.figures.rowCount(); ++row) {
        if (subject.figures.value(column, row) != 0) // the outline keeps marks over one another apart
            canvas.shape(mark(column, figurePoint(subject, layout, column, row), size), style.seriesColor(column),
                         thin(style.ground));
    }
}

void Drawing::pie() const
{
    const std::vector<PieSlice> slices = pieSlices(subject.figures);
    const auto rows = static_cast<int>(slices.size());
    bool empty = true;
    for (int row = 0; row < rows; ++row) {
        const auto &[begin, span] = slices[static_cast<std::size_t>(row)];
        if (span <= 0)
            continue;
        empty = false;
        QPainterPath path;
        if (span < 360) {
            path.moveTo(layout.plot.center());
            path.arcTo(layout.plot, 90 - begin, -span);
            path.closeSubpath();
        } else { // no spoke in a full circle
            path.addEllipse(layout.plot);
        }
        // The last slice touches the first.
        const bool sameAsFirst = row == rows - 1 && row > 0 && row % SeriesColors == 0;
        canvas.shape(path, style.seriesColor(sameAsFirst ? row + 1 : row), span < 360 ? thin(style.ground) : Qt::NoPen);
    }
    if (empty) {
        QPainterPath outline;
        outline.addEllipse(layout.plot);
        canvas.shape(outline, {}, thin(style.grid));
    }
}

/// The legend's sample of a series, of a row in a pie (which has a legend only while no colour is used twice).
void Drawing::swatch(const LegendSwatch &swatch) const
{
    const QRectF &box = swatch.box;
    const QColor color = style.seriesColor(swatch.index);
    const QPointF middle = box.center();
    if (subject.kind == ChartKind::Pie || isBarColumn(subject, swatch.index)) {
        canvas.shape(rectangle(box), color, style.edgePen(color));
        return;
    }
    if (subject.kind == ChartKind::Areas)
        canvas.shape(rectangle({box.left(), middle.y(), box.width(), box.height() / 2}), translucent(color, AreaAlpha),
                     Qt::NoPen);
    if (subject.kind != ChartKind::Points)
        canvas.shape(polyline({{{box.left(), middle.y()}, {box.right(), middle.y()}}}), {},
                     style.linePen(swatch.index));
    if (subject.kind != ChartKind::Steps)
        canvas.shape(mark(swatch.index, middle, std::min(MarkSize, box.height())), color, Qt::NoPen);
}

void Drawing::texts() const
{
    for (const PlacedText &text : layout.texts) {
        if (text.role == TextRole::Figure && subject.kind != ChartKind::Bars) // lines and bars pass behind it
            canvas.shape(rectangle(text.outline().boundingRect()), translucent(style.ground, VeilAlpha), Qt::NoPen);
        canvas.text(text, style.text);
    }
}

} // namespace

void drawChart(Canvas &canvas, const ChartSubject &subject, const ChartLayout &layout, const ChartStyle &style,
               QSizeF size)
{
    const Drawing drawing{canvas, subject, layout, style};
    canvas.shape(rectangle({QPointF(), size}), style.ground, Qt::NoPen);
    const int columns = subject.figures.seriesCount();
    if (subject.kind == ChartKind::Pie && !subject.figures.isEmpty()) {
        drawing.pie();
    } else if (!subject.figures.isEmpty()) {
        if (subject.look.grid)
            drawing.grid();
        drawing.axes();
        // Lines lie over all bars, marks over all lines.
        for (int column = 0; column < columns; ++column) {
            if (isBarColumn(subject, column))
                drawing.bars(column);
            else if (subject.kind != ChartKind::Points)
                drawing.line(column);
        }
        for (int column = 0; column < columns; ++column) {
            if (!isBarColumn(subject, column) && subject.kind != ChartKind::Steps)
                drawing.marks(column);
        }
    }
    for (const LegendSwatch &swatch : layout.swatches)
        drawing.swatch(swatch);
    for (const QPolygonF &leader : layout.leaders)
        canvas.shape(polyline(leader), {}, drawing.thin(style.grid));
    drawing.texts();
}

} // namespace kalvenor::chart
