// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/usagemap.h"

#include "platform/jet/cursor.h"
#include "platform/jet/datapage.h"

namespace kalvenor::jet {

namespace {

void addPages(std::span<const std::uint8_t> bitmap, std::uint64_t firstPage, std::uint32_t pageCount,
              std::vector<std::uint32_t> &pages)
{
    std::uint64_t page = firstPage;
    for (std::size_t i = 0; i < bitmap.size() && page < pageCount; ++i, page += 8) {
        for (unsigned bit = 0; bitmap[i] >> bit != 0; ++bit) {
            if ((bitmap[i] >> bit & 1) != 0 && page + bit < pageCount)
                pages.push_back(static_cast<std::uint32_t>(page + bit));
        }
    }
}

} // namespace

std::vector<std::uint32_t> pagesOfUsageMap(const Image &image, std::uint32_t rowPointer, QString *problem)
{
    const RowPointer pointer(rowPointer);
    const DataPage page(image.version(), image.page(pointer.page));
    const std::optional<Slot> slot = page.isData() ? page.slot(pointer.slot) : std::nullopt;
    if (!slot || slot->length < 5) {
        *problem = QStringLiteral("the usage map at page %1 row %2 is not there").arg(pointer.page).arg(pointer.slot);
        return {};
    }
    const std::span<const std::uint8_t> map = page.bytes(*slot);
    std::vector<std::uint32_t> pages;
    if (map[0] == 0) {
        addPages(map.subspan(5), load32(&map[1]), image.pageCount(), pages);
        return pages;
    }
    if (map[0] != 1) {
        *problem = QStringLiteral("the usage map at page %1 row %2 is of the unknown kind %3")
                       .arg(pointer.page)
                       .arg(pointer.slot)
                       .arg(map[0]);
        return {};
    }
    const std::uint64_t pagesPerBitmap = (std::uint64_t{image.pageSize()} - 4) * 8;
    for (std::size_t i = 0; 1 + 4 * i + 4 <= map.size(); ++i) {
        const std::span<const std::uint8_t> bitmap = image.page(load32(&map[1 + 4 * i]));
        if (!bitmap.empty() && bitmap[0] == static_cast<std::uint8_t>(PageType::UsageMap))
            addPages(bitmap.subspan(4), i * pagesPerBitmap, image.pageCount(), pages);
    }
    return pages;
}

} // namespace kalvenor::jet
