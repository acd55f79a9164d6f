// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/pagelayout.h"
#include <memory>
#include <QRectF>
#include <QString>
#include <vector>

namespace kalvenor::settings {

/// Finds a text on the pages of a layout, in slices, so that nobody waits. Upper and lower case count alike; what
/// stands side by side or goes on in the next line is one text, its parts joined by a blank.
class PageSearch {
public:
    struct Match {
        int page = 0;  ///< from 0
        int start = 0; ///< in the page's text
        int length = 0;
    };

    /// Forgets what was found. An empty needle finds nothing.
    void begin(std::shared_ptr<const print::PageLayout> layout, const QString &needle);
    /// Goes on for some milliseconds, one page at least. True once all pages are searched.
    bool advance(int milliseconds);
    bool isFinished() const;

    const QString &needle() const { return m_needle; }
    /// By page and place.
    const std::vector<Match> &matches() const { return m_matches; }
    /// Number of the first match on or behind the page; matches().size() where there is none.
    std::size_t firstFrom(int page) const;
    /// Where a match stands on its page, in twips; it may have several parts.
    struct Area {
        std::size_t match; ///< number in matches()
        QRectF place;
    };
    /// Of all matches of the page.
    std::vector<Area> areas(int page) const;

private:
    std::shared_ptr<const print::PageLayout> m_layout;
    QString m_needle;
    std::size_t m_nextPage = 0;
    std::vector<Match> m_matches;
    QString m_text; ///< of one page, kept for its memory
};

} // namespace kalvenor::settings
