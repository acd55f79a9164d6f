// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/pielayout.h"

#include "platform/chart/chartgeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace kalvenor::chart {
namespace {

constexpr double LeastDiameter = 0.4; // of the shorter side
constexpr double Reach = 1.1;         // from a slice's rim to the bend of its leader, in radii

struct Callout {
    TextBlock block;
    double angle; ///< degrees, clockwise from the top
    double value;
    double y = 0;
    bool right() const { return angle <= 180; }
};

QPointF onCircle(QPointF centre, double radius, double degrees)
{
    const double angle = degrees * std::numbers::pi / 180;
    return centre + QPointF(std::sin(angle), -std::cos(angle)) * radius;
}

// As near as can be to the wanted heights, `pitch` apart, within top and bottom. Callouts by height.
void spread(std::vector<Callout *> &column, double pitch, double top, double bottom)
{
    double lowest = top - pitch / 2; // the middle of the one above
    for (Callout *callout : column) {
        callout->y = std::max(callout->y, lowest + pitch);
        lowest = callout->y;
    }
    double highest = bottom + pitch / 2;
    for (auto it = column.rbegin(); it != column.rend(); ++it) {
        (*it)->y = std::min((*it)->y, highest - pitch);
        highest = (*it)->y;
    }
}

// From one callout to the next; those of several lines need a gap to be told apart.
double pitchOf(const std::vector<Callout> &callouts, double line)
{
    double highest = line;
    for (const Callout &callout : callouts)
        highest = std::max(highest, callout.block.size.height());
    return highest > line * 1.5 ? highest + line * 0.25 : highest;
}

std::vector<Callout> makeCallouts(LayoutTry &attempt)
{
    const ChartFigures &figures = attempt.subject.figures;
    const std::vector<PieSlice> slices = pieSlices(figures);
    std::vector<Callout> callouts;
    for (int row = 0; row < figures.rowCount(); ++row) {
        const double value = figures.value(0, row);
        QString text = chartFigureText(value, attempt.subject.look.locale);
        if (!figures.rows[row].isEmpty())
            text = figures.rows[row] + u": "_s + text;
        const PieSlice &slice = slices[static_cast<std::size_t>(row)];
        callouts.push_back(
            {attempt.fitted(attempt.font, text, attempt.area.width() * 0.3, 3), slice.begin + slice.span / 2, value});
    }
    // More than two columns can hold: the smallest are left to the tooltip.
    const auto most = static_cast<std::size_t>(attempt.area.height() / pitchOf(callouts, attempt.lineHeight())) * 2;
    if (attempt.force && callouts.size() > most) {
        std::vector<double> values;
        values.reserve(callouts.size());
        for (const Callout &callout : callouts)
            values.push_back(callout.value);
        std::sort(values.begin(), values.end(), std::greater<>());
        const double least = values[most];
        std::erase_if(callouts, [least](const Callout &callout) { return callout.value <= least; });
    }
    return callouts;
}

} // namespace

void layoutPie(LayoutTry &attempt)
{
    const ChartSubject &subject = attempt.subject;
    const double line = attempt.lineHeight();
    QRectF &area = attempt.area;

    QString caption = subject.look.valueTitle.simplified();
    if (const QString &column = subject.figures.series.front(); !caption.isEmpty() && !column.isEmpty())
        caption += u" (%1)"_s.arg(column);
    if (!caption.isEmpty()) {
        const TextBlock block = attempt.fitted(attempt.font, caption, area.width(), 2);
        area.setBottom(area.bottom() - block.size.height());
        attempt.add(attempt.font.place(TextRole::ValueTitle, block,
                                       {area.center().x(), area.bottom() + block.size.height() / 2}));
        area.setBottom(area.bottom() - line * 0.3);
    }

    std::vector<Callout> callouts = makeCallouts(attempt);
    const double pitch = pitchOf(callouts, line);
    std::vector<Callout *> left;
    std::vector<Callout *> right;
    const auto widest = [](const std::vector<Callout *> &column) {
        double width = 0;
        for (const Callout *callout : column)
            width = std::max(width, callout->block.size.width());
        return width;
    };
    for (Callout &callout : callouts)
        (callout.right() ? right : left).push_back(&callout);
    std::reverse(left.begin(), left.end()); // from the top
    const auto capacity = static_cast<std::ptrdiff_t>(area.height() / pitch);
    while (std::ssize(right) > capacity && std::ssize(left) < capacity) {
        left.push_back(right.back());
        right.pop_back();
    }
    while (std::ssize(left) > capacity && std::ssize(right) < capacity) {
        right.push_back(left.back());
        left.pop_back();
    }
    const double bend = line * 0.8; // room for the leaders
    const double across = area.width() - widest(left) - widest(right) - 4 * bend;
    const double diameter = std::min(across, area.height() - line * 1.2) / 1.05;
    if (diameter < std::min(attempt.size.width(), attempt.size.height()) * LeastDiameter * (attempt.force ? 0.5 : 1) ||
        std::max(std::ssize(left), std::ssize(right)) > capacity) {
        attempt.cramped = true;
        return;
    }
    const double radius = diameter / 2;
    const double shift = (widest(left) - widest(right)) / 2;
    const QPointF centre(area.center().x() + shift, area.center().y());
    attempt.layout.plot = QRectF(centre - QPointF(radius, radius), QSizeF(diameter, diameter));

    for (Callout &callout : callouts)
        callout.y = onCircle(centre, radius * Reach, callout.angle).y();
    for (std::vector<Callout *> *column : {&left, &right}) {
        spread(*column, pitch, area.top(), area.bottom());
        const double direction = column == &right ? 1 : -1;
        for (const Callout *callout : *column) {
            const double edge = centre.x() + direction * (radius + 2 * bend - line * 0.2);
            attempt.add(attempt.font.place(
                TextRole::Callout, callout->block,
                {centre.x() + direction * (radius + 2 * bend + callout->block.size.width() / 2), callout->y}));
            attempt.layout.leaders.push_back(QPolygonF{{onCircle(centre, radius, callout->angle),
                                                        {edge - direction * bend * 0.5, callout->y},
                                                        {edge, callout->y}}});
        }
    }
}

} // namespace kalvenor::chart
