// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartdrawing.h"

#include "platform/chart/chartgeometry.h"
#include "platform/chart/chartshapes.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace kalvenor::chart {

ChartDrawing::ChartDrawing(const ChartTable &table, const ChartLook &look, QSizeF size, const ChartStyle &style)
    : m_size(size), m_style(style), m_subject{chartFigures(table, chartKind(look.type)), chartKind(look.type), look},
      m_layout(layoutChart(m_subject, size, style.font))
{
}

void ChartDrawing::draw(Canvas &canvas) const
{
    drawChart(canvas, m_subject, m_layout, m_style, m_size);
}

void ChartDrawing::paint(QPainter &painter, const QRectF &target) const
{
    if (m_size.isEmpty())
        return;
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setClipRect(target);
    painter.translate(target.topLeft());
    painter.scale(target.width() / m_size.width(), target.height() / m_size.height());
    PainterCanvas canvas(painter);
    draw(canvas);
    painter.restore();
}

QString ChartDrawing::textAt(QPointF place) const
{
    const auto hit = hitAt(place);
    if (!hit)
        return {};
    const ChartFigures &figures = m_subject.figures;
    const QString figure = chartFigureText(figures.value(hit->column, hit->row), m_subject.look.locale);
    QStringList name;
    for (const QString &part : {figures.series[hit->column], figures.rows[hit->row]}) {
        if (!part.isEmpty())
            name << part;
    }
    const QString format = m_subject.look.valueFormat.isEmpty() ? u"%1: %2"_s : m_subject.look.valueFormat;
    return format.arg(name.join(u", "_s), figure);
}

} // namespace kalvenor::chart
