// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <QtEndian>
#include <span>
#include <vector>

// Pages of a database that is being made, and what is common to all kinds of them. Jet 4 throughout.
namespace kalvenor::jet::creating {

inline constexpr std::uint32_t PageSize = 4096;
inline constexpr std::uint32_t MaximumPages = 524'288; ///< 2 GiB
inline constexpr std::uint32_t RowTableStart = 14;
inline constexpr std::uint32_t MaximumRowsInPage = 255;

template <typename Number>
void put(std::uint8_t *to, Number number)
{
    qToLittleEndian(number, to);
}

/// Page × 256 + row, as the format names a row anywhere.
using RowAddress = std::uint32_t;

/// Pages in memory; an address stays valid while pages are added.
class PageStore {
public:
    /// The number of a new page of zeros. Throws Error(InvalidProcedureCall) where the file would pass 2 GiB.
    std::uint32_t add();
    std::uint32_t count() const { return m_count; }
    std::uint8_t *page(std::uint32_t number) { return m_chunks[number / ChunkPages].get() + offset(number); }
    const std::uint8_t *page(std::uint32_t number) const
    {
        return m_chunks[number / ChunkPages].get() + offset(number);
    }

private:
    static constexpr std::uint32_t ChunkPages = 64;
    static std::size_t offset(std::uint32_t number) { return std::size_t{number % ChunkPages} * PageSize; }

    std::vector<std::unique_ptr<std::uint8_t[]>> m_chunks;
    std::uint32_t m_count = 0;
};

/// The pages of one table, or of one long-value column, filled with rows in order.
class RowPages {
public:
    /// `owner` is the page of the table's definition, or LongValueOwner.
    RowPages(PageStore &store, std::uint32_t owner) : m_store(&store), m_owner(owner) {}

    /// Room for a row of this length (at most maximumRowLength), and where it lies.
    struct Place {
        RowAddress address;
        std::uint8_t *bytes;
    };
    Place addRow(std::uint32_t length);

    const std::vector<std::uint32_t> &pages() const { return m_pages; }
    /// The page that takes the next row, where it still has room worth a look.
    std::vector<std::uint32_t> pagesWithSpace() const;

private:
    PageStore *m_store;
    std::uint32_t m_owner;
    std::vector<std::uint32_t> m_pages; ///< ascending
    std::uint32_t m_current = 0;        ///< 0: none yet
    std::uint32_t m_freeBytes = 0;
    std::uint32_t m_rows = 0;
};

/// The usage maps of one table: rows of 69 bytes in data pages of their own.
class UsageMaps {
public:
    UsageMaps(PageStore &store, std::uint32_t mapCount);

    RowAddress address(std::uint32_t map) const;
    /// Names the pages (ascending) in the map; adds pages of type 5 where the row cannot hold them.
    void fill(std::uint32_t map, std::span<const std::uint32_t> pages);

    static constexpr std::uint32_t MapLength = 69;

private:
    std::uint8_t *row(std::uint32_t map);

    PageStore *m_store;
    std::vector<std::uint32_t> m_pages;
};

/// Makes an empty data page of a new page.
void startDataPage(std::uint8_t *page, std::uint32_t owner);
/// Adds a row at the end of a data page's rows; the caller knows that it fits.
std::uint8_t *addDataRow(std::uint8_t *page, std::uint32_t length);

/// Fills page 1, which says which pages are free: none, and all beyond the end. May add pages of type 5.
void fillGlobalMaps(PageStore &store);

} // namespace kalvenor::jet::creating
