// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPolygonF>
#include <QString>

// Texts of a chart: measured first, then placed. Lengths are units of the drawing (1/96 inch in a picture).
namespace kalvenor::chart {

enum class TextRole { Title, CategoryTitle, ValueTitle, Tick, Category, Legend, Figure, Callout, Message };

/// A text of one or more lines, ready to be placed.
struct TextBlock {
    QString text; ///< lines apart by "\n"
    QSizeF size;
    bool whole = true; ///< false: it does not fit the width and lines that it was given
};

struct PlacedText {
    TextRole role;
    QFont font;
    TextBlock block;
    QPointF centre;
    double angle = 0; ///< degrees, clockwise

    /// Around (0, 0), not turned.
    QRectF box() const;
    QPolygonF outline() const;
};

/// A font of the drawing and its measures.
class ChartFont {
public:
    ChartFont(const QFont &base, double pixels, bool bold = false);

    const QFont &font() const { return m_font; }
    double lineHeight() const { return m_metrics.height(); }
    double width(const QString &line) const;
    TextBlock line(const QString &text) const;
    /// Broken between words, behind hyphens and slashes; not whole where a word is too wide or the lines are too many.
    TextBlock wrapped(const QString &text, double width, int mostLines) const;
    /// Like wrapped(), but always whole: what does not fit is one line with "…" in place of its middle.
    TextBlock forced(const QString &text, double width, int mostLines) const;
    PlacedText place(TextRole role, const TextBlock &block, QPointF centre, double angle = 0) const;

private:
    QFont m_font;
    QFontMetricsF m_metrics;
};

/// Whether the two outlines share any area.
bool overlap(const QPolygonF &one, const QPolygonF &other);

} // namespace kalvenor::chart
