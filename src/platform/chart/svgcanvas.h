// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/canvas.h"

#include <QByteArray>
#include <QXmlStreamWriter>

namespace kalvenor::chart {

/// What reads an SVG aloud, or looks for it, finds these.
struct SvgWords {
    QString language; ///< "de", "en-GB"
    QString title;
    QString description;
};

/// A chart as SVG 1.1: shapes as paths, texts as texts. Lengths in 1/96 inch.
class SvgCanvas : public Canvas {
public:
    SvgCanvas(QSizeF size, const SvgWords &words);
    void shape(const QPainterPath &path, const QColor &fill, const QPen &pen) override;
    void text(const PlacedText &text, const QColor &color) override;
    /// The whole file; nothing can be drawn any more.
    QByteArray finished();

private:
    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
};

} // namespace kalvenor::chart
