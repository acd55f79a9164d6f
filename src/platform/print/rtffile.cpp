// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/rtffile.h"

#include "platform/print/outputfile.h"
#include "platform/print/pagegeometry.h"
#include "platform/print/rtfstyles.h"
#include "platform/print/textface.h"
#include "platform/print/writerparts.h"
#include "platform/richtext/rtfwords.h"

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

QByteArray number(std::string_view word, double value)
{
    return richtext::rtfWord(word, static_cast<int>(std::lround(value)));
}

QByteArray alignmentWord(Alignment alignment)
{
    return richtext::rtfWord(richtext::RtfAlignments[static_cast<std::size_t>(alignment)].word);
}

/// Turns blocks into RTF; they are visited in their order.
class RtfBody {
public:
    RtfBody(const PrintDocument &document, const RtfStyles &styles, const QRectF &area)
        : m_document(document), m_styles(styles), m_area(area)
    {
    }

    QByteArray out;

    void head()
    {
        const PageSetup &page = m_document.page;
        const QSizeF paper = paperSize(page);
        out += "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\\deflang";
        out += m_document.language == u"en" ? "1033" : "1031";
        out += "\\deftab720\n" + m_styles.tables();
        out += "{\\stylesheet{\\s0 Normal;}";
        for (int level = 1; level <= DeepestOutlineLevel; ++level)
            out += "{\\s" + QByteArray::number(level) + "\\outlinelevel" + QByteArray::number(level - 1) +
                   "\\sbasedon0\\snext0 heading " + QByteArray::number(level) + ";}";
        out += "}\n{\\*\\generator Kalvenor " KALVENOR_VERSION ";}{\\info{\\title ";
        appendRtfText(out, outlineTitle(m_document.title));
        out += "}}\n" + number("paperw", paper.width()) + number("paperh", paper.height()) +
               number("margl", page.left) + number("margr", page.right) + number("margt", page.top) +
               number("margb", page.bottom) + number("headery", page.headerDistance) +
               number("footery", page.footerDistance) + (page.landscape ? "\\landscape" : "") + "\\widowctrl\n";
        running("header", m_document.header);
        running("footer", m_document.footer);
    }

    void operator()(const Paragraph &paragraph)
    {
        if (paragraph.alignment == Alignment::Justified && paragraph.text.contains(u'\n')) {
            std::vector<Paragraph> lines;
            for (const QString &line : printable(paragraph.text).split(u'\n'))
                lines.emplace_back(paragraph).text = line;
            lineByLine(std::move(lines));
            return;
        }
        begin(paragraph, paragraph.alignment);
        if (const int color = m_styles.background(paragraph.style))
            out += number("cbpat", color);
        out += m_styles.words(paragraph.style);
        appendRtfText(out, printable(paragraph.text));
        out += "\\par\n";
    }

    void operator()(const RichParagraph &paragraph)
    {
        if (paragraph.alignment == Alignment::Justified &&
            std::any_of(paragraph.runs.begin(), paragraph.runs.end(),
                        [](const TextRun &r) { return r.text.contains(u'\n'); })) {
            lineByLine(lines(paragraph));
            return;
        }
        begin(paragraph, paragraph.alignment);
        const int hanging = std::min(paragraph.hanging, paragraph.leftIndent); // no line begins left of the margin
        out += number("li", paragraph.leftIndent) + number("fi", -hanging);
        if (!paragraph.bullet.text.isEmpty()) {
            out += number("tx", paragraph.leftIndent);
            run(paragraph.bullet.text + u'\t', paragraph.bullet.style);
        }
        for (const TextRun &r : paragraph.runs)
            run(r.text, r.style);
        if (paragraph.runs.size() == 1 && paragraph.runs[0].text.isEmpty())
            out += m_styles.words(paragraph.runs[0].style); // the height of an empty line
        out += "\\par\n";
    }

    void operator()(const Picture &picture)
    {
        begin(picture, picture.alignment);
        // A word processor needs room for its line around the picture.
        const QSizeF size = fittedSize(picture, {m_area.width(), m_area.height() * 0.95});
        out += "{\\pict";
        if (!picture.alternativeText.isEmpty()) {
            out += "{\\*\\picprop{\\sp{\\sn wzDescription}{\\sv ";
            appendRtfText(out, outlineTitle(picture.alternativeText));
            out += "}}}";
        }
        out += "\\pngblip" + number("picw", picture.image.width()) + number("pich", picture.image.height()) +
               number("picwgoal", size.width()) + number("pichgoal", size.height()) + '\n';
        const QByteArray hex = pngBytes(picture.image).toHex();
        for (qsizetype i = 0; i < hex.size(); i += 128)
            out += hex.mid(i, 128) + '\n';
        out += "}\\par\n";
    }

    void operator()(const TableStart &table)
    {
        if (m_breaks || m_isInTable)
            gap(); // two tables that meet would become one
        m_table = &table;
        const std::vector<double> edges = columnEdges(table.columns, m_area.left(), m_area.right());
        m_left = edges.front() - m_area.left();
        m_cells.clear();
        for (std::size_t i = 1; i < edges.size(); ++i)
            m_cells.push_back(number("cellx", edges[i] - m_area.left()));
        m_hasRows = false;
        heading();
    }

    void operator()(const TableRow &tableRow)
    {
        if (m_breaks) {
            gap();
            if (m_hasRows)
                heading();
        }
        row(tableRow.cells, false, tableRow.keepWithNext, m_table->rowSpacing);
        m_hasRows = true;
    }

    void operator()(const PageBreak &)
    {
        if (m_breaks || m_isEmpty)
            gap(); // an empty page
        m_breaks = true;
    }

    void end()
    {
        if (m_breaks || m_isInTable || m_isEmpty)
            gap(); // no text ends with a table
        out += "}\n";
    }

private:
    static std::vector<RichParagraph> lines(const RichParagraph &paragraph)
    {
        RichParagraph rest = paragraph;
        rest.runs.clear();
        std::vector<RichParagraph> lines{rest};
        rest.hanging = 0;
        rest.bullet = {};
        for (const TextRun &r : paragraph.runs) {
            const QStringList parts = r.text.split(u'\n');
            for (qsizetype i = 0; i < parts.size(); ++i) {
                if (i > 0)
                    lines.push_back(rest);
                lines.back().runs.push_back({parts[i], r.style});
            }
        }
        return lines;
    }

    /// A word processor would spread the line before a line end over the whole width, so each is a paragraph.
    template <typename P>
    void lineByLine(std::vector<P> lines)
    {
        for (P &line : lines) {
            if (&line != &lines.front())
                line.spaceBefore = line.outlineLevel = 0;
            if (&line != &lines.back())
                line.spaceAfter = 0;
            (*this)(line);
        }
    }

    template <typename B>
    void begin(const B &block, Alignment alignment)
    {
        const bool onTop = m_breaks;
        begin();
        if constexpr (!std::is_same_v<B, Picture>)
            level(block.outlineLevel);
        out += alignmentWord(alignment);
        if (block.spaceBefore > 0 && !onTop)
            out += number("sb", block.spaceBefore);
        if (block.spaceAfter > 0)
            out += number("sa", block.spaceAfter);
        if (block.keepWithNext)
            out += "\\keepn";
    }

    void begin()
    {
        out += "\\pard\\plain";
        if (std::exchange(m_breaks, false))
            out += "\\pagebb";
        m_isInTable = m_isEmpty = false;
    }

    /// A paragraph that nobody sees.
    void gap()
    {
        begin();
        out += "\\sl-20\\slmult0\\fs2\\par\n";
    }

    void level(int outlineLevel)
    {
        if (outlineLevel > 0)
            out += number("s", outlineLevel) + number("outlinelevel", outlineLevel - 1);
    }

    void run(const QString &text, StyleId style)
    {
        out += '{';
        if (const int color = m_styles.background(style))
            out += "\\chshdng0" + number("chcbpat", color) + number("cb", color);
        out += m_styles.words(style);
        appendRtfText(out, text);
        out += '}';
    }

    void heading()
    {
        for (const std::vector<Cell> &cells : m_table->heading)
            row(cells, true, true, 0);
    }

    void row(const std::vector<Cell> &cells, bool isHeading, bool keepWithNext, Twips spacing)
    {
        out += "\\trowd\\trgaph70" + number("trleft", m_left);
        out += isHeading ? "\\trkeep\\trhdr" : "\\trkeep";
        for (std::size_t i = 0; i < m_cells.size(); ++i) {
            if (const int color = i < cells.size() ? m_styles.background(cells[i].style) : 0)
                out += number("clcbpat", color);
            out += m_cells[i];
        }
        out += '\n';
        for (std::size_t i = 0; i < m_cells.size(); ++i) {
            out += "\\pard\\plain\\intbl";
            if (i < cells.size()) {
                const Cell &cell = cells[i];
                if (!isHeading)
                    level(cell.outlineLevel);
                out += alignmentWord(cell.alignment.value_or(m_table->columns[i].alignment));
                if (spacing > 0)
                    out += number("sb", spacing);
                if (keepWithNext)
                    out += "\\keepn";
                out += m_styles.words(cell.style);
                appendRtfText(out, printable(cell.text));
            }
            out += "\\cell\n";
        }
        out += "\\row\n";
        m_isInTable = true;
        m_isEmpty = false;
    }

    void running(const char *word, const RunningText &text)
    {
        if (text.text.isEmpty())
            return;
        out += "{\\" + QByteArray(word) + "\\pard\\plain\\tqc" + number("tx", m_area.width() / 2) + "\\tqr" +
               number("tx", m_area.width()) + m_styles.words(text.style);
        const auto parts = runningTextParts(QString(text.text).replace("%d"_L1, PageMark), 0);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (i > 0)
                out += "\\tab ";
            const QStringList pieces = printable(parts[i]).split(PageMark);
            for (qsizetype n = 0; n < pieces.size(); ++n) {
                if (n > 0)
                    out += "\\chpgn ";
                appendRtfText(out, pieces[n]);
            }
        }
        out += "\\par}\n";
    }

    const PrintDocument &m_document;
    const RtfStyles &m_styles;
    QRectF m_area;
    const TableStart *m_table = nullptr;
    double m_left = 0;
    std::vector<QByteArray> m_cells; ///< the right edge of each
    bool m_hasRows = false;          ///< the table at hand
    bool m_isInTable = false;        ///< a row was written last
    bool m_breaks = false;           ///< what comes next begins a page
    bool m_isEmpty = true;
};

} // namespace

void writeRtfFile(const PrintDocument &document, const QString &nativePath, const basic::Progress &progress)
{
    const QRectF area = textArea(document);
    OutputFile file(nativePath, u"RTF"_s);
    const RtfStyles styles(document.styles());
    RtfBody body(document, styles, area);
    body.head();
    writeBlocks(document, file, body, progress);
}

} // namespace kalvenor::print
