// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/printdocument.h"

#include <QRectF>
#include <QSizeF>
#include <vector>

// What of a page stands where, the same for all forms of output; in twips.
namespace kalvenor::print {

constexpr double CellPadding = 70; ///< left and right inside a cell

/// The paper as it is read (landscape is wider than high).
QSizeF paperSize(const PageSetup &setup);

/// The page between its margins, less what header and footer take of it. Needs the heights of their lines.
/// Throws Error(InvalidProcedureCall) where no room for text is left.
QRectF textArea(const PrintDocument &document, double headerLine, double footerLine);

/// Left edge of each column and the right edge of the last. The cells' padding hangs over both margins, so that a
/// table's texts stand flush with the paragraphs.
std::vector<double> columnEdges(const std::vector<Column> &columns, double left, double right);

/// The picture's own size, made smaller in proportion to fit.
QSizeF fittedSize(const Picture &picture, QSizeF room);

/// The text of a heading on one line.
QString outlineTitle(const QString &text);
QString outlineTitle(const RichParagraph &paragraph);

} // namespace kalvenor::print
