// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pagelayout.h"

#include "platform/basic/error.h"
#include "platform/print/pageflow.h"

#include <algorithm>
#include <utility>

namespace kalvenor {
namespace {

constexpr double leastRoom = 720;   // half an inch each way, below that nothing can be set
constexpr double cellPadding = 70;  // left and right inside a cell
constexpr qint64 blocksAStep = 512; // between two reports of progress

/// A document's blocks turned into strips.
class Setter {
public:
    Setter(const std::vector<TextFace> &faces, double left, double right, PageFlow &flow)
        : m_faces(faces), m_left(left), m_right(right), m_flow(flow)
    {
    }

    void operator()(const Paragraph &paragraph)
    {
        endTable();
        const TextFace &face = faceOf(paragraph.style);
        const QStringList lines = face.wrapped(paragraph.text, m_right - m_left);
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const bool last = i + 1 == lines.size();
            Strip strip;
            strip.spaceBefore = i == 0 ? paragraph.spaceBefore + m_spaceOwed : 0;
            strip.height = face.lineHeight();
            // Neither the first nor the last line of a paragraph stands alone on its page.
            strip.keepWithNext = last ? paragraph.keepWithNext : i == 0 || i + 2 == lines.size();
            setLine(strip, lines[i], paragraph.style, paragraph.alignment, !last, m_left, m_right, face.ascent());
            m_flow.add(std::move(strip));
        }
        m_spaceOwed = paragraph.spaceAfter;
    }

    void operator()(const TableStart &table)
    {
        endTable();
        m_columns = table.columns;
        m_edges = columnEdges(table.columns);
        std::vector<Strip> heading;
        for (const auto &row : table.heading)
            setRow(row, 0, heading);
        for (Strip &strip : heading)
            strip.keepWithNext = true;
        m_rowSpacing = 0;
        m_flow.setHeading({});
        m_headingOwed = heading;
        for (Strip &strip : heading) {
            strip.spaceBefore += std::exchange(m_spaceOwed, 0);
            m_flow.add(std::move(strip));
        }
        m_rowSpacing = table.rowSpacing;
    }

    void operator()(const TableRow &row)
    {
        std::vector<Strip> strips;
        setRow(row.cells, m_rowSpacing + std::exchange(m_spaceOwed, 0), strips);
        for (Strip &strip : strips)
            m_flow.add(std::move(strip));
        // From now on, not before: the first row's page bears the heading already.
        if (!m_headingOwed.empty())
            m_flow.setHeading(std::exchange(m_headingOwed, {}));
    }

    void operator()(const PageBreak &)
    {
        m_spaceOwed = 0;
        m_flow.breakPage();
    }

private:
    const TextFace &faceOf(StyleId style) const { return m_faces[static_cast<std::size_t>(style)]; }

    void endTable()
    {
        m_headingOwed.clear();
        m_flow.setHeading({});
    }

    /// Left edge of each column and the right edge of the last. The cells' padding hangs over both margins, so that
    /// a table's texts stand flush with the paragraphs.
    std::vector<double> columnEdges(const std::vector<Column> &columns) const
    {
        const double line = m_right - m_left + 2 * cellPadding;
        double given = 0;
        int open = 0;
        for (const Column &column : columns) {
            given += column.width;
            open += column.width == 0 ? 1 : 0;
        }
        // Open columns get at least a tenth of the line each, or an equal share where there are many.
        const double least = open == 0 ? 0 : std::min(line / 10, line / static_cast<double>(columns.size()));
        const double room = line - least * open;
        const double scale = given > room ? room / given : 1;
        const double share = open == 0 ? 0 : (line - given * scale) / open;
        std::vector<double> edges{m_left - cellPadding};
        for (const Column &column : columns)
            edges.push_back(edges.back() + (column.width == 0 ? share : column.width * scale));
        return edges;
    }

    void setRow(const std::vector<Cell> &cells, double spaceBefore, std::vector<Strip> &strips) const
    {
        std::vector<QStringList> lines(cells.size());
        qsizetype count = 1;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const TextFace &face = faceOf(cells[i].style);
            const double room = std::max(1.0, m_edges[i + 1] - m_edges[i] - 2 * cellPadding);
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
                setLine(strip, hasLine ? std::move(lines[i][n]) : QString(), cells[i].style,
                        cells[i].alignment.value_or(m_columns[i].alignment), n + 1 < lines[i].size(),
                        m_edges[i] + cellPadding, m_edges[i + 1] - cellPadding, ascent);
            }
        }
    }

    /// `goesOn`: the text has a further line, so that a justified one is spread over the whole width.
    void setLine(Strip &strip, QString line, StyleId style, Alignment alignment, bool goesOn, double left, double right,
                 double baseline) const
    {
        const TextFace &face = faceOf(style);
        if (face.style().background.isValid())
            strip.grounds.push_back(
                {QRectF(left - cellPadding, 0, right - left + 2 * cellPadding, strip.height), style});
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

    void spreadLine(Strip &strip, const QString &line, StyleId style, double left, double rest, double baseline) const
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

    const std::vector<TextFace> &m_faces;
    double m_left;
    double m_right;
    PageFlow &m_flow;
    std::vector<Column> m_columns;
    std::vector<double> m_edges;
    double m_rowSpacing = 0;
    double m_spaceOwed = 0; ///< behind the paragraph before
    std::vector<Strip> m_headingOwed;
};

/// Puts a header or footer on a page; parts that would meet are elided to a third of the line each.
void setRunningText(Page &page, const RunningText &running, const TextFace &face, int number, double left, double right,
                    double baseline)
{
    std::array<QString, 3> parts = runningTextParts(running.text, number);
    std::array<double, 3> widths{};
    const double line = right - left;
    const auto measure = [&](double room) {
        for (std::size_t i = 0; i < 3; ++i) {
            parts[i] = face.elided(parts[i], room);
            widths[i] = face.width(parts[i]);
        }
    };
    measure(line);
    const double outer = std::max(widths[0], widths[2]);
    const bool meet = widths[1] > 0 ? outer + widths[1] / 2 > line / 2 && outer > 0 : widths[0] + widths[2] > line;
    if (meet)
        measure(line / 3 - cellPadding);
    const std::array<double, 3> places{left, left + (line - widths[1]) / 2, right - widths[2]};
    for (std::size_t i = 0; i < 3; ++i) {
        if (!parts[i].isEmpty())
            page.texts.push_back({static_cast<float>(places[i]), static_cast<float>(baseline),
                                  static_cast<float>(widths[i]), running.style, parts[i]});
    }
}

} // namespace

PageLayout::PageLayout(const PrintDocument &document, const Progress &progress)
{
    const PageSetup &setup = document.page;
    m_paper = QSizeF(setup.paperWidth, setup.paperHeight);
    if (setup.landscape)
        m_paper.transpose();
    for (const TextStyle &style : document.styles())
        m_faces.emplace_back(style);

    const TextFace &headerFace = m_faces.at(static_cast<std::size_t>(document.header.style));
    const TextFace &footerFace = m_faces.at(static_cast<std::size_t>(document.footer.style));
    const double left = setup.left;
    const double right = m_paper.width() - setup.right;
    double top = setup.top;
    double bottom = m_paper.height() - setup.bottom;
    if (!document.header.text.isEmpty())
        top = std::max(top, setup.headerDistance + headerFace.lineHeight() * 1.5);
    if (!document.footer.text.isEmpty())
        bottom = std::min(bottom, m_paper.height() - setup.footerDistance - footerFace.lineHeight() * 1.5);
    const bool offPaper = std::min({setup.left, setup.top, setup.right, setup.bottom}) < 0;
    if (offPaper || right - left < leastRoom || bottom - top < leastRoom)
        throw Error(ErrorKind::InvalidProcedureCall, QStringLiteral("page layout"),
                    QStringLiteral("The margins leave no room for text on the paper. Choose smaller margins."));

    PageFlow flow(top, bottom);
    Setter setter(m_faces, left, right, flow);
    const auto total = static_cast<qint64>(document.blocks().size());
    qint64 done = 0;
    for (const Block &block : document.blocks()) {
        std::visit(setter, block);
        if (progress && (++done % blocksAStep == 0 || done == total) && !progress(done, total))
            throw Error(ErrorKind::Cancelled, QStringLiteral("page layout"), QStringLiteral("Stopped by the user."));
    }
    m_pages = flow.take();

    int number = 0;
    for (Page &page : m_pages) {
        ++number;
        setRunningText(page, document.header, headerFace, number, left, right,
                       setup.headerDistance + headerFace.ascent());
        setRunningText(page, document.footer, footerFace, number, left, right,
                       m_paper.height() - setup.footerDistance - footerFace.descent());
    }
}

} // namespace kalvenor
