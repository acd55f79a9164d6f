// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator_pages.h"

#include "platform/basic/error.h"
#include "platform/jet/reader/datapage.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::jet::creating {

namespace {

constexpr std::uint32_t MapPageBits = (PageSize - 4) * 8; ///< pages that one page of type 5 speaks of
constexpr std::uint32_t RowBits = 512;                    ///< pages that a row of usual length speaks of
constexpr std::uint32_t MapsInPage = (PageSize - RowTableStart) / (UsageMaps::MapLength + 2);

void setBit(std::uint8_t *bitmap, std::uint32_t bit)
{
    bitmap[bit / 8] = static_cast<std::uint8_t>(bitmap[bit / 8] | 1u << bit % 8);
}

void startMapPage(std::uint8_t *page)
{
    page[0] = 5;
    page[1] = 1;
}

} // namespace

std::uint32_t PageStore::add()
{
    if (m_count == MaximumPages)
        throw basic::Error(basic::Fault::DatabaseFull);
    if (m_count % ChunkPages == 0)
        m_chunks.push_back(std::make_unique<std::uint8_t[]>(std::size_t{ChunkPages} * PageSize));
    return m_count++;
}

void startDataPage(std::uint8_t *page, std::uint32_t owner)
{
    page[0] = 1;
    page[1] = 1;
    put(page + 2, static_cast<std::uint16_t>(PageSize - RowTableStart));
    put(page + 4, owner);
}

std::uint8_t *addDataRow(std::uint8_t *page, std::uint32_t length)
{
    const std::uint32_t rows = qFromLittleEndian<std::uint16_t>(page + 12);
    const std::uint32_t end =
        rows == 0 ? PageSize : qFromLittleEndian<std::uint16_t>(page + RowTableStart + 2 * (rows - 1));
    const std::uint32_t freeBytes = qFromLittleEndian<std::uint16_t>(page + 2);
    put(page + 2, static_cast<std::uint16_t>(freeBytes - length - 2));
    put(page + 12, static_cast<std::uint16_t>(rows + 1));
    put(page + RowTableStart + 2 * rows, static_cast<std::uint16_t>(end - length));
    return page + end - length;
}

RowPages::Place RowPages::addRow(std::uint32_t length)
{
    const std::uint32_t cost = length + 2;
    if (m_current != 0 && m_freeBytes >= cost && m_rows < MaximumRowsInPage) {
        m_freeBytes -= cost;
        const RowAddress address = m_current * 256 + m_rows++;
        return {address, addDataRow(m_store->page(m_current), length)};
    }
    const std::uint32_t added = m_store->add();
    m_pages.push_back(added);
    startDataPage(m_store->page(added), m_owner);
    const std::uint32_t left = PageSize - RowTableStart - cost;
    // A row that fills its page leaves the page at hand open for smaller ones.
    if (m_current == 0 || left >= m_freeBytes || m_rows == MaximumRowsInPage || m_owner != LongValueOwner) {
        m_current = added;
        m_freeBytes = left;
        m_rows = 1;
    }
    return {added * 256, addDataRow(m_store->page(added), length)};
}

std::vector<std::uint32_t> RowPages::pagesWithSpace() const
{
    constexpr std::uint32_t worthALook = 100;
    if (m_current == 0 || m_freeBytes <= worthALook || m_rows == MaximumRowsInPage)
        return {};
    return {m_current};
}

UsageMaps::UsageMaps(PageStore &store, std::uint32_t mapCount) : m_store(&store)
{
    for (std::uint32_t map = 0; map < mapCount; ++map) {
        if (map % MapsInPage == 0) {
            m_pages.push_back(store.add());
            startDataPage(store.page(m_pages.back()), 0);
        }
        addDataRow(store.page(m_pages.back()), MapLength);
    }
}

RowAddress UsageMaps::address(std::uint32_t map) const
{
    return m_pages[map / MapsInPage] * 256 + map % MapsInPage;
}

std::uint8_t *UsageMaps::row(std::uint32_t map)
{
    return m_store->page(m_pages[map / MapsInPage]) + PageSize - (map % MapsInPage + 1) * MapLength;
}

void UsageMaps::fill(std::uint32_t map, std::span<const std::uint32_t> pages)
{
    if (pages.empty())
        return;
    std::uint8_t *const bytes = row(map);
    const std::uint32_t first = pages.front() / 8 * 8;
    if (pages.back() - first < RowBits) {
        put(bytes + 1, first);
        for (const std::uint32_t page : pages)
            setBit(bytes + 5, page - first);
        return;
    }
    bytes[0] = 1;
    std::uint8_t *bitmap = nullptr;
    std::uint32_t bitmapPart = 0;
    for (const std::uint32_t page : pages) {
        const std::uint32_t part = page / MapPageBits;
        if (bitmap == nullptr || part != bitmapPart) {
            const std::uint32_t mapPage = m_store->add();
            put(bytes + 1 + 4 * part, mapPage);
            startMapPage(m_store->page(mapPage));
            bitmap = m_store->page(mapPage) + 4;
            bitmapPart = part;
        }
        setBit(bitmap, page % MapPageBits);
    }
}

void fillGlobalMaps(PageStore &store)
{
    constexpr std::uint32_t longestRowBits = 8000;
    constexpr std::uint32_t firstMapPage = 1;
    std::vector<std::uint32_t> mapPages;
    if (store.count() > longestRowBits) {
        while (mapPages.size() * MapPageBits < store.count())
            mapPages.push_back(store.add());
    }
    std::uint8_t *const page = store.page(firstMapPage);
    startDataPage(page, 1);
    const auto markFree = [&store](std::uint8_t *bitmap, std::uint32_t first, std::uint32_t bits) {
        for (std::uint32_t bit = 0; bit < bits; ++bit) {
            if (first + bit >= store.count())
                setBit(bitmap, bit);
        }
    };
    if (mapPages.empty()) {
        const std::uint32_t bits = std::max(RowBits, (store.count() + 7) / 8 * 8);
        markFree(addDataRow(page, 5 + bits / 8) + 5, 0, bits);
    } else {
        std::uint8_t *const row = addDataRow(page, UsageMaps::MapLength);
        row[0] = 1;
        for (std::uint32_t part = 0; part < mapPages.size(); ++part) {
            put(row + 1 + 4 * part, mapPages[part]);
            std::uint8_t *const mapPage = store.page(mapPages[part]);
            startMapPage(mapPage);
            markFree(mapPage + 4, part * MapPageBits, MapPageBits);
        }
    }
    addDataRow(page, UsageMaps::MapLength);
}

} // namespace kalvenor::jet::creating
