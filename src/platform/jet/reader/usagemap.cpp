// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/usagemap.h"

#include "platform/jet/reader/cursor.h"
#include "platform/jet/reader/datapage.h"
#include <optional>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint32_t FreePagesMap = 1U << 8; ///< page 1 row 0

std::optional<Bytes> mapRow(const Image &image, std::uint32_t rowPointer)
{
    const RowPointer pointer(rowPointer);
    const DataPage page(image.version(), image.page(pointer.page));
    const std::optional<Slot> slot = page.isData() ? page.slot(pointer.slot) : std::nullopt;
    if (!slot || slot->length < 5 || page.bytes(*slot)[0] > 1)
        return std::nullopt;
    return page.bytes(*slot);
}

/// Calls `visit(bitmap, first page)` for each bitmap of a map, by ascending pages.
template <class Visit>
void visitBitmaps(const Image &image, Bytes map, Visit visit)
{
    if (map[0] == 0) {
        visit(map.subspan(5), std::uint64_t{load32(&map[1])});
        return;
    }
    const std::uint64_t pagesPerBitmap = (std::uint64_t{image.pageSize()} - 4) * 8;
    for (std::size_t i = 0; 1 + 4 * i + 4 <= map.size(); ++i) {
        const Bytes bitmap = image.page(load32(&map[1 + 4 * i]));
        if (!bitmap.empty() && bitmap[0] == static_cast<std::uint8_t>(PageType::UsageMap))
            visit(bitmap.subspan(4), i * pagesPerBitmap);
    }
}

} // namespace

UsageMap readUsageMap(const Image &image, std::uint32_t rowPointer)
{
    UsageMap result;
    const std::optional<Bytes> map = mapRow(image, rowPointer);
    if (!map) {
        result.isThere = false;
        return result;
    }
    visitBitmaps(image, *map, [&](Bytes bitmap, std::uint64_t firstPage) {
        for (std::size_t i = 0; i < bitmap.size(); ++i) {
            for (unsigned bit = 0; bitmap[i] >> bit != 0; ++bit) {
                if ((bitmap[i] >> bit & 1) == 0)
                    continue;
                const std::uint64_t page = firstPage + 8 * i + bit;
                if (page < image.pageCount())
                    result.pages.push_back(static_cast<std::uint32_t>(page));
                else
                    result.goesBeyondEnd = true;
            }
        }
    });
    return result;
}

bool isCutShort(const Image &image)
{
    bool found = false;
    const std::optional<Bytes> map = mapRow(image, FreePagesMap);
    if (!map)
        return false;
    visitBitmaps(image, *map, [&](Bytes bitmap, std::uint64_t firstPage) {
        const std::uint64_t count = image.pageCount();
        std::uint64_t page = count > firstPage ? count - firstPage : 0;
        for (; page < 8 * bitmap.size() && !found; ++page)
            found = (bitmap[page / 8] >> (page % 8) & 1) == 0;
    });
    return found;
}

} // namespace kalvenor::jet
