// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/pageflow.h"

#include <vector>

namespace kalvenor::print {

/// Turns a document's blocks into strips; they are visited in their order.
class BlockSetter {
public:
    BlockSetter(const std::vector<TextFace> &faces, double left, double right, PageFlow &flow)
        : m_faces(faces), m_left(left), m_right(right), m_flow(flow)
    {
    }

    void operator()(const Paragraph &paragraph);
    void operator()(const RichParagraph &paragraph);
    void operator()(const Picture &picture);
    void operator()(const TableStart &table);
    void operator()(const TableRow &row);
    void operator()(const PageBreak &);

private:
    const TextFace &faceOf(StyleId style) const { return m_faces[static_cast<std::size_t>(style)]; }
    void endTable();
    template <typename P>
    void addLines(std::vector<Strip> &lines, const P &paragraph);
    void setRow(const std::vector<Cell> &cells, double spaceBefore, std::vector<Strip> &strips) const;
    void setLine(Strip &strip, QString line, StyleId style, Alignment alignment, bool goesOn, double left, double right,
                 double baseline) const;
    void spreadLine(Strip &strip, const QString &line, StyleId style, double left, double rest, double baseline) const;

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

} // namespace kalvenor::print
