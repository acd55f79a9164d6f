// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QSizeF>

// Where pages of one size stand on an endless sheet, and how large they are shown; pixels of the screen.
namespace kalvenor::settings {

enum class Fit { None, WholePage, PageWidth, TwoPages, Thumbnails };

inline constexpr int SmallestZoom = 10;
inline constexpr int LargestZoom = 400;
/// The next step above or below: 10, 25, 50, … 400 percent.
int nextZoom(int percent, bool larger);

/// Pages in rows, each row centred; numbers count from 0.
class PageGrid {
public:
    static constexpr int Gap = 12;           ///< around pages
    static constexpr int CaptionHeight = 18; ///< below a thumbnail

    PageGrid() = default;
    /// `room` is the part of the sheet that is seen.
    PageGrid(int pages, QSize page, int columns, QSize room, int captionHeight = 0);

    QSize pageSize() const { return m_page; }
    int columns() const { return m_columns; }
    /// At least as large as the room.
    QSize sheet() const { return m_sheet; }
    QRect pageRect(int page) const;
    /// The page at this place, -1 where there is none.
    int pageAt(QPoint place) const;
    /// First and last page of the rows that the stripe from `top` to `bottom` touches; first > last where there is
    /// none.
    std::pair<int, int> pagesBetween(int top, int bottom) const;

private:
    int rows() const { return m_columns > 0 ? (m_pages + m_columns - 1) / m_columns : 0; }

    int m_pages = 0;
    QSize m_page;
    int m_columns = 1;
    int m_rowHeight = 1;
    int m_left = 0;
    int m_top = 0;
    QSize m_sheet;
};

/// How the pages of a paper (twips) are shown in a room.
struct Shown {
    double scale = 0; ///< pixels of the screen a twip
    int columns = 1;
};
/// `actualSize` is the scale at 100 %, `percent` counts for Fit::None.
Shown shownAs(Fit fit, int percent, QSizeF paper, QSize room, double actualSize, int pages);

} // namespace kalvenor::settings
