// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/printdocument.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <QRawFont>
#include <QStringList>
#include <vector>

class QPainter;

namespace kalvenor::print {

/// One style ready for measuring and painting, in twips and without hinting, so that a line is as long on the screen
/// as on paper. Texts of the European alphabets, each of whose characters the font has, go by a table of advances,
/// unkerned; all others (other scripts, combining marks, fonts to be mixed) are shaped by Qt.
/// Needs a QGuiApplication.
class TextFace {
public:
    explicit TextFace(const TextStyle &style);
    /// A style that differs from another face's in lines and colours alone; it shares all that was measured.
    TextFace(const TextFace &sameFont, const TextStyle &style);

    const TextStyle &style() const { return m_style; }
    /// Its pixel is one twip.
    const QFont &font() const { return m_font; }
    double ascent() const { return m_ascent; }
    double descent() const { return m_descent; }
    /// From one baseline to the next.
    double lineHeight() const { return m_lineHeight; }

    double width(QStringView text) const;
    /// The lines that fit the width, blanks at their ends left out; at least one. Line ends in the text are kept; a
    /// word wider than the width is broken between characters, at least one character a line.
    QStringList wrapped(const QString &text, double width) const;
    /// One line; "…" stands for what does not fit.
    QString elided(const QString &text, double width) const;

    /// `baseline` in twips; the painter's unit is one twip.
    void draw(QPainter &painter, QPointF baseline, const QString &text, double width);

private:
    struct Glyph {
        quint32 index = 0; ///< 0: not by the table
        float advance = 0;
    };
    const Glyph &glyph(char16_t unit) const;
    bool isPlain(QStringView text) const;
    void wrapPlain(QStringView text, double width, QStringList &lines) const;
    void wrapShaped(const QString &text, double width, QStringList &lines) const;

    TextStyle m_style;
    QFont m_font;
    QRawFont m_rawFont;
    QFontMetricsF m_metrics;
    double m_ascent;
    double m_descent;
    double m_lineHeight;
    double m_underlinePosition;
    double m_strikeOutPosition;
    double m_ruleWidth;
    QList<Glyph> m_letters;     ///< U+0000 …
    QList<Glyph> m_punctuation; ///< U+2010 …
    QGlyphRun m_run;
    std::vector<quint32> m_runIndexes;
    std::vector<QPointF> m_runPositions;
};

/// The text with tabs as four blanks, line ends as "\n" and other control characters as blanks.
QString printable(const QString &text);

} // namespace kalvenor::print
