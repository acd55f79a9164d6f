// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/encoding.h"
#include <cstdint>
#include <QByteArray>
#include <vector>

// A small Jet 3 database, written byte by byte: the catalogue and one table `Daten` with Counter, Markierung and Name.
namespace kalvenor::testing {

class Jet3File {
public:
    static constexpr std::size_t PageSize = 2048;

    struct Row {
        std::int32_t counter = 0;
        bool mark = false;
        QByteArray name;
        QByteArray place;
    };

    explicit Jet3File(int codePage)
    {
        m_bytes.resize(7 * PageSize);
        const QByteArray head("\x00\x01\x00\x00Standard Jet DB\x00\x00", 21);
        std::copy(head.begin(), head.end(), m_bytes.begin());
        put(0, 0x3c, 2, static_cast<std::uint32_t>(codePage));
        jet::maskHeader(std::span(m_bytes).first(PageSize), false);
        // Maps of page 1: row 0 the free pages, from 7 on; row 1 the catalogue's pages; row 2 those of Daten.
        startData(1, 1);
        addRecord(1, QByteArray(5, '\0') + '\x80' + QByteArray(7, '\xff'));
        for (const unsigned page : {4U, 6U})
            addRecord(1, QByteArray(5, '\0') + static_cast<char>(1U << page) + QByteArray(7, '\0'));
        startData(4, 2);
        startData(6, 5);
        definition(2, 0x101, 'S', {{"Id", 4, 0, 4}, {"Name", 10, 0, 255}, {"Type", 3, 4, 2}, {"Flags", 4, 6, 4}});
        definition(5, 0x102, 'N',
                   {{"Counter", 4, 0, 4}, {"Markierung", 1, 0, 1}, {"Name", 10, 0, 255}, {"Ort", 10, 0, 255}});
        addRecord(4, record(QByteArray("\x05\0\0\0\x01\0\0\0\0\0", 10), {QByteArray("Daten")}, 4, 0x0f));
    }

    void addRow(const Row &row)
    {
        QByteArray fixed(4, '\0');
        for (int i = 0; i < 4; ++i)
            fixed[i] = static_cast<char>(row.counter >> (8 * i));
        addRecord(6, record(fixed, {row.name, row.place}, 4, row.mark ? 0x0f : 0x0d));
    }

    const std::vector<std::uint8_t> &bytes() const { return m_bytes; }

private:
    struct NewColumn {
        QByteArray name;
        int type;
        unsigned fixedOffset;
        unsigned length;
    };

    void put(std::size_t page, std::size_t offset, int size, std::uint32_t value)
    {
        for (int i = 0; i < size; ++i)
            m_bytes[page * PageSize + offset + static_cast<std::size_t>(i)] =
                static_cast<std::uint8_t>(value >> (8 * i));
    }
    void startData(std::size_t page, std::uint32_t owner)
    {
        put(page, 0, 2, 0x0101);
        put(page, 4, 4, owner);
    }
    void addRecord(std::size_t page, const QByteArray &bytes)
    {
        const std::size_t at = page * PageSize;
        const std::size_t rows = m_bytes[at + 8];
        const std::size_t end =
            rows == 0 ? PageSize
                      : static_cast<std::size_t>(m_bytes[at + 8 + 2 * rows] | m_bytes[at + 9 + 2 * rows] << 8);
        const std::size_t start = end - static_cast<std::size_t>(bytes.size());
        std::copy(bytes.begin(), bytes.end(), m_bytes.begin() + static_cast<std::ptrdiff_t>(at + start));
        put(page, 8, 2, static_cast<std::uint32_t>(rows + 1));
        put(page, 10 + 2 * rows, 2, static_cast<std::uint32_t>(start));
        if (const std::size_t table = m_bytes[at + 4]; table > 1)
            put(table, 12, 4, static_cast<std::uint32_t>(rows + 1));
    }

    void definition(std::size_t page, std::uint32_t map, char kind, const std::vector<NewColumn> &columns)
    {
        put(page, 0, 4, 0x43560102);
        const auto count = static_cast<std::uint32_t>(columns.size());
        std::uint32_t variable = 0;
        std::size_t at = 43;
        for (std::uint32_t i = 0; i < count; ++i, at += 18) {
            const bool text = columns[i].type == 10;
            put(page, at, 1, static_cast<std::uint32_t>(columns[i].type));
            put(page, at + 1, 2, i);
            put(page, at + 3, 2, text ? variable++ : 0);
            put(page, at + 13, 1, text ? 2 : 3);
            put(page, at + 14, 2, columns[i].fixedOffset);
            put(page, at + 16, 2, columns[i].length);
        }
        for (const NewColumn &column : columns) {
            put(page, at, 1, static_cast<std::uint32_t>(column.name.size()));
            for (qsizetype i = 0; i < column.name.size(); ++i)
                put(page, at + 1 + static_cast<std::size_t>(i), 1, static_cast<std::uint8_t>(column.name[i]));
            at += 1 + static_cast<std::size_t>(column.name.size());
        }
        put(page, at, 2, 0xffff);
        put(page, 8, 4, static_cast<std::uint32_t>(at + 2 - 8));
        put(page, 20, 1, static_cast<std::uint32_t>(kind));
        put(page, 21, 2, count);
        put(page, 23, 2, variable);
        put(page, 25, 2, count);
        put(page, 35, 4, map);
    }

    /// Offsets beyond 255 keep their low byte; the jump table says where each further 256 are passed.
    static QByteArray record(const QByteArray &fixed, const std::vector<QByteArray> &variable, int columns, int mask)
    {
        QByteArray bytes(1, static_cast<char>(columns));
        bytes += fixed;
        std::vector<int> offsets;
        for (const QByteArray &value : variable) {
            offsets.push_back(static_cast<int>(bytes.size()));
            bytes += value;
        }
        offsets.push_back(static_cast<int>(bytes.size()));
        const int tail = static_cast<int>(offsets.size()) + 2;
        int jumps = 0;
        while (jumps != (static_cast<int>(bytes.size()) + tail + jumps - 1) / 256)
            ++jumps;
        for (std::size_t i = offsets.size(); i-- > 0;)
            bytes += static_cast<char>(offsets[i]);
        for (int jump = jumps; jump > 0; --jump) {
            const auto passed = std::ranges::find_if(offsets, [jump](int offset) { return offset >= 256 * jump; });
            bytes += passed == offsets.end() ? '\xff' : static_cast<char>(passed - offsets.begin());
        }
        bytes += static_cast<char>(variable.size());
        bytes += static_cast<char>(mask);
        return bytes;
    }

    std::vector<std::uint8_t> m_bytes;
};

} // namespace kalvenor::testing
