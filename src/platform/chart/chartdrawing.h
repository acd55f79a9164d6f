// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chartgeometry.h"
#include "platform/chart/chartlayout.h"
#include "platform/chart/chartstyle.h"

class QPainter;

namespace kalvenor::chart {

class Canvas;

/// A chart laid out for a size, ready to be drawn and to be asked what stands where.
class ChartDrawing {
public:
    ChartDrawing(const ChartTable &table, const ChartLook &look, QSizeF size, const ChartStyle &style);

    /// Ground and all, in the size of the layout.
    void draw(Canvas &canvas) const;
    /// The same, stretched to the target.
    void paint(QPainter &painter, const QRectF &target) const;

    const ChartSubject &subject() const { return m_subject; }
    const ChartLayout &layout() const { return m_layout; }
    std::optional<ChartHit> hitAt(QPointF place) const { return figureAt(m_subject, m_layout, place); }
    /// By ChartLook::valueFormat, or "series, row: figure" without one; empty where there is no figure.
    QString textAt(QPointF place) const;

private:
    QSizeF m_size;
    ChartStyle m_style;
    ChartSubject m_subject;
    ChartLayout m_layout;
};

} // namespace kalvenor::chart
