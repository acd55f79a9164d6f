// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/axislayout.h"

#include "platform/chart/chartgeometry.h"

#include <algorithm>
#include <cmath>

namespace kalvenor::chart {
namespace {

constexpr double Slope = 0.70710678; // sine and cosine of 45 degrees
constexpr double LeastPlotWidth = 0.45;
constexpr double LeastPlotHeight = 0.38;
constexpr double MostLabelHeight = 0.4;
constexpr int SmallestFigure = 6; // pixels
constexpr int MostPointFigures = 400;

// The labels below the rows: one for every `every`-th row, and what they take beside the rows' own width.
struct RowLabels {
    std::vector<TextBlock> blocks;
    int every = 1;
    bool slanted = false;
    double height = 0;
    double left = 0;
    double right = 0;
    double gap = 0; ///< from the axis
};

RowLabels arrangeRowLabels(LayoutTry &attempt, double slot)
{
    const QStringList &rows = attempt.subject.figures.rows;
    const auto count = static_cast<int>(rows.size());
    const double line = attempt.lineHeight();
    RowLabels labels;
    labels.gap = line * 0.3;

    bool whole = true;
    for (auto row = rows.begin(); whole && row != rows.end(); ++row) {
        labels.blocks.push_back(attempt.font.wrapped(*row, slot - line * 0.35, 3));
        whole = labels.blocks.back().whole;
        labels.height = std::max(labels.height, labels.blocks.back().size.height());
    }
    const double mostHeight = attempt.size.height() * MostLabelHeight;
    if (whole && labels.height <= mostHeight)
        return labels;

    double widest = 0;
    labels.blocks.clear();
    for (const QString &row : rows) {
        labels.blocks.push_back(attempt.force
                                    ? attempt.font.forced(row, std::max(mostHeight, attempt.size.width() * 0.3), 1)
                                    : attempt.font.line(row));
        widest = std::max(widest, labels.blocks.back().size.width());
    }
    const int everySlanted = std::max(1, static_cast<int>(std::ceil(line / Slope / slot)));
    const int everyLevel = std::max(1, static_cast<int>(std::ceil((widest + line * 0.6) / slot)));
    const double slantedHeight = (widest + line) * Slope;
    const bool slantable = slantedHeight <= mostHeight && (everySlanted == 1 || attempt.thinning);
    if (slantable && (everySlanted == 1 || everySlanted * 2 <= everyLevel)) {
        labels.slanted = true;
        labels.every = everySlanted;
        labels.height = slantedHeight;
        labels.gap = std::max(labels.gap, line * 0.6 - slot / 2); // below the lowest figure of the axis, as below
    } else if (count == 1 || (attempt.thinning && everyLevel < count)) {
        labels.every = everyLevel;
        labels.height = line;
        labels.gap = line * 0.6;
    } else {
        attempt.cramped = true;
    }
    for (int row = 0; row < count; row += labels.every) {
        const double width = labels.blocks[static_cast<std::size_t>(row)].size.width();
        const double before = labels.slanted ? (width + line / 2) * Slope : width / 2;
        const double behind = labels.slanted ? line / 2 * Slope : width / 2;
        labels.left = std::max(labels.left, before - slot * (row + 0.5));
        labels.right = std::max(labels.right, behind - slot * (count - row - 0.5));
    }
    return labels;
}

void placeRowLabels(LayoutTry &attempt, const RowLabels &labels)
{
    const QRectF &plot = attempt.layout.plot;
    const double slot = plot.width() / attempt.subject.figures.rowCount();
    for (int row = 0; row < attempt.subject.figures.rowCount(); row += labels.every) {
        const TextBlock &block = labels.blocks[static_cast<std::size_t>(row)];
        if (block.text.isEmpty())
            continue;
        const QPointF top(plot.left() + slot * (row + 0.5), plot.bottom() + labels.gap);
        const QSizeF size = block.size;
        if (labels.slanted) // the end of the text stands below the row
            attempt.add(attempt.font.place(
                TextRole::Category, block,
                top + QPointF(-size.width() / 2, size.width() / 2 + size.height() / 2) * Slope, -45));
        else
            attempt.add(attempt.font.place(TextRole::Category, block, top + QPointF(0, size.height() / 2)));
    }
}

QString tickText(double value, double step, const QLocale &locale)
{
    int decimals = 0;
    for (double scaled = step; decimals < 9 && std::abs(scaled - std::round(scaled)) > 1e-6 * scaled; scaled *= 10)
        ++decimals;
    return locale.toString(value + 0.0, 'f', decimals);
}

struct Ticks {
    ValueAxis axis;
    std::vector<TextBlock> blocks;
    double width = 0;
};

Ticks arrangeTicks(const LayoutTry &attempt, double height)
{
    const int most = std::clamp(static_cast<int>(height / (attempt.lineHeight() * 1.7)), 1, 10);
    Ticks ticks{valueAxis(attempt.subject.figures, most), {}};
    for (int i = 0; i <= ticks.axis.intervals(); ++i) {
        ticks.blocks.push_back(attempt.font.line(
            tickText(ticks.axis.low + i * ticks.axis.step, ticks.axis.step, attempt.subject.look.locale)));
        ticks.width = std::max(ticks.width, ticks.blocks.back().size.width());
    }
    return ticks;
}

void placeTicks(LayoutTry &attempt, const Ticks &ticks)
{
    const QRectF &plot = attempt.layout.plot;
    const double gap = attempt.lineHeight() * 0.35;
    const auto intervals = static_cast<double>(ticks.axis.intervals());
    double i = 0;
    for (const TextBlock &block : ticks.blocks) {
        attempt.add(attempt.font.place(
            TextRole::Tick, block,
            {plot.left() - gap - block.size.width() / 2, plot.bottom() - plot.height() * i / intervals}));
        ++i;
    }
}

// The figures at the ends of the bars: level, or upright where bars are narrow, or none.
struct BarFigures {
    bool shown = false;
    bool upright = false;
    ChartFont font;
    double height = 0;
};

BarFigures arrangeBarFigures(const LayoutTry &attempt, double slot)
{
    const ChartSubject &subject = attempt.subject;
    const double room = barWidth(subject) * slot;
    if (room < SmallestFigure)
        return {false, false, attempt.font};
    for (int pixels = attempt.font.font().pixelSize(); pixels >= SmallestFigure; --pixels) {
        const ChartFont font(attempt.font.font(), pixels);
        double widest = 0;
        for (int column = 0; column < subject.figures.seriesCount(); ++column) {
            for (int row = 0; row < subject.figures.rowCount(); ++row)
                widest = std::max(widest,
                                  font.width(chartFigureText(subject.figures.value(column, row), subject.look.locale)));
        }
        if (widest <= room)
            return {true, false, font, font.lineHeight()};
        if (font.lineHeight() <= room && widest < attempt.size.height() * 0.2)
            return {true, true, font, widest};
    }
    return {false, false, attempt.font};
}

void placeBarFigures(LayoutTry &attempt, const BarFigures &figures)
{
    const ChartSubject &subject = attempt.subject;
    for (int column = 0; column < subject.figures.seriesCount(); ++column) {
        for (int row = 0; isBarColumn(subject, column) && row < subject.figures.rowCount(); ++row) {
            const double value = subject.figures.value(column, row);
            if (value == 0)
                continue;
            const TextBlock block = figures.font.line(chartFigureText(value, subject.look.locale));
            const double height = figures.upright ? block.size.width() : block.size.height();
            const QPointF end = figurePoint(subject, attempt.layout, column, row);
            const double y = value > 0 ? end.y() - height / 2 : end.y() + height / 2;
            attempt.add(figures.font.place(TextRole::Figure, block, {end.x(), y}, figures.upright ? -90 : 0));
        }
    }
}

// Around each point the first place that is free; a figure that finds none is left to the tooltip.
void placePointFigures(LayoutTry &attempt)
{
    const ChartSubject &subject = attempt.subject;
    const QRectF frame(attempt.area.left(), attempt.layout.plot.top() - attempt.lineHeight(), attempt.area.width(),
                       attempt.layout.plot.height() + attempt.lineHeight());
    const ChartFont font(attempt.font.font(), attempt.font.font().pixelSize() * 0.9);
    const double mark = attempt.lineHeight() * 0.4;
    std::vector<QPolygonF> taken;
    for (const PlacedText &text : attempt.layout.texts)
        taken.push_back(text.outline());
    for (int column = 0; column < subject.figures.seriesCount(); ++column) {
        for (int row = 0; row < subject.figures.rowCount(); ++row) {
            const QPointF point = figurePoint(subject, attempt.layout, column, row);
            if (!isBarColumn(subject, column) && subject.figures.value(column, row) != 0)
                taken.emplace_back(QRectF(point - QPointF(mark / 2, mark / 2), QSizeF(mark, mark)));
        }
    }
    for (int column = 0; column < subject.figures.seriesCount(); ++column) {
        for (int row = 0; !isBarColumn(subject, column) && row < subject.figures.rowCount(); ++row) {
            const double value = subject.figures.value(column, row);
            if (value == 0)
                continue;
            const QPointF point = figurePoint(subject, attempt.layout, column, row);
            const TextBlock block = font.line(chartFigureText(value, subject.look.locale));
            const double up = block.size.height() / 2 + mark;
            const double aside = block.size.width() / 2 + mark;
            for (const QPointF &offset : {QPointF(0, -up), QPointF(0, up), QPointF(aside, 0), QPointF(-aside, 0)}) {
                const PlacedText text = font.place(TextRole::Figure, block, point + offset);
                const QPolygonF outline = text.outline();
                if (!frame.contains(outline.boundingRect()) ||
                    std::any_of(taken.begin(), taken.end(),
                                [&](const QPolygonF &other) { return overlap(outline, other); }))
                    continue;
                attempt.add(text);
                taken.push_back(outline);
                break;
            }
        }
    }
}

} // namespace

void layoutAxes(LayoutTry &attempt)
{
    const ChartLook &look = attempt.subject.look;
    const double line = attempt.lineHeight();
    const QString rowTitle = look.categoryTitle.simplified();
    const QString valueTitle = look.valueTitle.simplified();
    QRectF &area = attempt.area;

    if (!rowTitle.isEmpty()) {
        const TextBlock block = attempt.fitted(attempt.font, rowTitle, area.width(), 2);
        area.setBottom(area.bottom() - block.size.height());
        attempt.add(attempt.font.place(TextRole::CategoryTitle, block,
                                       {area.center().x(), area.bottom() + block.size.height() / 2}));
        area.setBottom(area.bottom() - line * 0.2);
    }
    TextBlock sideTitle;
    if (!valueTitle.isEmpty())
        sideTitle = attempt.fitted(attempt.font, valueTitle, area.height(), 2);
    const double side = sideTitle.text.isEmpty() ? 0 : sideTitle.size.height() + line * 0.2;

    // Left edge, row labels and ticks depend on each other: begin with a guess, then settle.
    const int rows = attempt.subject.figures.rowCount();
    QRectF plot = area.adjusted(side, line * 0.5, -line * 0.3, -line * 1.5);
    RowLabels labels;
    Ticks ticks;
    BarFigures figures{false, false, attempt.font};
    for (int pass = 0; pass < 3; ++pass) {
        ticks = arrangeTicks(attempt, plot.height());
        labels = arrangeRowLabels(attempt, std::max(1.0, plot.width()) / rows);
        if (attempt.cramped && !attempt.force)
            return;
        if (look.values)
            figures = arrangeBarFigures(attempt, plot.width() / rows);
        const double head = look.values ? std::max(figures.height, line * 0.5) : line * 0.5;
        plot.setLeft(area.left() + std::max(side + ticks.width + line * 0.35, labels.left));
        plot.setRight(area.right() - std::max(labels.right, line * 0.3));
        plot.setTop(area.top() + head);
        plot.setBottom(area.bottom() - labels.height - labels.gap);
        if (plot.width() < 1 || plot.height() < 1) {
            attempt.cramped = true;
            return;
        }
    }
    const double relief = attempt.force ? 0.5 : 1;
    attempt.cramped |= plot.width() < attempt.size.width() * LeastPlotWidth * relief ||
                       plot.height() < attempt.size.height() * LeastPlotHeight * relief;
    if (attempt.cramped)
        return;
    attempt.layout.plot = plot;
    attempt.layout.axis = ticks.axis;
    if (!sideTitle.text.isEmpty()) {
        // Beside the middle of the axis, or as near to it as the length allows.
        const double half = sideTitle.size.width() / 2;
        const double y =
            std::clamp(plot.center().y(), area.top() + half, std::max(area.top() + half, area.bottom() - half));
        attempt.add(
            attempt.font.place(TextRole::ValueTitle, sideTitle, {area.left() + sideTitle.size.height() / 2, y}, -90));
    }
    placeTicks(attempt, ticks);
    placeRowLabels(attempt, labels);
    if (figures.shown)
        placeBarFigures(attempt, figures);
    if (look.values && rows * attempt.subject.figures.seriesCount() <= MostPointFigures)
        placePointFigures(attempt);
}

} // namespace kalvenor::chart
