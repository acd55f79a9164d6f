// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/creator/creator.h"
#include "platform/jet/reader/database.h"
#include "platform/jet/reader/encoding.h"
#include "samples.h"
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

// Small databases made for a test, and a way to change single bytes of their (decoded) pages.
namespace kalvenor::testing {

using namespace Qt::StringLiterals;

/// The decoded pages of a database in memory.
class Pages {
public:
    Pages(std::vector<std::uint8_t> bytes, std::size_t pageSize, std::uint32_t encodingKey = 0)
        : m_bytes(std::move(bytes)), m_pageSize(pageSize), m_key(encodingKey)
    {
        code();
    }
    static Pages of(const QString &file, std::uint32_t encodingKey = 0) { return {readAll(file), 4096, encodingKey}; }

    std::uint8_t &at(std::size_t page, std::size_t offset) { return m_bytes.at(page * m_pageSize + offset); }
    std::uint32_t get(std::size_t page, std::size_t offset, int size)
    {
        std::uint32_t value = 0;
        for (int i = size; i-- > 0;)
            value = value << 8 | at(page, offset + static_cast<std::size_t>(i));
        return value;
    }
    void put(std::size_t page, std::size_t offset, int size, std::uint32_t value)
    {
        for (int i = 0; i < size; ++i)
            at(page, offset + static_cast<std::size_t>(i)) = static_cast<std::uint8_t>(value >> (8 * i));
    }
    std::size_t slotAt(std::size_t slot) const { return (m_pageSize == 4096 ? 14 : 10) + 2 * slot; }
    std::size_t count() const { return m_bytes.size() / m_pageSize; }
    /// The bytes as a file has them.
    std::vector<std::uint8_t> bytes()
    {
        code();
        std::vector<std::uint8_t> result = m_bytes;
        code();
        return result;
    }
    void save(const QString &file) { writeAll(file, bytes()); }

private:
    void code()
    {
        for (std::uint32_t page = 1; m_key != 0 && page < count(); ++page)
            jet::encodePage(std::span(m_bytes).subspan(page * m_pageSize, m_pageSize), m_key, page);
    }

    std::vector<std::uint8_t> m_bytes;
    std::size_t m_pageSize;
    std::uint32_t m_key;
};

/// `Daten`: Counter 1…, Listname, Markierung (every third one set), Bemerkung (every tenth one long), Bild. About
/// 15 rows a page.
inline void makePersons(const QString &file, int rows, std::uint32_t encodingKey = 0, bool repeatLastKey = false)
{
    jet::Creator creator;
    auto &table = creator.addTable(u"Daten"_s,
                                   {{u"Counter"_s, jet::ColumnType::Long},
                                    {u"Listname"_s, jet::ColumnType::Text},
                                    {u"Markierung"_s, jet::ColumnType::Boolean},
                                    {u"Bemerkung"_s, jet::ColumnType::Memo},
                                    {u"Bild"_s, jet::ColumnType::Ole}},
                                   repeatLastKey ? std::vector<jet::NewIndex>{}
                                                 : std::vector<jet::NewIndex>{{u"Counter"_s, {u"Counter"_s}}});
    for (int i = 1; i <= rows; ++i) {
        table.addRow({i == rows && repeatLastKey ? i - 1 : i, u"Mayer, Anna %1 "_s.arg(i).repeated(14).left(200),
                      i % 3 == 0, u"Notiz %1 "_s.arg(i).repeated(i % 10 == 0 ? 900 : 2),
                      QByteArray(i % 7 * 30, static_cast<char>(i))});
    }
    creator.write(file, encodingKey);
}

/// Makes row `from` of the first table an overflow row whose record is that of row `to`, which itself is no longer
/// part of a scan.
inline void makeOverflow(Pages &pages, const jet::RowPlace &from, const jet::RowPlace &to)
{
    pages.put(from.firstPage, pages.slotAt(from.firstSlot), 2, from.recordStart | 0x4000U);
    pages.put(from.firstPage, from.recordStart, 4, to.firstPage << 8 | to.firstSlot);
    pages.put(to.firstPage, pages.slotAt(to.firstSlot), 2, to.recordStart | 0x8000U);
}

/// Damage as logs would show it, an example a line.
inline QStringList linesOf(const std::vector<jet::Damage> &damage)
{
    QStringList lines;
    for (const jet::Damage &kind : damage) {
        for (const basic::Error &example : kind.examples)
            lines << QString::fromUtf8(example.what());
    }
    return lines;
}

/// Reads everything a database has; the number of rows.
inline std::size_t readEverything(jet::Database &database, QStringList *damage = nullptr)
{
    std::size_t rows = 0;
    QStringList all = linesOf(database.damage());
    for (const jet::CatalogueEntry &entry : database.entries()) {
        if (!entry.linkedTo.isEmpty())
            continue;
        const auto table = database.table(entry.name);
        const auto columns = static_cast<int>(table->columns().size());
        for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
            for (int column = 0; column < columns; ++column)
                table->value(row, column);
        }
        rows += table->rowCount();
        all += linesOf(table->damage());
    }
    if (damage != nullptr)
        *damage = all;
    return rows;
}

} // namespace kalvenor::testing
