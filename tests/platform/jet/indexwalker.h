// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/cursor.h"
#include "platform/jet/reader/image.h"
#include <cstdint>
#include <gtest/gtest.h>
#include <QByteArray>
#include <QtEndian>
#include <set>
#include <vector>

namespace kalvenor::jet::test {

/// Reads every page of a Jet 4 index and checks what holds for any sound one.
class IndexWalker {
public:
    struct Entry {
        QByteArray key; ///< without the row
        std::uint32_t page = 0;
        std::uint8_t slot = 0;
    };

    IndexWalker(const Image &image, std::uint32_t definitionPage, std::uint32_t root)
        : m_image(image), m_owner(definitionPage)
    {
        depth = visit(root).depth;
        for (std::size_t i = 1; i < leafEntries.size(); ++i)
            EXPECT_LT(sortable(leafEntries[i - 1]), sortable(leafEntries[i])) << "leaf entry " << i;
        for (std::size_t i = 0; i < m_leaves.size(); ++i) {
            EXPECT_EQ(load32(&page(m_leaves[i])[12]), i == 0 ? 0U : m_leaves[i - 1]);
            EXPECT_EQ(load32(&page(m_leaves[i])[16]), i + 1 == m_leaves.size() ? 0U : m_leaves[i + 1]);
        }
    }

    std::vector<Entry> leafEntries; ///< from left to right
    std::set<std::uint32_t> pages;
    int depth = 0;

private:
    struct Visited {
        int depth;
        QByteArray last; ///< the last leaf entry below, row included
    };

    std::span<const std::uint8_t> page(std::uint32_t number) const { return m_image.page(number); }

    static QByteArray sortable(const Entry &entry)
    {
        QByteArray bytes = entry.key;
        for (const int shift : {16, 8, 0})
            bytes += static_cast<char>(entry.page >> shift);
        return bytes + static_cast<char>(entry.slot);
    }

    std::vector<QByteArray> entriesOf(std::span<const std::uint8_t> bytes) const
    {
        std::vector<QByteArray> entries;
        const auto *const area = reinterpret_cast<const char *>(bytes.data() + 480);
        const int prefixLength = load16(&bytes[24]);
        int start = 0;
        for (int bit = 1; bit <= 3616; ++bit) {
            if ((bytes[27 + static_cast<std::size_t>(bit) / 8] >> bit % 8 & 1) == 0)
                continue;
            const QByteArray prefix = entries.empty() ? QByteArray() : entries.front().left(prefixLength);
            entries.push_back(prefix + QByteArray(area + start, bit - start));
            start = bit;
        }
        EXPECT_EQ(load16(&bytes[2]), 3616 - start);
        return entries;
    }

    Visited visit(std::uint32_t number)
    {
        const auto bytes = page(number);
        EXPECT_TRUE(pages.insert(number).second) << "page " << number << " twice";
        if (bytes.empty() || pages.size() > m_image.pageCount()) {
            ADD_FAILURE() << "no page " << number;
            return {0, {}};
        }
        EXPECT_EQ(load32(&bytes[4]), m_owner);
        const std::vector<QByteArray> entries = entriesOf(bytes);
        if (bytes[0] == 4) {
            m_leaves.push_back(number);
            for (const QByteArray &entry : entries) {
                const QByteArray row = entry.right(4);
                leafEntries.push_back({entry.chopped(4), qFromBigEndian<quint32>(row.constData()) >> 8,
                                       static_cast<std::uint8_t>(row.at(3))});
            }
            return {1, entries.empty() ? QByteArray() : entries.back()};
        }
        EXPECT_EQ(bytes[0], 3);
        EXPECT_FALSE(entries.empty());
        Visited last{0, {}};
        for (const QByteArray &entry : entries) {
            const Visited child = visit(qFromBigEndian<quint32>(entry.right(4).constData()));
            EXPECT_EQ(child.last, entry.chopped(4)) << "page " << number;
            EXPECT_TRUE(last.depth == 0 || last.depth == child.depth);
            last = child;
        }
        if (const std::uint32_t tail = load32(&bytes[20]); tail != 0)
            last = visit(tail);
        return {last.depth + 1, last.last};
    }

    const Image &m_image;
    std::uint32_t m_owner;
    std::vector<std::uint32_t> m_leaves;
};

} // namespace kalvenor::jet::test
