// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/longvalue.h"

#include "platform/jet/reader/cursor.h"
#include "platform/jet/reader/datapage.h"
#include <algorithm>

namespace kalvenor::jet {

namespace {

using Bytes = std::span<const std::uint8_t>;

enum class Kind : std::uint8_t { Chain = 0, SingleRow = 1, Inline = 2, Unknown = 3 };

std::optional<Bytes> longValueRow(const Image &image, std::uint32_t rowPointer)
{
    const RowPointer pointer(rowPointer);
    const DataPage page(image.version(), image.page(pointer.page));
    if (!page.isDataOf(LongValueOwner))
        return std::nullopt;
    const std::optional<Slot> slot = page.slot(pointer.slot);
    if (!slot || slot->flags != 0)
        return std::nullopt;
    return page.bytes(*slot);
}

/// Loops are found by looking back at a link whose distance doubles (Brent's method), so that a value costs no more
/// than its chain is long.
void readChain(const Image &image, std::uint32_t first, std::size_t length, std::vector<std::uint8_t> &into,
               basic::Fault *problem)
{
    into.clear();
    std::uint32_t next = first;
    std::uint32_t lookedBackAt = 0;
    std::uint32_t lookAgainAfter = 1;
    for (std::uint32_t links = 0; into.size() < length; ++links) {
        const std::optional<Bytes> row = next == 0 ? std::nullopt : longValueRow(image, next);
        if (!row || row->size() <= 4) {
            *problem = next == 0 ? basic::Fault::WordLongTooShort : basic::Fault::WordLongPartMissing;
            return;
        }
        const Bytes part = row->subspan(4, std::min(row->size() - 4, length - into.size()));
        into.insert(into.end(), part.begin(), part.end());
        next = load32(row->data());
        if (next != 0 && next == lookedBackAt) {
            *problem = basic::Fault::WordLongCircle;
            return;
        }
        if (links == lookAgainAfter) {
            lookedBackAt = next;
            lookAgainAfter *= 2;
        }
    }
}

} // namespace

std::optional<Bytes> longValue(const Image &image, Bytes field, std::vector<std::uint8_t> &scratch,
                               basic::Fault *problem)
{
    if (field.empty())
        return field;
    if (field.size() < 12) {
        *problem = basic::Fault::WordLongHead;
        return std::nullopt;
    }
    const std::uint32_t word = load32(field.data());
    const std::uint32_t rowPointer = load32(&field[4]);
    const std::size_t length = word & 0x3fffffff;
    switch (static_cast<Kind>(word >> 30)) {
    case Kind::Inline: {
        const Bytes rest = field.subspan(12);
        if (length > rest.size())
            *problem = basic::Fault::WordLongTooShort;
        return rest.first(std::min(length, rest.size()));
    }
    case Kind::SingleRow: {
        if (length == 0 && rowPointer == 0)
            return Bytes(field.data(), 0);
        const std::optional<Bytes> row = longValueRow(image, rowPointer);
        if (!row) {
            *problem = basic::Fault::WordLongPartMissing;
            return std::nullopt;
        }
        if (length > row->size())
            *problem = basic::Fault::WordLongTooShort;
        return row->first(std::min(length, row->size()));
    }
    case Kind::Chain:
        readChain(image, rowPointer, length, scratch, problem);
        if (scratch.empty() && length > 0)
            return std::nullopt;
        return Bytes(scratch);
    case Kind::Unknown:
        break;
    }
    *problem = basic::Fault::WordLongKind;
    return std::nullopt;
}

} // namespace kalvenor::jet
