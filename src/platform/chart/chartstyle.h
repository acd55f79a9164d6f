// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QPen>

class QPalette;

namespace kalvenor::chart {

struct ChartStyle {
    QFont font; ///< of the surrounding text, its size in pixels
    QColor ground;
    QColor text;
    QColor grid;
    bool dark = false; ///< light colours for the series

    /// Colours that stay apart for colour-blind readers and in grey print. They begin anew behind the eighth.
    QColor seriesColor(int index) const;
    QPen linePen(int index) const;
    /// Around a bar of that colour.
    QPen edgePen(const QColor &color) const;
};

/// White paper, whatever the desktop looks like.
ChartStyle paperStyle();
ChartStyle paletteStyle(const QPalette &palette, const QFont &font);

/// The size of the surrounding text on paper, in points.
constexpr int ChartTextPoints = 9;
/// How many series colours there are.
constexpr int SeriesColors = 8;

} // namespace kalvenor::chart
