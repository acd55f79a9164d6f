// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/canvas.h"

#include <QPainter>

namespace kalvenor::chart {

void PainterCanvas::shape(const QPainterPath &path, const QColor &fill, const QPen &pen)
{
    m_painter.setPen(pen);
    m_painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush());
    m_painter.drawPath(path);
}

void PainterCanvas::text(const PlacedText &text, const QColor &color)
{
    m_painter.save();
    m_painter.setPen(color);
    m_painter.setFont(text.font);
    m_painter.translate(text.centre);
    m_painter.rotate(text.angle);
    m_painter.drawText(text.box(), Qt::AlignCenter | Qt::TextDontClip, text.block.text);
    m_painter.restore();
}

} // namespace kalvenor::chart
