// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/charttext.h"

#include <QColor>
#include <QPainterPath>
#include <QPen>

class QPainter;

namespace kalvenor::chart {

/// What a chart is drawn on. What comes later lies above.
class Canvas {
public:
    virtual ~Canvas() = default;
    /// An invalid fill fills nothing, Qt::NoPen outlines nothing.
    virtual void shape(const QPainterPath &path, const QColor &fill, const QPen &pen) = 0;
    virtual void text(const PlacedText &text, const QColor &color) = 0;
};

class PainterCanvas : public Canvas {
public:
    explicit PainterCanvas(QPainter &painter) : m_painter(painter) {}
    void shape(const QPainterPath &path, const QColor &fill, const QPen &pen) override;
    void text(const PlacedText &text, const QColor &color) override;

private:
    QPainter &m_painter;
};

} // namespace kalvenor::chart
