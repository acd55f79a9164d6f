// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pagegeometry.h"

#include "platform/basic/error.h"
#include "platform/print/textface.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

constexpr double LeastRoom = 720; // half an inch each way, below that nothing can be set

} // namespace

QSizeF paperSize(const PageSetup &setup)
{
    const QSizeF upright(setup.paperWidth, setup.paperHeight);
    return setup.landscape ? upright.transposed() : upright;
}

QRectF textArea(const PrintDocument &document, double headerLine, double footerLine)
{
    const PageSetup &setup = document.page;
    const QSizeF paper = paperSize(setup);
    double top = setup.top;
    double bottom = paper.height() - setup.bottom;
    if (!document.header.text.isEmpty())
        top = std::max(top, setup.headerDistance + headerLine * 1.5);
    if (!document.footer.text.isEmpty())
        bottom = std::min(bottom, paper.height() - setup.footerDistance - footerLine * 1.5);
    const double width = paper.width() - setup.left - setup.right;
    const bool offPaper = std::min({setup.left, setup.top, setup.right, setup.bottom}) < 0;
    if (offPaper || width < LeastRoom || bottom - top < LeastRoom)
        throw basic::Error(basic::Fault::NoRoomOnPaper);
    return {QPointF(setup.left, top), QPointF(paper.width() - setup.right, bottom)};
}

std::vector<double> columnEdges(const std::vector<Column> &columns, double left, double right)
{
    const double line = right - left + 2 * CellPadding;
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
    std::vector<double> edges{left - CellPadding};
    for (const Column &column : columns)
        edges.push_back(edges.back() + (column.width == 0 ? share : column.width * scale));
    return edges;
}

QSizeF fittedSize(const Picture &picture, QSizeF room)
{
    const QSizeF size(picture.width, picture.height);
    return size.width() > room.width() || size.height() > room.height() ? size.scaled(room, Qt::KeepAspectRatio) : size;
}

QString outlineTitle(const QString &text)
{
    return printable(text).simplified();
}

QString outlineTitle(const RichParagraph &paragraph)
{
    QString text;
    for (const TextRun &run : paragraph.runs)
        text += run.text;
    return outlineTitle(text);
}

} // namespace kalvenor::print
