// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartlayout.h"

#include "platform/chart/axislayout.h"
#include "platform/chart/chartstyle.h"
#include "platform/chart/pielayout.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace kalvenor::chart {
namespace {

constexpr double DefaultFontFactor = 3;
constexpr double SmallestScale = 0.5;
constexpr double LargestScale = 3;
constexpr double ShrinkStep = 0.92;
constexpr int WellReadable = 8; // pixels
constexpr int Readable = 6;

double fontScale(double factor)
{
    if (!(factor > 0)) // NaN as well
        factor = DefaultFontFactor;
    return std::clamp(factor / DefaultFontFactor, SmallestScale, LargestScale);
}

// What is given up, bit by bit, where a picture is too small for everything.
struct Relief {
    bool thinning, axisTitles, legend, title, force;
};

void placeTitle(LayoutTry &attempt, const ChartFont &font)
{
    const TextBlock block = attempt.fitted(font, attempt.subject.look.title.simplified(), attempt.area.width(), 3);
    attempt.add(
        font.place(TextRole::Title, block, {attempt.area.center().x(), attempt.area.top() + block.size.height() / 2}));
    attempt.area.setTop(attempt.area.top() + block.size.height() + attempt.lineHeight() * 0.4);
}

// Rows of swatch and text, centred at the bottom.
void placeLegend(LayoutTry &attempt, const QStringList &labels)
{
    const double line = attempt.lineHeight();
    const QSizeF swatch(line * 1.7, line * 0.7);
    const double gap = line * 0.4;
    const double between = line * 1.1;
    struct Entry {
        TextBlock block;
        double width;
    };
    std::vector<std::vector<Entry>> rows(1);
    double used = 0;
    for (const QString &label : labels) {
        const TextBlock block = attempt.fitted(attempt.font, label, attempt.area.width() - swatch.width() - gap, 2);
        const double width = swatch.width() + gap + block.size.width();
        if (!rows.back().empty() && used + between + width > attempt.area.width()) {
            rows.emplace_back();
            used = 0;
        }
        used += (rows.back().empty() ? 0 : between) + width;
        rows.back().push_back({block, width});
    }
    double height = 0;
    std::vector<double> heights;
    for (const std::vector<Entry> &row : rows) {
        double highest = 0;
        for (const Entry &entry : row)
            highest = std::max(highest, entry.block.size.height());
        heights.push_back(highest);
        height += highest;
    }
    attempt.cramped |= height > attempt.size.height() * 0.35;
    attempt.area.setBottom(attempt.area.bottom() - height);
    double y = attempt.area.bottom();
    attempt.area.setBottom(attempt.area.bottom() - gap);
    int index = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        double width = -between;
        for (const Entry &entry : rows[i])
            width += entry.width + between;
        double x = attempt.area.center().x() - width / 2;
        const double middle = y + heights[i] / 2;
        for (const Entry &entry : rows[i]) {
            attempt.layout.swatches.push_back({{{x, middle - swatch.height() / 2}, swatch}, index++});
            const double left = x + swatch.width() + gap;
            attempt.add(
                attempt.font.place(TextRole::Legend, entry.block, {left + entry.block.size.width() / 2, middle}));
            x += entry.width + between;
        }
        y += heights[i];
    }
}

bool allApart(const ChartLayout &layout, QSizeF size)
{
    const QRectF frame(QPointF(), size);
    std::vector<QPolygonF> outlines;
    for (const PlacedText &text : layout.texts) {
        const QPolygonF outline = text.outline();
        if (!frame.contains(outline.boundingRect()))
            return false;
        if (std::any_of(outlines.begin(), outlines.end(),
                        [&](const QPolygonF &other) { return overlap(outline, other); }))
            return false;
        outlines.push_back(outline);
    }
    return true;
}

std::optional<ChartLayout> tryLayout(const ChartSubject &full, QSizeF size, const QFont &base, double pixels,
                                     double titlePixels, const Relief &relief)
{
    ChartSubject subject = full;
    if (!relief.axisTitles) {
        subject.look.categoryTitle.clear();
        subject.look.valueTitle.clear();
    }
    LayoutTry attempt{subject, size, ChartFont(base, pixels), relief.thinning, relief.force};
    const double margin = std::min(std::min(size.width(), size.height()) * 0.03, attempt.lineHeight() * 0.6);
    attempt.area = QRectF(QPointF(), size).adjusted(margin, margin, -margin, -margin);
    if (relief.title && !subject.look.title.trimmed().isEmpty())
        placeTitle(attempt, ChartFont(base, titlePixels, true));
    const bool pie = subject.kind == ChartKind::Pie;
    if (relief.legend && subject.look.legend && (!pie || subject.figures.rowCount() <= SeriesColors))
        placeLegend(attempt, pie ? subject.figures.rows : subject.figures.series);
    if (!attempt.cramped)
        pie ? layoutPie(attempt) : layoutAxes(attempt);
    if (attempt.cramped || !allApart(attempt.layout, size))
        return {};
    return attempt.layout;
}

ChartLayout layoutMessage(const QString &message, QSizeF size, const QFont &base)
{
    ChartLayout layout;
    for (int pixels = base.pixelSize(); pixels > 1; --pixels) {
        const ChartFont font(base, pixels);
        const TextBlock block = font.wrapped(message.simplified(), size.width() * 0.85, 20);
        if (!block.whole || block.size.height() > size.height() * 0.9)
            continue;
        layout.texts = {font.place(TextRole::Message, block, {size.width() / 2, size.height() / 2})};
        break;
    }
    return layout;
}

} // namespace

TextBlock LayoutTry::fitted(const ChartFont &with, const QString &text, double width, int mostLines)
{
    TextBlock block = force ? with.forced(text, width, mostLines) : with.wrapped(text, width, mostLines);
    cramped |= !block.whole;
    return block;
}

ChartLayout layoutChart(const ChartSubject &subject, QSizeF size, const QFont &font)
{
    if (subject.figures.isEmpty())
        return layoutMessage(subject.look.emptyText, size, font);

    const int base = font.pixelSize();
    const int wanted = std::max(1, static_cast<int>(std::lround(base * fontScale(subject.look.fontFactor))));
    struct Round {
        Relief relief;
        int first, last;
    };
    const int bodySize = std::min(wanted, base);
    const Round rounds[] = {
        {{false, true, true, true, false}, wanted, WellReadable},
        {{true, true, true, true, false}, bodySize, WellReadable},
        {{true, false, true, true, false}, bodySize, Readable},
        {{true, false, false, true, false}, bodySize, Readable},
        {{true, false, true, true, true}, Readable, Readable},
        {{true, false, false, true, true}, Readable, Readable},
        {{true, false, false, false, true}, Readable, Readable},
    };
    for (const Round &round : rounds) {
        const int last = std::min(round.first, round.last);
        for (int pixels = round.first; pixels >= last;
             pixels = std::min(pixels - 1, static_cast<int>(pixels * ShrinkStep))) {
            // The title does not follow the font factor, only the lack of room.
            const double title = base * 1.2 * std::clamp(static_cast<double>(pixels) / bodySize, 0.6, 1.0);
            if (auto layout = tryLayout(subject, size, font, pixels, title, round.relief))
                return *std::move(layout);
        }
    }
    ChartLayout bare;
    const double margin = std::min(size.width(), size.height()) * 0.05;
    bare.plot = QRectF(QPointF(), size).adjusted(margin, margin, -margin, -margin);
    if (subject.kind == ChartKind::Pie) {
        const double side = std::min(bare.plot.width(), bare.plot.height());
        bare.plot = QRectF(bare.plot.center() - QPointF(side / 2, side / 2), QSizeF(side, side));
    }
    bare.axis = valueAxis(subject.figures, 5);
    return bare;
}

} // namespace kalvenor::chart
