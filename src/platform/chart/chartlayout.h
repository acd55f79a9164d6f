// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chartfigures.h"
#include "platform/chart/charttext.h"

#include <QRectF>

// Where everything of a chart stands: plain arithmetic over font measures, so that nothing is cut and nothing overlaps.
namespace kalvenor::chart {

struct ChartSubject {
    ChartFigures figures;
    ChartKind kind = ChartKind::Bars;
    ChartLook look;
};

struct LegendSwatch {
    QRectF box;
    int index = 0; ///< of the series, or of the row in a pie
};

struct ChartLayout {
    QRectF plot; ///< between the axes; of a pie the square around the circle
    ValueAxis axis;
    std::vector<PlacedText> texts;
    std::vector<LegendSwatch> swatches;
    std::vector<QPolygonF> leaders; ///< from a pie's slices to their texts
};

/// `font` has the size of the surrounding text in pixels.
ChartLayout layoutChart(const ChartSubject &subject, QSizeF size, const QFont &font);

/// One try at a layout with texts of one size.
struct LayoutTry {
    const ChartSubject &subject;
    QSizeF size;
    ChartFont font;       ///< legend and axes
    bool thinning;        ///< labels of rows may be left out
    bool force;           ///< texts may be shortened, the plot may be tiny
    QRectF area = {};     ///< what is left
    bool cramped = false; ///< it does not fit
    ChartLayout layout = {};

    double lineHeight() const { return font.lineHeight(); }
    /// Wrapped into the width; notes where it does not fit, or shortens it where it must.
    TextBlock fitted(const ChartFont &with, const QString &text, double width, int mostLines);
    void add(const PlacedText &text) { layout.texts.push_back(text); }
};

} // namespace kalvenor::chart
