// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chartlayout.h"

#include <memory>
#include <QColor>
#include <QFont>

class QGraphicsScene;
class QPainter;
class QPalette;

// A chart ready to be painted: Qt Charts draws series, grid and axes into the place that the layout gives them; the
// texts, which Qt Charts would shorten where they do not fit, are the layout's.
namespace kalvenor::chart {

struct ChartStyle {
    QFont font; ///< of the surrounding text, its size in pixels
    QColor ground;
    QColor text;
    QColor grid;
    bool dark = false; ///< light colours for the series
};

/// White paper, whatever the desktop looks like.
ChartStyle paperStyle();
ChartStyle paletteStyle(const QPalette &palette, const QFont &font);

/// Colours that stay apart for colour-blind readers and in grey print. They begin anew behind the eighth.
QColor seriesColor(int index, bool dark);

class ChartDrawing {
public:
    ChartDrawing(const ChartTable &table, const ChartLook &look, QSizeF size, const ChartStyle &style);
    ~ChartDrawing();
    ChartDrawing(const ChartDrawing &) = delete;
    ChartDrawing &operator=(const ChartDrawing &) = delete;

    /// Ground and all, stretched to the target.
    void paint(QPainter &painter, const QRectF &target) const;

    const ChartSubject &subject() const { return m_subject; }
    const ChartLayout &layout() const { return m_layout; }
    /// By ChartLook::valueFormat, or "series, row: figure" without one; empty where there is no figure.
    QString textAt(QPointF place) const;

private:
    QSizeF m_size;
    ChartSubject m_subject;
    ChartLayout m_layout;
    std::unique_ptr<QGraphicsScene> m_scene;
};

} // namespace kalvenor::chart
