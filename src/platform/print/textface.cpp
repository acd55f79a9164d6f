// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/textface.h"

#include <algorithm>
#include <cmath>
#include <QPainter>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

constexpr char16_t LetterEnd = 0x0483; // Latin, Greek, Cyrillic; from here on combining marks
constexpr char16_t PunctuationBegin = 0x2010;
constexpr char16_t PunctuationEnd = 0x2028;

// Characters that stand alone: one unit, one glyph, left to right, nothing to combine.
bool standsAlone(char16_t unit)
{
    if (unit >= PunctuationBegin)
        return unit < PunctuationEnd || unit == 0x20AC;
    return unit >= 0x20 && unit < LetterEnd && unit != 0x00AD && !(unit >= 0x7F && unit < 0xA0) &&
           !(unit >= 0x0300 && unit < 0x0370);
}

QFont fontOf(const TextStyle &style)
{
    QFont font(style.family);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(style.pointSize * 20)))); // a point is 20 twips
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QStringView withoutEndBlanks(QStringView line)
{
    while (!line.isEmpty() && line.back() == u' ')
        line.chop(1);
    return line;
}

} // namespace

QString printable(const QString &text)
{
    if (std::none_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x20; }))
        return text;
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit == u'\t')
            out += "    "_L1;
        else if (unit == u'\n' || (unit == u'\r' && (i + 1 == text.size() || text[i + 1] != u'\n')))
            out += u'\n';
        else if (unit != u'\r')
            out += unit < 0x20 ? QChar(u' ') : text[i];
    }
    return out;
}

TextFace::TextFace(const TextStyle &style)
    : m_style(style), m_font(fontOf(style)), m_rawFont(QRawFont::fromFont(m_font)), m_metrics(m_font),
      m_ascent(m_metrics.ascent()), m_descent(m_metrics.descent()), m_lineHeight(m_metrics.lineSpacing()),
      m_underlinePosition(m_metrics.underlinePos()), m_strikeOutPosition(m_metrics.strikeOutPos()),
      m_ruleWidth(std::max(1.0, m_metrics.lineWidth()))
{
    m_run.setRawFont(m_rawFont);
    const auto fill = [this](QList<Glyph> &table, char16_t begin, char16_t end) {
        QString units;
        for (char16_t unit = begin; unit < end; ++unit)
            units += QChar(unit);
        const QList<quint32> indexes = m_rawFont.glyphIndexesForString(units);
        table.resize(end - begin);
        if (indexes.size() != units.size())
            return;
        const QList<QPointF> advances = m_rawFont.advancesForGlyphIndexes(indexes);
        for (qsizetype i = 0; i < indexes.size(); ++i) {
            if (standsAlone(units[i].unicode()))
                table[i] = {indexes[i], static_cast<float>(advances[i].x())};
        }
    };
    fill(m_letters, 0, LetterEnd);
    fill(m_punctuation, PunctuationBegin, 0x20AD);
}

TextFace::TextFace(const TextFace &sameFont, const TextStyle &style) : TextFace(sameFont)
{
    m_style = style;
}

const TextFace::Glyph &TextFace::glyph(char16_t unit) const
{
    static const Glyph none;
    if (unit < m_letters.size())
        return m_letters[unit];
    const qsizetype place = unit - PunctuationBegin;
    return place >= 0 && place < m_punctuation.size() ? m_punctuation[place] : none;
}

bool TextFace::isPlain(QStringView text) const
{
    return std::all_of(text.begin(), text.end(), [this](QChar c) { return glyph(c.unicode()).index != 0; });
}

double TextFace::width(QStringView text) const
{
    double sum = 0;
    for (const QChar c : text) {
        const Glyph &g = glyph(c.unicode());
        if (g.index == 0)
            return m_metrics.horizontalAdvance(text.toString());
        sum += static_cast<double>(g.advance);
    }
    return sum;
}

QStringList TextFace::wrapped(const QString &text, double width) const
{
    const QString clean = printable(text);
    QStringList lines;
    if (!clean.contains(u'\n')) {
        if (this->width(clean) <= width)
            return {clean.endsWith(u' ') ? withoutEndBlanks(clean).toString() : clean};
        isPlain(clean) ? wrapPlain(clean, width, lines) : wrapShaped(clean, width, lines);
        return lines;
    }
    for (const QString &line : clean.split(u'\n')) {
        if (isPlain(line))
            wrapPlain(line, width, lines);
        else
            wrapShaped(line, width, lines);
    }
    return lines;
}

void TextFace::wrapPlain(QStringView text, double width, QStringList &lines) const
{
    qsizetype start = 0;
    qsizetype breakAt = -1; // behind the last blank or hyphen of this line
    double sum = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        sum += static_cast<double>(glyph(unit).advance);
        if (unit == u' ') {
            breakAt = i + 1; // a blank may stand beyond the edge: it is left out there
            continue;
        }
        if (sum > width && i > start) {
            const qsizetype end = breakAt > start ? breakAt : i;
            lines << withoutEndBlanks(text.mid(start, end - start)).toString();
            start = end;
            breakAt = -1;
            sum = this->width(text.mid(start, i + 1 - start));
        }
        if (unit == u'-' && i > start)
            breakAt = i + 1;
    }
    lines << withoutEndBlanks(text.mid(start)).toString();
}

void TextFace::wrapShaped(const QString &text, double width, QStringList &lines) const
{
    QTextLayout layout(text, m_font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines << withoutEndBlanks(QStringView(text).mid(line.textStart(), line.textLength())).toString();
    }
    layout.endLayout();
    if (text.isEmpty())
        lines << QString();
}

QString TextFace::elided(const QString &text, double width) const
{
    QString clean = printable(text).replace(u'\n', u' ');
    if (this->width(clean) <= width)
        return clean;
    const QString dots = u"…"_s;
    if (!isPlain(clean) || !isPlain(dots))
        return m_metrics.elidedText(clean, Qt::ElideRight, width);
    double room = width - this->width(dots);
    qsizetype fits = 0;
    while (fits < clean.size()) {
        room -= static_cast<double>(glyph(clean[fits].unicode()).advance);
        if (room < 0)
            break;
        ++fits;
    }
    return withoutEndBlanks(QStringView(clean).left(fits)).toString() + dots;
}

void TextFace::draw(QPainter &painter, QPointF baseline, const QString &text, double width)
{
    if (text.isEmpty())
        return;
    if (isPlain(text)) {
        m_runIndexes.clear();
        m_runPositions.clear();
        double x = 0;
        for (const QChar c : text) {
            const Glyph &g = glyph(c.unicode());
            m_runIndexes.push_back(g.index);
            m_runPositions.emplace_back(x, 0);
            x += static_cast<double>(g.advance);
        }
        m_run.setRawData(m_runIndexes.data(), m_runPositions.data(), static_cast<int>(m_runIndexes.size()));
        painter.drawGlyphRun(baseline, m_run);
    } else {
        painter.setFont(m_font);
        painter.drawText(baseline, text);
    }
    const QColor color = painter.pen().color();
    if (m_style.underline)
        painter.fillRect(QRectF(baseline.x(), baseline.y() + m_underlinePosition, width, m_ruleWidth), color);
    if (m_style.strikeOut)
        painter.fillRect(QRectF(baseline.x(), baseline.y() - m_strikeOutPosition, width, m_ruleWidth), color);
}

} // namespace kalvenor::print
