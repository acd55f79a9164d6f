// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/cursor.h"
#include "platform/jet/reader/format.h"
#include <cstdint>
#include <optional>
#include <span>

// Data pages and their row slots, which also hold usage maps and long values.
namespace kalvenor::jet {

enum class PageType : std::uint8_t { Header = 0, Data = 1, Definition = 2, IndexNode = 3, IndexLeaf = 4, UsageMap = 5 };
/// What a page's first byte may be; a page of zeros was never written.
constexpr bool isPageType(std::uint8_t byte)
{
    return byte >= static_cast<std::uint8_t>(PageType::Data) && byte <= static_cast<std::uint8_t>(PageType::UsageMap);
}

/// The owner field of pages that hold long values: "LVAL".
constexpr std::uint32_t LongValueOwner = 0x4c41564c;
/// Rows are addressed by one byte.
constexpr std::uint32_t MaxSlots = 256;

/// A place anywhere in the format: page * 256 + row.
struct RowPointer {
    std::uint32_t page = 0;
    std::uint8_t slot = 0;
    explicit RowPointer(std::uint32_t value) : page(value >> 8), slot(static_cast<std::uint8_t>(value & 0xff)) {}
};

struct Slot {
    static constexpr std::uint16_t Overflow = 0x4000; ///< the row is a pointer to the record
    static constexpr std::uint16_t Hidden = 0x8000;   ///< deleted, or the target of an overflow pointer
    static constexpr std::uint16_t Unknown = 0x2000;  ///< never set in sound files

    std::uint16_t flags = 0;
    std::uint16_t start = 0;
    std::uint16_t length = 0;
    bool operator==(const Slot &) const = default;
};

class DataPage {
public:
    /// `page` may be empty or of any type: it is a data page only if isData().
    DataPage(Version version, std::span<const std::uint8_t> page)
        : m_page(page), m_slotTable(version == Version::Jet4 ? 14 : 10)
    {
    }

    bool isData() const { return m_page.size() >= 2048 && m_page[0] == static_cast<std::uint8_t>(PageType::Data); }
    bool isDataOf(std::uint32_t owner) const { return isData() && load32(&m_page[4]) == owner; }
    /// As the page states it, also where that cannot be.
    std::uint32_t statedSlots() const { return load16(&m_page[m_slotTable - 2]); }
    bool slotTableFits() const { return slotTableEnd() <= m_page.size(); }

    /// Nothing where the slot is not there or its bytes would lie outside the room for rows. Only for data pages.
    std::optional<Slot> slot(std::uint32_t index) const
    {
        const std::size_t tableEnd = slotTableEnd();
        if (index >= statedSlots() || tableEnd > m_page.size())
            return std::nullopt;
        const std::uint16_t word = load16(&m_page[m_slotTable + 2 * index]);
        const std::size_t end =
            index == 0 ? m_page.size() : std::size_t{load16(&m_page[m_slotTable + 2 * (index - 1)])} & OffsetMask;
        const std::size_t start = word & OffsetMask;
        if (start < tableEnd || start > end || end > m_page.size())
            return std::nullopt;
        return Slot{static_cast<std::uint16_t>(word & ~OffsetMask), static_cast<std::uint16_t>(start),
                    static_cast<std::uint16_t>(end - start)};
    }
    std::span<const std::uint8_t> bytes(const Slot &slot) const { return m_page.subspan(slot.start, slot.length); }

private:
    static constexpr std::uint16_t OffsetMask = 0x1fff;

    std::size_t slotTableEnd() const { return m_slotTable + 2 * std::size_t{statedSlots()}; }

    std::span<const std::uint8_t> m_page;
    std::size_t m_slotTable;
};

/// Where a record lies that is reached from a slot of a scan.
struct RecordSlot {
    std::uint32_t page = 0;
    std::uint8_t index = 0;
    Slot slot;
};

/// Follows overflow pointers from a slot that carries Slot::Overflow. `pageOf(number)` gives a page's bytes (empty for
/// none) that stay valid until its next call. Nothing where the pointer is short, leads out of the table's data pages
/// or goes on for more than 8 hops.
template <class PageOf>
std::optional<RecordSlot> followOverflow(Version version, std::uint32_t owner, std::span<const std::uint8_t> row,
                                         PageOf pageOf)
{
    for (int hop = 0; hop < 8; ++hop) {
        if (row.size() < 4)
            return std::nullopt;
        const RowPointer target(load32(row.data()));
        const DataPage page(version, pageOf(target.page));
        if (!page.isDataOf(owner))
            return std::nullopt;
        const std::optional<Slot> slot = page.slot(target.slot);
        if (!slot || (slot->flags & Slot::Unknown) != 0)
            return std::nullopt;
        if ((slot->flags & Slot::Overflow) == 0)
            return RecordSlot{target.page, target.slot, *slot};
        row = page.bytes(*slot);
    }
    return std::nullopt;
}

} // namespace kalvenor::jet
