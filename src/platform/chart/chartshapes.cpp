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

/// One drawing, step by step.
class Drawing {
public:
    Drawing(Canvas &canvas, const ChartSubject &subject, const ChartLayout &layout, const ChartStyle &style)
        : m_canvas(canvas), m_subject(subject), m_layout(layout), m_style(style)
    {
    }

    void grid() const
    {
        QPainterPath lines;
        for (int tick = 0; tick <= m_layout.axis.intervals(); ++tick)
            addLevel(lines, tick, m_layout.plot.left(), m_layout.plot.right());
        m_canvas.shape(lines, {}, thin(m_style.grid));
    }

    void axes() const
    {
        const QRectF &plot = m_layout.plot;
        const QPointF down(0, TickLength);
        QPainterPath lines = polyline({{plot.bottomLeft() + down, plot.topLeft(), plot.bottomLeft(), plot.bottomRight(),
                                        plot.bottomRight() + down}});
        for (int tick = 0; tick <= m_layout.axis.intervals(); ++tick)
            addLevel(lines, tick, plot.left() - TickLength, plot.left());
        m_canvas.shape(lines, {}, thin(m_style.text));
    }

    void bars(int column) const
    {
        const QColor color = m_style.seriesColor(column);
        for (int row = 0; row < m_subject.figures.rowCount(); ++row) {
            if (!gap(column, row))
                m_canvas.shape(rectangle(barRect(m_subject, m_layout, column, row)), color, m_style.edgePen(color));
        }
    }

    /// A line over rows that follow one another, and what lies below it.
    void lines(int column) const
    {
        int first = 0;
        for (int row = 0; row < m_subject.figures.rowCount(); ++row) {
            if (gap(column, row))
                first = row + 1;
            if (gap(column, row) || !gap(column, row + 1))
                continue;
            const QPolygonF points = run(column, first, row);
            if (points.size() < 2)
                continue; // a mark alone
            if (m_subject.kind == ChartKind::Areas) {
                const double zero = plotPoint(m_subject, m_layout, 0, 0).y();
                const QPolygonF foot{{{points.last().x(), zero}, {points.first().x(), zero}, points.first()}};
                m_canvas.shape(polyline(points + foot), translucent(m_style.seriesColor(column), AreaAlpha), Qt::NoPen);
            }
            m_canvas.shape(polyline(points), {}, m_style.linePen(column));
        }
    }

    void marks(int column) const
    {
        // Large below small, so that each is seen where figures are the same; the outline keeps them apart.
        const double size = MarkSize + 2 * std::min(2, m_subject.figures.seriesCount() - 1 - column);
        for (int row = 0; row < m_subject.figures.rowCount(); ++row) {
            if (!gap(column, row))
                m_canvas.shape(mark(column, figurePoint(m_subject, m_layout, column, row), size),
                               m_style.seriesColor(column), thin(m_style.ground));
        }
    }

    void pie() const
    {
        QPainterPath circle;
        circle.addEllipse(m_layout.plot);
        bool empty = true;
        const int last = m_subject.figures.rowCount() - 1;
        int row = 0;
        for (const auto &[begin, span] : pieSlices(m_subject.figures)) {
            // The last slice touches the first.
            const QColor color = m_style.seriesColor(row == last && row % SeriesColors == 0 && row > 0 ? row + 1 : row);
            QPainterPath slice(m_layout.plot.center());
            slice.arcTo(m_layout.plot, 90 - begin, -span);
            slice.closeSubpath();
            if (span >= 360)
                m_canvas.shape(circle, color, Qt::NoPen); // no spoke
            else if (span > 0)
                m_canvas.shape(slice, color, thin(m_style.ground));
            empty = empty && span <= 0;
            ++row;
        }
        if (empty)
            m_canvas.shape(circle, {}, thin(m_style.grid));
    }

    /// The legend's sample of a series, of a row in a pie (which has a legend only while no colour is used twice).
    void swatch(int index, const QRectF &box) const
    {
        const QColor color = m_style.seriesColor(index);
        const QPointF middle = box.center();
        if (m_subject.kind == ChartKind::Pie || isBarColumn(m_subject, index)) {
            m_canvas.shape(rectangle(box), color, m_style.edgePen(color));
            return;
        }
        if (m_subject.kind == ChartKind::Areas)
            m_canvas.shape(rectangle({box.left(), middle.y(), box.width(), box.height() / 2}),
                           translucent(color, AreaAlpha), Qt::NoPen);
        if (m_subject.kind != ChartKind::Points)
            m_canvas.shape(polyline(QPolygonF{{box.left(), middle.y()}, {box.right(), middle.y()}}), {},
                           m_style.linePen(index));
        if (m_subject.kind != ChartKind::Steps)
            m_canvas.shape(mark(index, middle, std::min(MarkSize, box.height())), color, Qt::NoPen);
    }

    void texts() const
    {
        for (const QPolygonF &leader : m_layout.leaders)
            m_canvas.shape(polyline(leader), {}, thin(m_style.grid));
        for (const PlacedText &text : m_layout.texts) {
            if (text.role == TextRole::Figure && m_subject.kind != ChartKind::Bars) // lines and bars pass behind it
                m_canvas.shape(rectangle(text.outline().boundingRect()), translucent(m_style.ground, VeilAlpha),
                               Qt::NoPen);
            m_canvas.text(text, m_style.text);
        }
    }

private:
    static QPen thin(const QColor &color) { return {color, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin}; }

    /// No figure, or no row any more.
    bool gap(int column, int row) const
    {
        return row >= m_subject.figures.rowCount() || m_subject.figures.value(column, row) == 0;
    }

    void addLevel(QPainterPath &path, int tick, double left, double right) const
    {
        const double y = m_layout.plot.bottom() - m_layout.plot.height() * tick / m_layout.axis.intervals();
        path.moveTo(left, y);
        path.lineTo(right, y);
    }

    QPolygonF run(int column, int first, int last) const
    {
        double reach = 0; // to both sides of a row, in rows
        if (m_subject.kind == ChartKind::Steps)
            reach = 0.5;
        else if (m_subject.kind == ChartKind::Areas && first == last)
            reach = LoneHalfWidth;
        QPolygonF points;
        for (int row = first; row <= last; ++row) {
            const double value = m_subject.figures.value(column, row);
            points << plotPoint(m_subject, m_layout, row - reach, value);
            if (reach > 0)
                points << plotPoint(m_subject, m_layout, row + reach, value);
        }
        return points;
    }

    Canvas &m_canvas;
    const ChartSubject &m_subject;
    const ChartLayout &m_layout;
    const ChartStyle &m_style;
};

} // namespace

void drawChart(Canvas &canvas, const ChartSubject &subject, const ChartLayout &layout, const ChartStyle &style,
               QSizeF size)
{
    const Drawing drawing(canvas, subject, layout, style);
    canvas.shape(rectangle({QPointF(), size}), style.ground, Qt::NoPen);
    const int columns = subject.figures.seriesCount();
    if (subject.figures.isEmpty()) {
        // the message alone
    } else if (subject.kind == ChartKind::Pie) {
        drawing.pie();
    } else {
        if (subject.look.grid)
            drawing.grid();
        drawing.axes();
        for (int column = 0; column < columns; ++column) { // of a combination the line comes last
            if (isBarColumn(subject, column))
                drawing.bars(column);
            else if (subject.kind != ChartKind::Points)
                drawing.lines(column);
        }
        for (int column = 0; column < columns; ++column) {
            if (!isBarColumn(subject, column) && subject.kind != ChartKind::Steps)
                drawing.marks(column);
        }
    }
    for (const LegendSwatch &swatch : layout.swatches)
        drawing.swatch(swatch.index, swatch.box);
    drawing.texts();
}

} // namespace kalvenor::chart
