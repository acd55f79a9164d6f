// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/table.h"

#include "platform/basic/error.h"
#include "platform/jet/reader/datapage.h"
#include "platform/jet/reader/definition.h"
#include "platform/jet/reader/usagemap.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

constexpr qsizetype MaxWarnings = 50;

} // namespace

/// Builds a table: the definition, then the places of all rows in page order.
class TableReader {
public:
    TableReader(std::shared_ptr<const Image> image, const QString &name, std::uint32_t definitionPage)
        : m_table(std::make_shared<Table>()), m_image(*image)
    {
        m_table->m_image = std::move(image);
        m_table->m_name = name;
        m_table->m_definitionPage = definitionPage;
    }

    std::shared_ptr<const Table> read()
    {
        Definition definition = readDefinition(m_image, m_table->m_name, m_table->m_definitionPage);
        for (const QString &warning : std::as_const(definition.warnings))
            m_table->warn(warning);
        m_table->m_columns = std::move(definition.columns);
        m_table->m_indexes = std::move(definition.indexes);
        m_table->m_indexedColumns = std::move(definition.indexedColumns);
        m_table->m_layout = {m_image.version(), definition.variableColumns != 0, definition.greatestColumns};
        findFixedEnd();
        locateRows(definition);
        return m_table;
    }

private:
    void locateRows(const Definition &definition)
    {
        const UsageMap map = readUsageMap(m_image, definition.ownedPages);
        if (!map.problem.isEmpty()) {
            throw basic::Error(
                basic::ErrorKind::Damaged,
                u"%1, table %2, page %3"_s.arg(m_image.file(), m_table->m_name).arg(m_table->m_definitionPage),
                u"The pages of the table cannot be found: %1. Repair the database or take a backup."_s.arg(
                    map.problem));
        }
        m_table->m_rows.reserve(std::min<std::size_t>(definition.rowCount, map.pages.size() * MaxSlots));
        for (const std::uint32_t page : map.pages)
            locateRowsOf(page);
        if (map.goesBeyondEnd && m_table->m_rows.size() < definition.rowCount)
            m_table->warn(u"the file has %1 of %2 rows; it may be cut short"_s.arg(m_table->m_rows.size())
                              .arg(definition.rowCount));
        if (m_table->m_rows.capacity() > 2 * m_table->m_rows.size())
            m_table->m_rows.shrink_to_fit();
    }

    void locateRowsOf(std::uint32_t number)
    {
        const DataPage page(m_image.version(), m_image.page(number));
        if (!page.isDataOf(m_table->m_definitionPage))
            return;
        if (!page.slotTableFits() || page.statedSlots() > MaxSlots)
            m_table->warn(u"page %1: states %2 rows, more than it can have"_s.arg(number).arg(page.statedSlots()));
        if (!page.slotTableFits())
            return;
        const std::uint32_t slots = std::min(page.statedSlots(), MaxSlots);
        for (std::uint32_t index = 0; index < slots; ++index) {
            const std::optional<Slot> slot = page.slot(index);
            if (!slot) {
                m_table->warn(u"page %1: row %2 and those behind it have no place"_s.arg(number).arg(index));
                return;
            }
            if ((slot->flags & Slot::Hidden) != 0)
                continue;
            RecordSlot record{number, static_cast<std::uint8_t>(index), *slot};
            if ((slot->flags & Slot::Overflow) != 0) {
                const auto target = followOverflow(m_image.version(), m_table->m_definitionPage, page.bytes(*slot),
                                                   [this](std::uint32_t p) { return m_image.page(p); });
                if (!target) {
                    lost(number, index, u"it was moved, but not to a row of this table"_s);
                    continue;
                }
                record = *target;
            }
            if ((slot->flags & Slot::Unknown) != 0) {
                lost(number, index, u"its slot has an unknown flag"_s);
                continue;
            }
            addRow(number, static_cast<std::uint8_t>(index), record);
        }
    }

    void addRow(std::uint32_t firstPage, std::uint8_t firstSlot, const RecordSlot &at)
    {
        const auto bytes = m_image.page(at.page).subspan(at.slot.start, at.slot.length);
        const Record record(m_table->m_layout, bytes);
        if (!record.isSound()) {
            lost(firstPage, firstSlot, u"its counts and offsets do not fit together"_s);
            return;
        }
        if (m_fixedEnd > at.slot.length)
            checkFixed(record, firstPage, firstSlot);
        m_table->m_rows.push_back({firstPage, at.page, at.slot.start, at.slot.length, firstSlot, at.index});
    }

    void lost(std::uint32_t page, std::uint32_t slot, const QString &why)
    {
        m_table->warn(u"page %1: row %2 is left out: %3"_s.arg(page).arg(slot).arg(why));
    }

    /// Fields that a short record cannot have are noted here once, as reading them later gives null.
    void checkFixed(const Record &record, std::uint32_t page, std::uint32_t slot)
    {
        for (const Column &column : m_table->m_columns) {
            if (column.type != ColumnType::Boolean && column.isFixed() && record.bit(column.number) &&
                !record.field(column))
                m_table->warn(u"page %1: row %2 has no room for its column %3"_s.arg(page).arg(slot).arg(column.name));
        }
    }
    void findFixedEnd()
    {
        for (const Column &column : m_table->m_columns) {
            if (column.isFixed() && column.type != ColumnType::Boolean)
                m_fixedEnd = std::max(m_fixedEnd,
                                      column.fixedOffset + std::max<std::size_t>(column.length, sizeOf(column.type)));
        }
        m_fixedEnd += 2 + (std::size_t{m_table->m_layout.greatestColumns} + 7) / 8;
    }

    std::shared_ptr<Table> m_table;
    const Image &m_image;
    std::size_t m_fixedEnd = 0; ///< a record as long as this has room for all fixed columns and the largest mask
};

std::shared_ptr<const Table> Table::read(std::shared_ptr<const Image> image, const QString &name,
                                         std::uint32_t definitionPage)
{
    return TableReader(std::move(image), name, definitionPage).read();
}

bool Table::isIndexed(std::uint16_t columnNumber) const
{
    return std::ranges::binary_search(m_indexedColumns, columnNumber);
}

int Table::columnOf(QStringView name) const
{
    const auto found = std::ranges::find_if(
        m_columns, [name](const Column &column) { return name.compare(column.name, Qt::CaseInsensitive) == 0; });
    return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
}

QStringList Table::warnings() const
{
    const std::scoped_lock lock(m_warningsGuard);
    return m_warnings;
}

void Table::warn(const QString &warning) const
{
    const std::scoped_lock lock(m_warningsGuard);
    if (m_warnings.size() < MaxWarnings && !m_warnings.contains(warning))
        m_warnings.append(warning);
}

void Table::warnAt(std::uint32_t row, int column, const QString &problem) const
{
    warn(u"page %1: row %2, column %3: %4"_s.arg(m_rows[row].recordPage)
             .arg(m_rows[row].recordSlot)
             .arg(m_columns[static_cast<std::size_t>(column)].name, problem));
}

} // namespace kalvenor::jet
