// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/usagemap.h"

#include "platform/jet/reader/cursor.h"
#include "platform/jet/reader/datapage.h"
#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

using Bytes = std::span<const std::uint8_t>;

std::optional<Bytes> mapRow(const Image &image, std::uint32_t rowPointer)
{
    const RowPointer pointer(rowPointer);
    const DataPage page(image.version(), image.page(pointer.page));
    const std::optional<Slot> slot = page.isData() ? page.slot(pointer.slot) : std::nullopt;
    if (!slot || slot->length < 5 || page.bytes(*slot)[0] > 1)
        return std::nullopt;
    return page.bytes(*slot);
}

/// Calls `visit(bitmap, first page)` for each bitmap of a map, by ascending pages, and `needs(page)` for the pages they
/// lie on.
template <class Visit, class Needs>
void visitBitmaps(const Image &image, Bytes map, Visit visit, Needs needs)
{
    if (map[0] == 0) {
        visit(map.subspan(5), std::uint64_t{load32(&map[1])});
        return;
    }
    const std::uint64_t pagesPerBitmap = (std::uint64_t{image.pageSize()} - 4) * 8;
    for (std::size_t i = 0; 1 + 4 * i + 4 <= map.size(); ++i) {
        needs(load32(&map[1 + 4 * i]));
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
    const auto needs = [&result](std::uint64_t page) {
        result.end = std::max(result.end, static_cast<std::uint32_t>(std::min<std::uint64_t>(page, MostPages)) + 1);
    };
    const auto visit = [&](Bytes bitmap, std::uint64_t firstPage) {
        for (std::size_t i = 0; i < bitmap.size(); ++i) {
            for (unsigned bit = 0; bitmap[i] >> bit != 0; ++bit) {
                if ((bitmap[i] >> bit & 1) == 0)
                    continue;
                const std::uint64_t page = firstPage + 8 * i + bit;
                needs(page);
                if (page < image.pageCount())
                    result.pages.push_back(static_cast<std::uint32_t>(page));
            }
        }
    };
    visitBitmaps(image, *map, visit, needs);
    return result;
}

} // namespace kalvenor::jet
