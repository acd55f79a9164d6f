// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/pagelayout.h"

#include <optional>
#include <vector>

namespace kalvenor::print {

/// What is never cut across pages: one line of text, the n-th lines of a row's cells, or a picture. Places count from
/// its own top, x from the paper's left edge.
struct Strip {
    double spaceBefore = 0; ///< left out at the top of a page
    double height = 0;
    bool keepWithNext = false;
    std::vector<PlacedGround> grounds;
    std::vector<PlacedText> texts;
    std::vector<PlacedPicture> pictures;
    std::vector<PlacedHeading> headings;
};

/// Puts strips on pages, one below the other.
class PageFlow {
public:
    PageFlow(double top, double bottom);

    void add(Strip strip);
    /// What is repeated on top of each page from the next one on; empty ends the repetition. Holds once the strips that
    /// are kept together so far have their place.
    void setHeading(std::vector<Strip> heading);
    void breakPage();
    /// What a page has left for a strip that is kept with those added last, `spaceBefore` it; at least half a page.
    double roomForNext(double spaceBefore) const;
    /// The pages; the flow is empty afterwards.
    std::vector<Page> take();

private:
    void placeGroup();
    void place(Strip &&strip);
    void newPage();

    double m_top;
    double m_bottom;
    double m_y;
    bool m_pageIsBare = true;   ///< nothing but a repeated heading yet
    std::vector<Strip> m_group; ///< kept together, not placed yet
    std::vector<Strip> m_heading;
    std::optional<std::vector<Strip>> m_nextHeading;
    std::vector<Page> m_pages;
};

} // namespace kalvenor::print
