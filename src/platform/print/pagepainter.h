// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/pagelayout.h"

#include <vector>

class QPainter;

namespace kalvenor::print {

/// Paints pages of one layout on anything: screen, printer, PDF.
class PagePainter {
public:
    explicit PagePainter(const PageLayout &layout) : m_faces(layout.faces()) {}

    /// The painter's unit must be one twip and its origin the paper's top left corner; the paper itself is not painted.
    /// Leaves the painter's pen, font and hints for pictures changed.
    void paint(QPainter &painter, const Page &page);

private:
    std::vector<TextFace> m_faces;
};

} // namespace kalvenor::print
