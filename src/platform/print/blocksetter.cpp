// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/blocksetter.h"

#include "platform/print/pagegeometry.h"
#include "platform/print/richlines.h"

#include <algorithm>
#include <QPainter>
#include <utility>

namespace kalvenor::print {
namespace {

/// A printed page knows no transparency, and PDF/A-1 forbids it.
QImage opaque(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return image;
    QImage made(image.size(), QImage::Format_RGB32);
    made.fill(Qt::white);
    QPainter(&made).drawImage(QRect(QPoint(), image.size()), image);
    return made;
}

} // namespace

void BlockSetter::operator()(const Paragraph &paragraph)
{
    endTable();
    const TextFace &face = faceOf(paragraph.style);
    const QStringList texts = face.wrapped(paragraph.text, m_right - m_left);
    std::vector<Strip> lines(static_cast<std::size_t>(texts.size()));
    for (qsizetype i = 0; i < texts.size(); ++i) {
        Strip &strip = lines[static_cast<std::size_t>(i)];
        strip.height = face.lineHeight();
        setLine(strip, texts[i], paragraph.style, paragraph.alignment, i + 1 < texts.size(), m_left, m_right,
                face.ascent());
    }
    if (paragraph.outlineLevel > 0)
        lines.front().headings.push_back({0, paragraph.outlineLevel, outlineTitle(paragraph.text)});
    addLines(lines, paragraph);
}

void BlockSetter::operator()(const RichParagraph &paragraph)
{
    endTable();
    std::vector<Strip> lines = richLines(paragraph, m_faces, m_left, m_right);
    if (paragraph.outlineLevel > 0)
        lines.front().headings.push_back({0, paragraph.outlineLevel, outlineTitle(paragraph)});
    addLines(lines, paragraph);
}

void BlockSetter::operator()(const Picture &picture)
{
    endTable();
    Strip strip;
    strip.spaceBefore = picture.spaceBefore + m_spaceOwed;
    const QSizeF size = fittedSize(picture, {m_right - m_left, m_flow.roomForNext(strip.spaceBefore)});
    const double rest = m_right - m_left - size.width();
    double x = m_left;
    if (picture.alignment == Alignment::Right)
        x += rest;
    else if (picture.alignment == Alignment::Centre)
        x += rest / 2;
    strip.height = size.height();
    strip.keepWithNext = picture.keepWithNext;
    strip.pictures.push_back({QRectF(QPointF(x, 0), size), opaque(picture.image)});
    m_spaceOwed = picture.spaceAfter;
    m_flow.add(std::move(strip));
}

void BlockSetter::operator()(const TableStart &table)
{
    endTable();
    m_columns = table.columns;
    m_edges = columnEdges(table.columns, m_left, m_right);
    std::vector<Strip> heading;
    for (const auto &row : table.heading)
        setRow(row, 0, heading);
    for (Strip &strip : heading) {
        strip.keepWithNext = true;
        strip.headings.clear(); // it stands on each page, the outline would not know which
    }
    m_rowSpacing = 0;
    m_flow.setHeading({});
    m_headingOwed = heading;
    for (Strip &strip : heading) {
        strip.spaceBefore += std::exchange(m_spaceOwed, 0);
        m_flow.add(std::move(strip));
    }
    m_rowSpacing = table.rowSpacing;
}

void BlockSetter::operator()(const TableRow &row)
{
    std::vector<Strip> strips;
    setRow(row.cells, m_rowSpacing + std::exchange(m_spaceOwed, 0), strips);
    strips.back().keepWithNext = row.keepWithNext;
    for (Strip &strip : strips)
        m_flow.add(std::move(strip));
    // From now on, not before: the first row's page bears the heading already.
    if (!m_headingOwed.empty())
        m_flow.setHeading(std::exchange(m_headingOwed, {}));
}

void BlockSetter::operator()(const PageBreak &)
{
    m_spaceOwed = 0;
    m_flow.breakPage();
}

void BlockSetter::endTable()
{
    m_headingOwed.clear();
    m_flow.setHeading({});
}

template <typename P>
void BlockSetter::addLines(std::vector<Strip> &lines, const P &paragraph)
{
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool last = i + 1 == lines.size();
        lines[i].spaceBefore = i == 0 ? paragraph.spaceBefore + m_spaceOwed : 0;
        // Neither the first nor the last line of a paragraph stands alone on its page.
        lines[i].keepWithNext = last ? paragraph.keepWithNext : i == 0 || i + 2 == lines.size();
        m_flow.add(std::move(lines[i]));
    }
    m_spaceOwed = paragraph.spaceAfter;
}

void BlockSetter::setRow(const std::vector<Cell> &cells, double spaceBefore, std::vector<Strip> &strips) const
{
    std::vector<QStringList> lines(cells.size());
    qsizetype count = 1;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const TextFace &face = faceOf(cells[i].style);
        const double room = std::max(1.0, m_edges[i + 1] - m_edges[i] - 2 * CellPadding);
        if (m_columns[i].overflow == Overflow::Elide)
            lines[i] = {face.elided(cells[i].text, room)};
        else
            lines[i] = face.wrapped(cells[i].text, room);
        count = std::max(count, lines[i].size());
    }
    for (qsizetype n = 0; n < count; ++n) {
        Strip &strip = strips.emplace_back();
        strip.spaceBefore = n == 0 ? spaceBefore : 0;
        strip.keepWithNext = n + 1 < count;
        double ascent = 0;
        double below = 0;
        for (const Cell &cell : cells) {
            const TextFace &face = faceOf(cell.style);
            ascent = std::max(ascent, face.ascent());
            below = std::max(below, face.lineHeight() - face.ascent());
        }
        if (cells.empty())
            ascent = faceOf(0).lineHeight();
        strip.height = ascent + below;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const bool hasLine = n < lines[i].size();
            if (n == 0 && cells[i].outlineLevel > 0)
                strip.headings.push_back({0, cells[i].outlineLevel, outlineTitle(cells[i].text)});
            setLine(strip, hasLine ? std::move(lines[i][n]) : QString(), cells[i].style,
                    cells[i].alignment.value_or(m_columns[i].alignment), n + 1 < lines[i].size(),
                    m_edges[i] + CellPadding, m_edges[i + 1] - CellPadding, ascent);
        }
    }
}

/// `goesOn`: the text has a further line, so that a justified one is spread over the whole width.
void BlockSetter::setLine(Strip &strip, QString line, StyleId style, Alignment alignment, bool goesOn, double left,
                          double right, double baseline) const
{
    const TextFace &face = faceOf(style);
    if (face.style().background.isValid())
        strip.grounds.push_back({QRectF(left - CellPadding, 0, right - left + 2 * CellPadding, strip.height), style});
    if (line.isEmpty())
        return;
    const double width = face.width(line);
    const double rest = right - left - width;
    if (alignment == Alignment::Justified && goesOn && rest > 0 && line.contains(u' ')) {
        spreadLine(strip, line, style, left, rest, baseline);
        return;
    }
    double x = left;
    if (alignment == Alignment::Right)
        x += rest;
    else if (alignment == Alignment::Centre)
        x += rest / 2;
    strip.texts.push_back(
        {static_cast<float>(x), static_cast<float>(baseline), static_cast<float>(width), style, std::move(line)});
}

void BlockSetter::spreadLine(Strip &strip, const QString &line, StyleId style, double left, double rest,
                             double baseline) const
{
    const TextFace &face = faceOf(style);
    const double gap = rest / static_cast<double>(line.count(u' '));
    double x = left;
    for (const QString &word : line.split(u' ')) {
        // Each word takes its blank along, so that the text can be searched and copied as it was.
        const QString text = word + u' ';
        const double width = face.width(text);
        strip.texts.push_back(
            {static_cast<float>(x), static_cast<float>(baseline), static_cast<float>(width + gap), style, text});
        x += width + gap;
    }
    strip.texts.back().text.chop(1);
    strip.texts.back().width = static_cast<float>(face.width(strip.texts.back().text));
}

} // namespace kalvenor::print
