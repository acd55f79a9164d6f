// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/htmlwriter.h"

#include "platform/print/htmlstyle.h"
#include "platform/print/pagegeometry.h"
#include "platform/print/textface.h"
#include "platform/print/writerparts.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

QByteArray styleClass(StyleId style)
{
    return 's' + QByteArray::number(style);
}

/// An attribute with its blank, left out where it has no value.
QByteArray attribute(const char *name, const QByteArray &value)
{
    return value.isEmpty() ? QByteArray() : QByteArray(" ") + name + "=\"" + value + '"';
}

QByteArray classes(const QByteArrayList &names)
{
    QByteArrayList some = names;
    some.removeAll(QByteArray());
    return attribute("class", some.join(' '));
}

QByteArray alignmentClass(Alignment alignment)
{
    constexpr const char *names[]{"", "c", "r", "j"};
    return names[static_cast<int>(alignment)];
}

const char *alignmentRule(Alignment alignment)
{
    constexpr const char *rules[]{"text-align:left", "text-align:center", "text-align:right", "text-align:justify"};
    return rules[static_cast<int>(alignment)];
}

/// Turns blocks into HTML; they are visited in their order.
class HtmlBody {
public:
    HtmlBody(const PrintDocument &document, const HtmlStyle &style, const QRectF &area)
        : m_document(document), m_style(style), m_area(area)
    {
    }

    QByteArray out;

    void head()
    {
        out += "<!DOCTYPE html>\n<html lang=" + htmlAttribute(m_document.language) +
               ">\n<head>\n<meta charset=\"utf-8\"/>\n"
               "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
               "<meta name=\"generator\" content=\"Kalvenor " KALVENOR_VERSION "\"/>\n<title>";
        appendHtmlText(out, outlineTitle(m_document.title));
        out += "</title>\n<style>\n" + m_style.sheet() + "</style>\n</head>\n<body>\n";
        running("header", m_document.header);
        out += "<main>\n";
    }

    void operator()(const Paragraph &paragraph)
    {
        close();
        const QByteArray tag = tagOf(paragraph.outlineLevel);
        begin(tag, paragraph, paragraph.alignment, styleClass(paragraph.style), {});
        text(printable(paragraph.text));
        out += "</" + tag + ">\n";
    }

    void operator()(const RichParagraph &paragraph)
    {
        const bool isItem = !paragraph.bullet.text.isEmpty();
        if (!isItem || m_breaks || m_listIndent != paragraph.leftIndent)
            close();
        QByteArray rules;
        if (isItem) {
            if (m_listIndent < 0)
                out += "<ul style=\"margin-left:" + cssLength(paragraph.leftIndent) + "\">\n";
            m_listIndent = paragraph.leftIndent;
            rules = ";list-style:outside " + cssString(paragraph.bullet.text + u' ');
        } else {
            if (paragraph.leftIndent > 0)
                rules = ";padding-left:" + cssLength(paragraph.leftIndent);
            if (paragraph.hanging != 0)
                rules += ";text-indent:" + cssLength(-std::min(paragraph.hanging, paragraph.leftIndent));
        }
        const QByteArray tag = isItem ? QByteArray("li") : tagOf(paragraph.outlineLevel);
        const StyleId whole = isItem ? paragraph.bullet.style : paragraph.runs.empty() ? 0 : paragraph.runs[0].style;
        const bool isOne = paragraph.runs.size() == 1 && paragraph.runs[0].style == whole && !isDecorated(whole);
        begin(tag, paragraph, paragraph.alignment, isDecorated(whole) ? QByteArray() : styleClass(whole), rules);
        for (const TextRun &run : paragraph.runs) {
            out += isOne ? QByteArray() : "<span class=\"" + styleClass(run.style) + "\">";
            text(withTabs(run.text));
            out += isOne ? "" : "</span>";
        }
        out += "</" + tag + ">\n";
    }

    void operator()(const Picture &picture)
    {
        close();
        if (!picture.fileName.isEmpty())
            return;
        const QSizeF size = fittedSize(picture, m_area.size());
        begin("p", picture, picture.alignment, {}, {});
        out += "<img src=\"data:image/png;base64," + pngBytes(picture.image).toBase64() +
               "\" alt=" + htmlAttribute(picture.alternativeText) + " style=\"width:" + cssLength(size.width()) +
               "\"/></p>\n";
    }

    void operator()(const TableStart &table)
    {
        close();
        m_table = &table;
        const std::vector<double> edges = columnEdges(table.columns, m_area.left(), m_area.right());
        const double width = edges.back() - edges.front();
        m_opening = " style=\"width:" + QByteArray::number(100 * width / m_area.width(), 'g', 5) + "%;margin:0 " +
                    cssLength(-CellPadding) + ";--gap:" + cssLength(table.rowSpacing) + "\">\n<colgroup>";
        for (std::size_t i = 1; i < edges.size(); ++i)
            m_opening +=
                "<col style=\"width:" + QByteArray::number(100 * (edges[i] - edges[i - 1]) / width, 'g', 5) + "%\"/>";
        m_opening += "</colgroup>\n";
        if (!table.heading.empty())
            openTable();
    }

    void operator()(const TableRow &tableRow)
    {
        if (m_breaks)
            close();
        if (!m_isTableOpen)
            openTable();
        row(tableRow.cells, false, tableRow.keepWithNext);
    }

    void operator()(const PageBreak &) { m_breaks = true; }

    void end()
    {
        close();
        out += "</main>\n";
        running("footer", m_document.footer);
        out += "</body>\n</html>\n";
    }

private:
    static QByteArray tagOf(int outlineLevel)
    {
        return outlineLevel > 0 ? 'h' + QByteArray::number(outlineLevel) : QByteArray("p");
    }

    static QString withTabs(const QString &text)
    {
        QStringList parts;
        for (const QString &part : text.split(u'\t'))
            parts << printable(part);
        return parts.join(u'\t');
    }

    /// Its lines and ground would show through everything inside an element of this style.
    bool isDecorated(StyleId id) const
    {
        const TextStyle &style = m_document.styles()[static_cast<std::size_t>(id)];
        return style.underline || style.strikeOut || style.background.isValid();
    }

    QByteArray breakClass() { return std::exchange(m_breaks, false) ? "page" : ""; }

    /// Opens a block's element; `rules` begin with ";".
    template <typename B>
    void begin(const QByteArray &tag, const B &block, Alignment alignment, const QByteArray &styleName,
               QByteArray rules)
    {
        if (block.spaceBefore > 0)
            rules += ";margin-top:" + cssLength(block.spaceBefore);
        if (block.spaceAfter > 0)
            rules += ";margin-bottom:" + cssLength(block.spaceAfter);
        out += '<' + tag +
               classes({styleName, alignmentClass(alignment), block.keepWithNext ? "keep" : "", breakClass()}) +
               attribute("style", rules.mid(1)) + '>';
    }

    void text(const QString &text)
    {
        appendHtmlText(out, text);
        if (text.isEmpty() || text.endsWith(u'\n'))
            out += "<br/>"; // the line that is empty has its height, too
    }

    void openTable()
    {
        out += "<table" + classes({'t' + QByteArray::number(m_style.tableClass(m_table->columns)), breakClass()}) +
               m_opening;
        if (!m_table->heading.empty()) {
            out += "<thead>\n";
            for (const std::vector<Cell> &cells : m_table->heading)
                row(cells, true, false);
            out += "</thead>\n";
        }
        out += "<tbody>\n";
        m_isTableOpen = true;
    }

    void close()
    {
        if (std::exchange(m_isTableOpen, false))
            out += "</tbody>\n</table>\n";
        if (std::exchange(m_listIndent, -1) >= 0)
            out += "</ul>\n";
    }

    void row(const std::vector<Cell> &cells, bool isHeading, bool keepWithNext)
    {
        const bool isOne =
            !cells.empty() && !isDecorated(cells[0].style) &&
            std::all_of(cells.begin(), cells.end(), [&](const Cell &cell) { return cell.style == cells[0].style; });
        out += "<tr" + classes({isOne ? styleClass(cells[0].style) : QByteArray(), keepWithNext ? "keep" : ""}) + '>';
        for (std::size_t i = 0; i < m_table->columns.size(); ++i) {
            out += isHeading ? "<th scope=\"col\"" : "<td";
            if (i < cells.size()) {
                const Cell &cell = cells[i];
                if (!isOne)
                    out += classes({styleClass(cell.style)});
                if (cell.alignment)
                    out += attribute("style", alignmentRule(*cell.alignment));
            }
            out += '>';
            if (i < cells.size()) {
                const QByteArray level = isHeading || cells[i].outlineLevel == 0 ? "" : tagOf(cells[i].outlineLevel);
                out += level.isEmpty() ? QByteArray() : '<' + level + '>';
                appendHtmlText(out, printable(cells[i].text));
                out += level.isEmpty() ? QByteArray() : "</" + level + '>';
            }
            out += isHeading ? "</th>" : "</td>";
        }
        out += "</tr>\n";
    }

    void running(const char *tag, const RunningText &running)
    {
        QByteArray parts;
        bool isBare = true;
        for (const QString &part : runningTextParts(QString(running.text).replace("%d"_L1, PageMark), 0)) {
            parts += "<span>";
            if (!part.contains(PageMark)) { // else the page box has it
                appendHtmlText(parts, printable(part));
                isBare = isBare && part.isEmpty();
            }
            parts += "</span>";
        }
        if (!isBare)
            out += QByteArray("<") + tag + " class=\"run " + styleClass(running.style) + "\">" + parts + "</" + tag +
                   ">\n";
    }

    const PrintDocument &m_document;
    const HtmlStyle &m_style;
    QRectF m_area;
    const TableStart *m_table = nullptr;
    QByteArray m_opening; ///< of the table at hand: all but its class and heading
    bool m_isTableOpen = false;
    Twips m_listIndent = -1; ///< of the list that is open
    bool m_breaks = false;   ///< what comes next begins a page
};

} // namespace

void writeHtmlFile(const PrintDocument &document, const QString &nativePath, const basic::Progress &progress)
{
    const QRectF area = textArea(document);
    OutputFile file(nativePath, u"HTML"_s);
    const HtmlStyle style(document, area);
    HtmlBody body(document, style, area);
    body.head();
    writeBlocks(document, file, body, progress);
}

} // namespace kalvenor::print
