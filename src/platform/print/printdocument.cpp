// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/printdocument.h"

#include "platform/basic/error.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

[[noreturn]] void refuse(const QString &what)
{
    throw basic::Error(basic::Fault::Misuse, {}, {what});
}

void checkSpace(Twips before, Twips after)
{
    if (before < 0 || after < 0)
        refuse(u"negative space around a block"_s);
}

void checkLevel(int level)
{
    if (level < 0 || level > DeepestOutlineLevel)
        refuse(u"outline level %1"_s.arg(level));
}

} // namespace

std::array<QString, 3> runningTextParts(QStringView text, int pageNumber)
{
    std::array<QString, 3> parts;
    for (std::size_t i = 0; i < 2; ++i) {
        const qsizetype bar = text.indexOf(u'|');
        parts[i] = text.left(bar < 0 ? text.size() : bar).toString();
        text = bar < 0 ? QStringView() : text.mid(bar + 1);
    }
    parts[2] = text.toString();
    for (QString &part : parts)
        part.replace("%d"_L1, QString::number(pageNumber));
    return parts;
}

std::size_t qHash(const TextStyle &style, std::size_t seed)
{
    return qHashMulti(seed, style.family, style.pointSize, style.bold, style.italic, style.underline, style.strikeOut,
                      style.color.rgba(), style.background.rgba());
}

StyleId PrintDocument::addStyle(const TextStyle &style)
{
    if (const auto known = m_styleIds.constFind(style); known != m_styleIds.cend())
        return *known;
    if (!(style.pointSize > 0 && style.pointSize <= LargestPointSize))
        refuse(u"font size %1"_s.arg(style.pointSize));
    const auto id = static_cast<StyleId>(m_styles.size());
    m_styles.push_back(style);
    m_styleIds.insert(style, id);
    return id;
}

PrintDocument PrintDocument::withoutBlocks() const
{
    PrintDocument document;
    document.title = title;
    document.language = language;
    document.page = page;
    document.header = header;
    document.footer = footer;
    document.m_styles = m_styles;
    document.m_styleIds = m_styleIds;
    return document;
}

void PrintDocument::add(Block block)
{
    std::visit([this](const auto &b) { check(b); }, block);
    if (const auto *table = std::get_if<TableStart>(&block))
        m_columns = table->columns.size();
    else if (!std::holds_alternative<TableRow>(block) && !std::holds_alternative<PageBreak>(block))
        m_columns = 0;
    m_blocks.push_back(std::move(block));
}

void PrintDocument::check(const Paragraph &paragraph) const
{
    checkStyle(paragraph.style);
    checkSpace(paragraph.spaceBefore, paragraph.spaceAfter);
    checkLevel(paragraph.outlineLevel);
}

void PrintDocument::check(const RichParagraph &paragraph) const
{
    for (const TextRun &run : paragraph.runs)
        checkStyle(run.style);
    checkStyle(paragraph.bullet.style);
    checkSpace(paragraph.spaceBefore, paragraph.spaceAfter);
    checkLevel(paragraph.outlineLevel);
    if (paragraph.leftIndent < 0)
        refuse(u"negative indent"_s);
}

void PrintDocument::check(const Picture &picture) const
{
    checkSpace(picture.spaceBefore, picture.spaceAfter);
    if (picture.image.isNull() || picture.width <= 0 || picture.height <= 0)
        refuse(u"empty picture"_s);
}

void PrintDocument::check(const TableStart &table) const
{
    if (table.columns.empty())
        refuse(u"table without columns"_s);
    if (table.rowSpacing < 0 ||
        std::any_of(table.columns.begin(), table.columns.end(), [](const Column &column) { return column.width < 0; }))
        refuse(u"negative column width or row spacing"_s);
    for (const auto &row : table.heading)
        checkCells(row, table.columns.size());
}

void PrintDocument::check(const TableRow &row) const
{
    if (m_columns == 0)
        refuse(u"table row outside a table"_s);
    checkCells(row.cells, m_columns);
}

void PrintDocument::checkCells(const std::vector<Cell> &cells, std::size_t columns) const
{
    if (cells.size() > columns)
        refuse(u"%1 cells in a table of %2 columns"_s.arg(cells.size()).arg(columns));
    for (const Cell &cell : cells) {
        checkStyle(cell.style);
        checkLevel(cell.outlineLevel);
    }
}

void PrintDocument::checkStyle(StyleId style) const
{
    if (style < 0 || static_cast<std::size_t>(style) >= m_styles.size())
        refuse(u"text style %1"_s.arg(style));
}

} // namespace kalvenor::print
