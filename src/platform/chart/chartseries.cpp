// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartseries.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <QAreaSeries>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QLineSeries>
#include <QPainter>
#include <QPieSeries>

namespace kalvenor::chart {
namespace {

constexpr double LineWidth = 2;
constexpr double MarkSize = 8;
constexpr float AreaAlpha = 0.18F;
constexpr double LoneHalfWidth = 0.2; // of an area that has one row only, in rows

// The hues of Okabe and Ito, set apart in lightness as well: the first three differ by 20 of 100 or more in grey.
constexpr std::array LightColors{0x005A9C, 0xDB8800, 0x1A1A1A, 0x00876A, 0x56B4E9, 0xB8460A, 0xCC79A7, 0xC9B800};
constexpr std::array DarkColors{0x3D9AE0, 0xF5B83D, 0xF2F2F2, 0x1FB890, 0x9AD4F5, 0xE8713A, 0xD98FBA, 0xF0E442};
constexpr std::array LineStyles{Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};

template <typename Array>
auto cyclic(const Array &array, int index)
{
    return array[static_cast<std::size_t>(index) % array.size()];
}

QPen edgePen(const QColor &color, bool dark)
{
    return QPen(dark ? color.lighter(130) : color.darker(150), 1);
}

QPen linePen(int index, bool dark)
{
    QPen pen(seriesColor(index, dark), LineWidth, cyclic(LineStyles, index));
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

template <typename Series>
Series *attached(QChart &chart, Series *series)
{
    chart.addSeries(series);
    for (QAbstractAxis *axis : chart.axes())
        series->attachAxis(axis);
    return series;
}

/// Rows that follow one another without a gap: [first, last].
std::vector<std::pair<int, int>> runs(const ChartFigures &figures, int column)
{
    std::vector<std::pair<int, int>> list;
    for (int row = 0; row < figures.rowCount(); ++row) {
        if (figures.value(column, row) == 0)
            continue;
        if (!list.empty() && list.back().second == row - 1)
            list.back().second = row;
        else
            list.emplace_back(row, row);
    }
    return list;
}

void addBars(QChart &chart, const ChartSubject &subject, const ChartStyle &style)
{
    QBarSeries *series = nullptr;
    int columns = 0;
    for (int column = 0; column < subject.figures.seriesCount(); ++column) {
        if (!isBarColumn(subject, column))
            continue;
        if (series == nullptr)
            series = new QBarSeries;
        auto *set = new QBarSet(subject.figures.series[column]);
        for (int row = 0; row < subject.figures.rowCount(); ++row)
            set->append(subject.figures.value(column, row));
        const QColor color = seriesColor(column, style.dark);
        set->setBrush(color);
        set->setPen(edgePen(color, style.dark));
        series->append(set);
        ++columns;
    }
    if (series == nullptr)
        return;
    series->setBarWidth(barWidth(subject) * columns);
    attached(chart, series);
}

QLineSeries *runOfLine(const ChartSubject &subject, int column, int first, int last)
{
    auto *line = new QLineSeries;
    for (int row = first; row <= last; ++row) {
        const double value = subject.figures.value(column, row);
        if (subject.kind == ChartKind::Steps) {
            line->append(row - 0.5, value);
            line->append(row + 0.5, value);
        } else if (subject.kind == ChartKind::Areas && first == last) {
            line->append(row - LoneHalfWidth, value);
            line->append(row + LoneHalfWidth, value);
        } else {
            line->append(row, value);
        }
    }
    return line;
}

void addLines(QChart &chart, const ChartSubject &subject, int column, const ChartStyle &style)
{
    for (const auto &[first, last] : runs(subject.figures, column)) {
        QLineSeries *line = runOfLine(subject, column, first, last);
        line->setPen(linePen(column, style.dark));
        if (subject.kind == ChartKind::Areas) {
            auto *base = new QLineSeries;
            base->append(line->points().first().x(), 0);
            base->append(line->points().last().x(), 0);
            auto *area = new QAreaSeries(line, base);
            line->setParent(area);
            base->setParent(area);
            QColor fill = seriesColor(column, style.dark);
            fill.setAlphaF(AreaAlpha);
            area->setBrush(fill);
            area->setPen(Qt::NoPen);
            attached(chart, area);
            line = runOfLine(subject, column, first, last);
            line->setPen(linePen(column, style.dark));
        }
        attached(chart, line);
    }
}

QPolygonF starShape(QPointF centre, double radius, int points, double inner)
{
    QPolygonF shape;
    for (int i = 0; i < 2 * points; ++i) {
        const double angle = std::numbers::pi * i / points;
        shape << centre + QPointF(std::sin(angle), -std::cos(angle)) * (i % 2 == 0 ? radius : radius * inner);
    }
    return shape;
}

void drawMark(QPainter &painter, int index, QPointF centre, double size)
{
    const double half = size / 2;
    switch (index % 6) {
    case 0:
        painter.drawEllipse(centre, half, half);
        break;
    case 1:
        painter.drawRect(QRectF(centre - QPointF(half, half) * 0.9, QSizeF(size, size) * 0.9));
        break;
    case 2:
        painter.drawPolygon(QPolygonF{{centre + QPointF(0, -half * 1.15), centre + QPointF(half * 1.1, half * 0.85),
                                       centre + QPointF(-half * 1.1, half * 0.85)}});
        break;
    case 3:
        painter.drawPolygon(starShape(centre, half * 1.2, 2, 1));
        break;
    case 4:
        painter.drawPolygon(starShape(centre, half * 1.3, 5, 0.45));
        break;
    default:
        painter.drawPolygon(starShape(centre, half * 1.2, 4, 0.4));
        break;
    }
}

// The last slice touches the first.
int pieColorIndex(int row, int rows)
{
    const bool sameAsFirst = row == rows - 1 && row > 0 && row % static_cast<int>(LightColors.size()) == 0;
    return sameAsFirst ? row + 1 : row;
}

} // namespace

QColor seriesColor(int index, bool dark)
{
    return QColor::fromRgb(static_cast<QRgb>(dark ? cyclic(DarkColors, index) : cyclic(LightColors, index)));
}

void addSeries(QChart &chart, const ChartSubject &subject, const ChartStyle &style)
{
    addBars(chart, subject, style);
    const int columns = subject.figures.seriesCount();
    for (int column = 0; column < columns; ++column) {
        if (!isBarColumn(subject, column) && subject.kind != ChartKind::Points)
            addLines(chart, subject, column, style);
    }
}

void addPie(QChart &chart, const ChartSubject &subject, const ChartStyle &style)
{
    auto *pie = new QPieSeries;
    pie->setPieSize(1);
    for (int row = 0; row < subject.figures.rowCount(); ++row) {
        QPieSlice *slice = pie->append(subject.figures.rows[row], subject.figures.value(0, row));
        slice->setColor(seriesColor(pieColorIndex(row, subject.figures.rowCount()), style.dark));
        slice->setPen(QPen(style.ground, 1));
    }
    for (QPieSlice *slice : pie->slices()) {
        if (pie->sum() > 0 && slice->value() == pie->sum())
            slice->setPen(Qt::NoPen); // no spoke in a full circle
    }
    if (pie->sum() <= 0) { // the outline of nothing
        pie->clear();
        QPieSlice *whole = pie->append(QString(), 1);
        whole->setBrush(Qt::NoBrush);
        whole->setPen(QPen(style.grid, 1));
    }
    chart.addSeries(pie);
}

void drawSwatch(QPainter &painter, const ChartSubject &subject, int index, const QRectF &box, bool dark)
{
    const QColor color = seriesColor(index, dark); // a pie has a legend only while no colour is used twice
    const ChartKind kind = subject.kind;
    const QPointF middle = box.center();
    if (kind == ChartKind::Pie || isBarColumn(subject, index)) {
        painter.setPen(edgePen(color, dark));
        painter.setBrush(color);
        painter.drawRect(box);
        return;
    }
    if (kind == ChartKind::Areas) {
        QColor fill = color;
        fill.setAlphaF(AreaAlpha);
        painter.fillRect(QRectF(box.left(), middle.y(), box.width(), box.height() / 2), fill);
    }
    if (kind != ChartKind::Points) {
        painter.setPen(linePen(index, dark));
        painter.drawLine(QPointF(box.left(), middle.y()), QPointF(box.right(), middle.y()));
    }
    if (kind == ChartKind::Steps)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    drawMark(painter, index, middle, std::min(MarkSize, box.height()));
}

void drawMarks(QPainter &painter, const ChartSubject &subject, const ChartLayout &layout, const ChartStyle &style)
{
    if (subject.kind == ChartKind::Pie || subject.kind == ChartKind::Steps)
        return;
    painter.setPen(QPen(style.ground, 1)); // marks over one another stay apart
    for (int column = 0; column < subject.figures.seriesCount(); ++column) {
        painter.setBrush(seriesColor(column, style.dark));
        // Large below small, so that each is seen where figures are the same.
        const double size = MarkSize + 2 * std::min(2, subject.figures.seriesCount() - 1 - column);
        for (int row = 0; !isBarColumn(subject, column) && row < subject.figures.rowCount(); ++row) {
            if (subject.figures.value(column, row) != 0)
                drawMark(painter, column, figurePoint(subject, layout, column, row), size);
        }
    }
}

} // namespace kalvenor::chart
