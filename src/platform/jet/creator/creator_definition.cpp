// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator_definition.h"

#include <algorithm>
#include <cstring>

namespace kalvenor::jet::creating {

namespace {

constexpr std::uint32_t DefinitionMark = 1625;
constexpr std::uint32_t IndexMark = 1923;
constexpr std::uint16_t GeneralSortOrder = 0x0409;
constexpr std::uint8_t NumericPrecision = 28;
constexpr std::uint32_t HeaderLength = 8; ///< of each page

class Writer {
public:
    void u8(unsigned value) { bytes.push_back(static_cast<std::uint8_t>(value)); }
    void u16(unsigned value)
    {
        u8(value & 0xff);
        u8(value >> 8 & 0xff);
    }
    void u32(std::uint32_t value)
    {
        u16(value & 0xffff);
        u16(value >> 16);
    }
    void zeros(std::size_t count) { bytes.insert(bytes.end(), count, std::uint8_t{0}); }
    void name(const QString &text)
    {
        u16(static_cast<unsigned>(2 * text.size()));
        for (const QChar character : text)
            u16(character.unicode());
    }

    std::vector<std::uint8_t> bytes;
};

void writeHead(Writer &to, const TableSpec &spec, const DefinitionFacts &facts)
{
    const auto columns = static_cast<unsigned>(spec.columns.size());
    const auto indexes = static_cast<std::uint32_t>(spec.indexes.size());
    to.u32(DefinitionMark);
    to.u32(facts.rows);
    to.u32(static_cast<std::uint32_t>(facts.lastAutonumber));
    to.u32(1);
    to.zeros(12);
    to.u8(spec.system ? 'S' : 'N');
    to.u16(columns);
    to.u16(spec.variableColumns);
    to.u16(columns);
    to.u32(indexes);
    to.u32(indexes);
    to.u32(facts.ownedMap);
    to.u32(facts.freeMap);
}

void writeColumn(Writer &to, const Column &column)
{
    to.u8(static_cast<unsigned>(column.type));
    to.u32(DefinitionMark);
    to.u16(column.number);
    to.u16(column.variableIndex);
    to.u16(column.number);
    if (column.type == ColumnType::Numeric) {
        to.u8(NumericPrecision);
        to.u8(column.scale);
    } else {
        to.u16(column.type == ColumnType::Text || column.type == ColumnType::Memo ? GeneralSortOrder : 0);
    }
    to.u16(0);
    to.u8(column.flags);
    to.u8(column.extraFlags);
    to.u32(0);
    to.u16(column.fixedOffset);
    to.u16(column.length);
}

void writePhysicalIndex(Writer &to, const IndexSpec &index, const DefinitionFacts::IndexFacts &facts)
{
    constexpr std::size_t slots = 10;
    to.u32(IndexMark);
    for (std::size_t slot = 0; slot < slots; ++slot) {
        const bool used = slot < index.columns.size();
        to.u16(used ? index.columns[slot] : 0xffff);
        to.u8(used ? 1 : 0);
    }
    to.u32(facts.map);
    to.u32(facts.root);
    to.u32(0);
    to.u8(index.flags);
    to.zeros(5);
}

void writeLogicalIndex(Writer &to, std::uint32_t number, bool primary)
{
    to.u32(DefinitionMark);
    to.u32(number);
    to.u32(number);
    to.u8(0);
    to.u32(0xffffffff);
    to.u32(0);
    to.u8(4);
    to.u8(4);
    to.u8(primary ? 1 : 0);
    to.u32(0);
}

/// The definition from its byte 8 on, without the headers of its pages.
std::vector<std::uint8_t> content(const TableSpec &spec, const DefinitionFacts &facts)
{
    Writer to;
    to.u32(0); // the length, at the end
    writeHead(to, spec, facts);
    for (const DefinitionFacts::IndexFacts &index : facts.indexes) {
        to.u32(0);
        to.u32(index.entries);
        to.u32(0);
    }
    for (const Column &column : spec.columns)
        writeColumn(to, column);
    for (const Column &column : spec.columns)
        to.name(column.name);
    for (std::size_t i = 0; i < spec.indexes.size(); ++i)
        writePhysicalIndex(to, spec.indexes[i], facts.indexes[i]);
    for (std::size_t i = 0; i < spec.indexes.size(); ++i)
        writeLogicalIndex(to, static_cast<std::uint32_t>(i), spec.indexes[i].primary);
    for (const IndexSpec &index : spec.indexes)
        to.name(index.name);
    for (const DefinitionFacts::LongValueFacts &longValue : facts.longValues) {
        to.u16(longValue.column);
        to.u32(longValue.ownedMap);
        to.u32(longValue.freeMap);
    }
    to.u16(0xffff);
    to.zeros(8);
    put(to.bytes.data(), static_cast<std::uint32_t>(to.bytes.size()));
    return to.bytes;
}

constexpr std::size_t ContentPerPage = PageSize - HeaderLength;

} // namespace

std::uint32_t definitionPageCount(const TableSpec &spec)
{
    DefinitionFacts facts;
    facts.indexes.resize(spec.indexes.size());
    facts.longValues.resize(static_cast<std::size_t>(std::count_if(
        spec.columns.begin(), spec.columns.end(), [](const Column &column) { return isLongValue(column.type); })));
    return static_cast<std::uint32_t>((content(spec, facts).size() + ContentPerPage - 1) / ContentPerPage);
}

void writeDefinition(PageStore &store, std::span<const std::uint32_t> pages, const TableSpec &spec,
                     const DefinitionFacts &facts)
{
    const std::vector<std::uint8_t> bytes = content(spec, facts);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        std::uint8_t *const page = store.page(pages[i]);
        const std::size_t start = i * ContentPerPage;
        const std::size_t length = std::min(ContentPerPage, bytes.size() - start);
        page[0] = 2;
        page[1] = 1;
        put(page + 2, static_cast<std::uint16_t>(ContentPerPage - length));
        put(page + 4, i + 1 < pages.size() ? pages[i + 1] : 0u);
        std::memcpy(page + HeaderLength, bytes.data() + start, length);
    }
}

} // namespace kalvenor::jet::creating
