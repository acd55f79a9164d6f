// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/pagegrid.h"

#include <algorithm>
#include <utility>

namespace kalvenor::settings {

namespace {

constexpr int ZoomStep = 25;
constexpr double ThumbnailTwips = 1700;  ///< width of a thumbnail at actual size
constexpr double LargestSheet = 1 << 30; ///< pixels that scroll bars can still count

} // namespace

int nextZoom(int percent, bool larger)
{
    const int next = larger ? (percent / ZoomStep + 1) * ZoomStep : (percent - 1) / ZoomStep * ZoomStep;
    return std::clamp(next, SmallestZoom, LargestZoom);
}

PageGrid::PageGrid(int pages, QSize page, int columns, QSize room, int captionHeight)
    : m_pages(pages), m_page(page), m_columns(std::max(columns, 1)), m_rowHeight(page.height() + captionHeight + Gap)
{
    const int width = m_columns * (page.width() + Gap) + Gap;
    const int height = rows() * m_rowHeight + Gap;
    m_sheet = QSize(width, height).expandedTo(room);
    m_left = (m_sheet.width() - width) / 2 + Gap;
    m_top = (rows() == 1 && captionHeight == 0 ? (m_sheet.height() - height) / 2 : 0) + Gap;
}

QRect PageGrid::pageRect(int page) const
{
    return {QPoint(m_left + page % m_columns * (m_page.width() + Gap), m_top + page / m_columns * m_rowHeight), m_page};
}

int PageGrid::pageAt(QPoint place) const
{
    const auto [first, last] = pagesBetween(place.y(), place.y());
    for (int page = first; page <= last; ++page) {
        if (pageRect(page).contains(place))
            return page;
    }
    return -1;
}

std::pair<int, int> PageGrid::pagesBetween(int top, int bottom) const
{
    if (m_pages == 0 || bottom < m_top)
        return {0, -1};
    const int firstRow = std::max(0, (top - m_top) / m_rowHeight);
    const int lastRow = (bottom - m_top) / m_rowHeight;
    return {std::min(firstRow * m_columns, m_pages), std::min((lastRow + 1) * m_columns, m_pages) - 1};
}

Shown shownAs(Fit fit, int percent, QSizeF paper, QSize room, double actualSize, int pages)
{
    const auto widthScale = [&](int columns) {
        return (room.width() - (columns + 1) * PageGrid::Gap) / (columns * paper.width());
    };
    const double heightScale = (room.height() - 2 * PageGrid::Gap) / paper.height();
    Shown shown;
    switch (fit) {
    case Fit::None:
        shown.scale = actualSize * percent / 100;
        break;
    case Fit::WholePage:
        shown.scale = std::min(widthScale(1), heightScale);
        break;
    case Fit::PageWidth:
        shown.scale = widthScale(1);
        break;
    case Fit::TwoPages:
        shown.columns = 2;
        shown.scale = std::min(widthScale(2), heightScale);
        break;
    case Fit::Thumbnails:
        shown.scale = actualSize * ThumbnailTwips / std::max(paper.width(), paper.height() * 0.75);
        const double width = paper.width() * shown.scale + PageGrid::Gap;
        shown.columns = std::max(1, static_cast<int>((room.width() - PageGrid::Gap) / width));
        break;
    }
    const int rows = std::max(1, (pages + shown.columns - 1) / shown.columns);
    const double largest = std::min(actualSize * LargestZoom / 100, (LargestSheet / rows - 100) / paper.height());
    shown.scale = std::clamp(shown.scale, actualSize * 0.02, std::max(largest, actualSize * 0.02));
    return shown;
}

} // namespace kalvenor::settings
