// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pageflow.h"

#include "platform/basic/error.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::print {

PageFlow::PageFlow(double top, double bottom) : m_top(top), m_bottom(bottom), m_y(top), m_pages(1)
{
}

void PageFlow::add(Strip strip)
{
    if (strip.height > m_bottom - m_top)
        throw basic::Error(basic::Fault::LineTooHigh);
    const bool complete = !strip.keepWithNext;
    m_group.push_back(std::move(strip));
    if (complete)
        placeGroup();
}

void PageFlow::setHeading(std::vector<Strip> heading)
{
    double height = 0;
    for (const Strip &strip : heading)
        height += strip.spaceBefore + strip.height;
    if (height > (m_bottom - m_top) / 2)
        heading.clear();
    m_nextHeading = std::move(heading);
    if (m_group.empty())
        m_heading = *std::exchange(m_nextHeading, {});
}

void PageFlow::breakPage()
{
    placeGroup();
    newPage();
}

double PageFlow::roomForNext(double spaceBefore) const
{
    double taken = m_group.empty() ? 0 : spaceBefore;
    for (const Strip &strip : m_group)
        taken += (&strip == &m_group.front() ? 0 : strip.spaceBefore) + strip.height;
    return std::max(m_bottom - m_top - taken, (m_bottom - m_top) / 2);
}

std::vector<Page> PageFlow::take()
{
    placeGroup();
    return std::exchange(m_pages, std::vector<Page>(1));
}

void PageFlow::placeGroup()
{
    double height = 0;
    for (const Strip &strip : m_group)
        height += (&strip == &m_group.front() && m_pageIsBare ? 0 : strip.spaceBefore) + strip.height;
    if (!m_pageIsBare && m_y + height > m_bottom)
        newPage();
    for (Strip &strip : m_group)
        place(std::move(strip));
    m_group.clear();
    if (m_nextHeading)
        m_heading = *std::exchange(m_nextHeading, {});
}

void PageFlow::place(Strip &&strip)
{
    // Reached within a group only where the group is higher than a page.
    if (!m_pageIsBare && m_y + strip.spaceBefore + strip.height > m_bottom)
        newPage();
    if (m_y > m_top)
        m_y += strip.spaceBefore;
    Page &page = m_pages.back();
    for (PlacedGround &ground : strip.grounds) {
        ground.area.translate(0, m_y);
        page.grounds.push_back(ground);
    }
    for (PlacedText &text : strip.texts) {
        text.baseline += static_cast<float>(m_y);
        page.texts.push_back(std::move(text));
    }
    for (PlacedPicture &picture : strip.pictures) {
        picture.area.translate(0, m_y);
        page.pictures.push_back(std::move(picture));
    }
    for (PlacedHeading &heading : strip.headings) {
        heading.y += m_y;
        page.headings.push_back(std::move(heading));
    }
    m_y += strip.height;
    m_pageIsBare = false;
}

void PageFlow::newPage()
{
    m_pages.emplace_back();
    m_y = m_top;
    m_pageIsBare = true;
    for (const Strip &strip : m_heading)
        place(Strip(strip));
    m_pageIsBare = true;
}

} // namespace kalvenor::print
