// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator_table.h"

#include <algorithm>

namespace kalvenor::jet::creating {

namespace {

std::vector<std::uint32_t> addPages(PageStore &store, std::uint32_t count)
{
    std::vector<std::uint32_t> pages;
    for (std::uint32_t i = 0; i < count; ++i)
        pages.push_back(store.add());
    return pages;
}

// Rows of the usage maps: owned pages, pages with space, one an index, two a long-value column.
constexpr std::uint32_t OwnedMap = 0;
constexpr std::uint32_t FreeMap = 1;
constexpr std::uint32_t FirstIndexMap = 2;

} // namespace

TableBuilder::TableBuilder(PageStore &store, TableSpec spec)
    : m_store(store), m_spec(std::move(spec)), m_definitionPages(addPages(store, definitionPageCount(m_spec))),
      m_data(store, m_definitionPages.front()), m_encoder(store, m_spec)
{
    for (const IndexSpec &index : m_spec.indexes)
        m_indexes.emplace_back(m_spec, index);
}

void TableBuilder::reserveMaps()
{
    const std::size_t count = FirstIndexMap + m_indexes.size() + 2 * m_encoder.longValueColumns().size();
    m_maps.emplace(m_store, static_cast<std::uint32_t>(count));
}

void TableBuilder::addRow(std::span<const NewValue> values)
{
    const std::span<const std::uint8_t> record = m_encoder.encode(values);
    for (IndexEntries &index : m_indexes)
        index.prepare(values, m_encoder.fixedData());
    const RowPages::Place place = m_data.addRow(static_cast<std::uint32_t>(record.size()));
    std::copy(record.begin(), record.end(), place.bytes);
    for (IndexEntries &index : m_indexes)
        index.add(place.address);
    for (const Column &column : m_spec.columns) {
        if ((column.flags & autonumber) != 0) {
            const auto given = qFromLittleEndian<std::int32_t>(m_encoder.fixedData() + column.fixedOffset);
            m_lastAutonumber = std::max(m_lastAutonumber, given);
        }
    }
    ++m_rows;
}

void TableBuilder::sortIndexes()
{
    for (IndexEntries &index : m_indexes)
        index.sort();
}

void TableBuilder::finish()
{
    DefinitionFacts facts;
    facts.rows = m_rows;
    facts.lastAutonumber = m_lastAutonumber;
    facts.ownedMap = m_maps->address(OwnedMap);
    facts.freeMap = m_maps->address(FreeMap);
    m_maps->fill(OwnedMap, m_data.pages());
    m_maps->fill(FreeMap, m_data.pagesWithSpace());

    std::uint32_t map = FirstIndexMap;
    for (const IndexEntries &index : m_indexes) {
        const IndexEntries::Tree tree = index.write(m_store, definitionPage());
        m_maps->fill(map, tree.pages);
        facts.indexes.push_back({index.count(), m_maps->address(map), tree.root});
        ++map;
    }
    for (const RecordEncoder::LongValueColumn &column : m_encoder.longValueColumns()) {
        m_maps->fill(map, column.pages.pages());
        m_maps->fill(map + 1, column.pages.pagesWithSpace());
        facts.longValues.push_back({column.number, m_maps->address(map), m_maps->address(map + 1)});
        map += 2;
    }
    writeDefinition(m_store, m_definitionPages, m_spec, facts);
}

} // namespace kalvenor::jet::creating
