// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/generalorder.h"

#include "platform/jet/order/sortkey.h"
#include <algorithm>
#include <cstring>
#include <QtEndian>
#include <span>

namespace kalvenor::dao {

namespace {

constexpr std::size_t Window = 8; ///< bytes of a key that are compared at once

struct Entry {
    quint64 bytes = 0; ///< the window at hand, big-endian, zeros behind the key's end
    quint32 key = 0;   ///< number of the key
    quint32 row = 0;
};

class KeySorter {
public:
    std::vector<std::uint8_t> arena; ///< all keys, one behind the other
    std::vector<std::size_t> ends;   ///< key i ends here and begins where key i - 1 ends

    /// Sorts by the bytes from `depth` on: first by one window, then each run of equal ones by the next. Comparisons
    /// stay within the entries; a key's further bytes are read once for each window.
    void sort(std::span<Entry> entries, std::size_t depth) const
    {
        bool more = false;
        for (Entry &entry : entries) {
            const std::size_t begin = entry.key == 0 ? 0 : ends[entry.key - 1];
            const std::size_t length = ends[entry.key] - begin;
            entry.bytes = length > depth ? load(begin + depth, length - depth) : 0;
            more |= length > depth + Window;
        }
        const auto before = [](const Entry &left, const Entry &right) {
            return left.bytes != right.bytes ? left.bytes < right.bytes : left.row < right.row;
        };
        if (!std::is_sorted(entries.begin(), entries.end(), before))
            std::sort(entries.begin(), entries.end(), before);
        if (!more)
            return;
        for (std::size_t from = 0; from < entries.size();) {
            std::size_t to = from + 1;
            while (to < entries.size() && entries[to].bytes == entries[from].bytes)
                ++to;
            if (to - from > 1)
                sort(entries.subspan(from, to - from), depth + Window);
            from = to;
        }
    }

private:
    quint64 load(std::size_t at, std::size_t available) const
    {
        quint64 bytes = 0;
        std::memcpy(&bytes, arena.data() + at, std::min(available, Window));
        return qFromBigEndian(bytes);
    }
};

} // namespace

std::vector<quint32> generalOrder(const jet::Table &table, int column)
{
    const quint32 count = table.rowCount();
    KeySorter sorter;
    std::vector<Entry> entries;
    std::vector<quint32> order;
    sorter.arena.reserve(static_cast<std::size_t>(count) * 32);
    sorter.ends.reserve(count);
    entries.reserve(count);
    order.reserve(count);
    QString buffer;
    for (quint32 row = 0; row < count; ++row) {
        if (table.isNull(row, column)) {
            order.push_back(row);
            continue;
        }
        jet::appendGeneralKey(table.text(row, column, buffer), sorter.arena);
        entries.push_back({0, static_cast<quint32>(sorter.ends.size()), row});
        sorter.ends.push_back(sorter.arena.size());
    }
    sorter.sort(entries, 0);
    for (const Entry &entry : entries)
        order.push_back(entry.row);
    return order;
}

} // namespace kalvenor::dao
