// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/printdocument.h"

#include <QByteArray>
#include <QRectF>
#include <QStringView>
#include <vector>

namespace kalvenor::print {

/// Adds a text for an element's content; line ends become <br/>.
void appendHtmlText(QByteArray &out, QStringView text);
/// A text between quotation marks.
QByteArray htmlAttribute(QStringView text);
/// A string of CSS in its quotation marks, free of the characters that HTML knows.
QByteArray cssString(QStringView text);
/// "12.5pt"
QByteArray cssLength(double twips);

/// The style sheet: classes s0, s1 … for the document's styles, t0, t1 … for its kinds of tables.
class HtmlStyle {
public:
    HtmlStyle(const PrintDocument &document, const QRectF &area);

    const QByteArray &sheet() const { return m_sheet; }
    /// The number of the table's class.
    std::size_t tableClass(const std::vector<Column> &columns) const;

private:
    void addPage(const PrintDocument &document, const QRectF &area);
    void addStyle(const TextStyle &style, std::size_t number);
    void addTable(const std::vector<Column> &columns, std::size_t number);

    QByteArray m_sheet;
    std::vector<std::vector<Column>> m_tables; ///< without their widths
};

} // namespace kalvenor::print
