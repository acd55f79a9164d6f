// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/table.h"

#include "platform/basic/error.h"
#include "platform/jet/reader/datapage.h"
#include "platform/jet/reader/definition.h"
#include "platform/jet/reader/longvalue.h"
#include "platform/jet/reader/usagemap.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <QUuid>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

using Bytes = std::span<const std::uint8_t>;

bool isLong(ColumnType type)
{
    return type == ColumnType::Memo || type == ColumnType::Ole;
}

/// Digits with `scale` decimals, without trailing zeros behind the point.
QString decimalText(QByteArray digits, int scale, bool negative)
{
    if (digits.size() <= scale)
        digits.prepend(QByteArray(scale + 1 - digits.size(), '0'));
    if (scale > 0) {
        digits.insert(digits.size() - scale, '.');
        while (digits.endsWith('0'))
            digits.chop(1);
        if (digits.endsWith('.'))
            digits.chop(1);
    }
    if (negative && digits != "0")
        digits.prepend('-');
    return QString::fromLatin1(digits);
}

QString moneyText(Bytes bytes)
{
    const auto value = static_cast<std::int64_t>(load64(bytes.data()));
    const std::uint64_t size = value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    return decimalText(QByteArray::number(qulonglong{size}), 4, value < 0);
}

/// Sign, then a 128-bit number whose most significant 32 bits come first.
QString numericText(Bytes bytes, int scale)
{
    std::array<std::uint32_t, 4> groups{load32(&bytes[1]), load32(&bytes[5]), load32(&bytes[9]), load32(&bytes[13])};
    QByteArray digits;
    while (std::ranges::any_of(groups, [](std::uint32_t group) { return group != 0; })) {
        std::uint64_t remainder = 0;
        for (std::uint32_t &group : groups) {
            const std::uint64_t part = remainder << 32 | group;
            group = static_cast<std::uint32_t>(part / 10);
            remainder = part % 10;
        }
        digits.prepend(static_cast<char>('0' + remainder));
    }
    if (digits.isEmpty())
        digits = "0";
    return decimalText(digits, scale, (bytes[0] & 0x80) != 0);
}

QUuid guid(Bytes bytes)
{
    return {load32(bytes.data()),
            load16(&bytes[4]),
            load16(&bytes[6]),
            bytes[8],
            bytes[9],
            bytes[10],
            bytes[11],
            bytes[12],
            bytes[13],
            bytes[14],
            bytes[15]};
}

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
        for (const basic::Error &damage : definition.damage)
            m_table->note(m_table->m_definitionPage, damage.fault(), damage.parts().front().arguments);
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
        if (!map.isThere) {
            const RowPointer missing(definition.ownedPages);
            throw basic::Error(basic::Fault::UsageMapMissing,
                               {.file = m_image.file(), .table = m_table->m_name, .page = m_table->m_definitionPage},
                               {missing.page, missing.slot});
        }
        m_table->m_rows.reserve(std::min<std::size_t>(definition.rowCount, map.pages.size() * MaxSlots));
        for (const std::uint32_t page : map.pages)
            locateRowsOf(page);
        const bool lacksRows =
            (m_unknownPage || map.end > m_image.pageCount()) && m_table->m_rows.size() < definition.rowCount;
        if (lacksRows)
            note(-1, basic::Fault::RowsMissing, {m_table->m_rows.size(), definition.rowCount});
        const auto needs = [this](std::uint32_t end) {
            if (end > m_image.pageCount() && end <= MostPages)
                m_table->m_pagesNeeded = std::max(m_table->m_pagesNeeded, end);
        };
        if (lacksRows)
            needs(map.end);
        for (const std::uint32_t page : definition.indexPages)
            needs(page + 1);
        for (const std::uint32_t other : definition.otherMaps)
            needs(readUsageMap(m_image, other).end);
        if (m_table->m_rows.capacity() > 2 * m_table->m_rows.size())
            m_table->m_rows.shrink_to_fit();
    }

    void locateRowsOf(std::uint32_t number)
    {
        const DataPage page(m_image.version(), m_image.page(number));
        if (!page.isDataOf(m_table->m_definitionPage)) {
            m_unknownPage = m_unknownPage || !isPageType(m_image.page(number)[0]);
            return;
        }
        if (!page.slotTableFits() || page.statedSlots() > MaxSlots)
            note(number, basic::Fault::TooManyRows, {page.statedSlots()});
        if (!page.slotTableFits())
            return;
        const std::uint32_t slots = std::min(page.statedSlots(), MaxSlots);
        for (std::uint32_t index = 0; index < slots; ++index) {
            const std::optional<Slot> slot = page.slot(index);
            if (!slot) {
                note(number, basic::Fault::RowsWithoutPlace, {index});
                return;
            }
            if ((slot->flags & Slot::Hidden) != 0)
                continue;
            RecordSlot record{number, static_cast<std::uint8_t>(index), *slot};
            if ((slot->flags & Slot::Overflow) != 0) {
                const auto target = followOverflow(m_image.version(), m_table->m_definitionPage, page.bytes(*slot),
                                                   [this](std::uint32_t p) { return m_image.page(p); });
                if (!target) {
                    lost(number, index, basic::Fault::WordMovedAway);
                    continue;
                }
                if (!m_movedTo.insert(target->page << 8 | target->index).second) {
                    lost(number, index, basic::Fault::WordRecordTaken);
                    continue;
                }
                record = *target;
            }
            if ((slot->flags & Slot::Unknown) != 0) {
                lost(number, index, basic::Fault::WordUnknownFlag);
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
            lost(firstPage, firstSlot, basic::Fault::WordOffsets);
            return;
        }
        if (m_fixedEnd > at.slot.length)
            checkFixed(record, firstPage, firstSlot);
        Q_ASSERT(bytes.size() == at.slot.length);
        m_table->m_rows.push_back({firstPage, at.page, at.slot.start, at.slot.length, firstSlot, at.index});
    }

    void note(qint64 page, basic::Fault fault, std::vector<basic::Argument> arguments)
    {
        m_table->note(page, fault, std::move(arguments));
    }
    void lost(std::uint32_t page, std::uint32_t slot, basic::Fault why)
    {
        note(page, basic::Fault::RowLeftOut, {slot, why});
    }

    /// Fields that a short record cannot have are noted here once, as reading them later gives null.
    void checkFixed(const Record &record, std::uint32_t page, std::uint32_t slot)
    {
        for (const Column &column : m_table->m_columns) {
            if (column.type != ColumnType::Boolean && column.isFixed() && record.bit(column.number) &&
                !record.field(column))
                note(page, basic::Fault::FieldBeyondRow, {slot, column.name});
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
    bool m_unknownPage = false;                  ///< one that the table owns is no page of a database
    std::unordered_set<std::uint32_t> m_movedTo; ///< page and slot of the records that overflow pointers led to
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

void Table::note(qint64 page, basic::Fault fault, std::vector<basic::Argument> arguments) const
{
    m_damage.note({.file = m_image->file(), .table = m_name}, page, fault, std::move(arguments));
}

/// Values outside their records can be shared, in a file that was made for it.
void Table::countLongValue(std::uint32_t row, int column, std::size_t bytes) const
{
    LongValues &read = m_longValues[column];
    read.rows.resize(m_rows.size());
    if (read.rows[row])
        return;
    read.rows[row] = true;
    read.bytes += bytes;
    if (read.bytes > std::size_t{m_image->pageCount()} * m_image->pageSize())
        throw basic::Error(basic::Fault::LongValuesShared, {.file = m_image->file(), .table = m_name},
                           {m_columns[static_cast<std::size_t>(column)].name});
}

// Values

Table::Field Table::field(std::uint32_t row, int index) const
{
    const Column &column = m_columns[static_cast<std::size_t>(index)];
    const Field bytes = Record(m_layout, record(row)).field(column);
    const std::size_t ofType = sizeOf(column.type);
    if (bytes && ofType != 0 && bytes->size() != ofType) {
        note(m_rows[row].recordPage, basic::Fault::ValueSize,
             {m_rows[row].recordSlot, column.name, bytes->size(), ofType});
        return std::nullopt;
    }
    return column.type == ColumnType::Unreadable ? std::nullopt : bytes;
}

Table::Field Table::content(std::uint32_t row, int index, std::vector<std::uint8_t> &scratch) const
{
    const Field bytes = field(row, index);
    if (!bytes || !isLong(m_columns[static_cast<std::size_t>(index)].type))
        return bytes;
    basic::Fault problem = basic::Fault::None;
    const Field whole = longValue(*m_image, *bytes, scratch, &problem);
    if (problem != basic::Fault::None)
        note(m_rows[row].recordPage, basic::Fault::LongValueDamaged,
             {m_rows[row].recordSlot, m_columns[static_cast<std::size_t>(index)].name, problem});
    if (whole && whole->size() > bytes->size()) // else it lies in the record
        countLongValue(row, index, whole->size());
    return whole;
}

bool Table::isNull(std::uint32_t row, int index) const
{
    const ColumnType type = m_columns[static_cast<std::size_t>(index)].type;
    if (type == ColumnType::Boolean)
        return false;
    if (!isLong(type))
        return !field(row, index);
    std::vector<std::uint8_t> scratch;
    return !content(row, index, scratch);
}

bool Table::boolean(std::uint32_t row, int index) const
{
    const Column &column = m_columns[static_cast<std::size_t>(index)];
    return column.type == ColumnType::Boolean && Record(m_layout, record(row)).bit(column.number);
}

std::optional<std::int32_t> Table::integer(std::uint32_t row, int index) const
{
    const ColumnType type = m_columns[static_cast<std::size_t>(index)].type;
    if (type != ColumnType::Byte && type != ColumnType::Integer && type != ColumnType::Long)
        return std::nullopt;
    const Field bytes = field(row, index);
    if (!bytes)
        return std::nullopt;
    if (type == ColumnType::Byte)
        return (*bytes)[0];
    if (type == ColumnType::Integer)
        return static_cast<std::int16_t>(load16(bytes->data()));
    return static_cast<std::int32_t>(load32(bytes->data()));
}

std::optional<double> Table::number(std::uint32_t row, int index) const
{
    const Column &column = m_columns[static_cast<std::size_t>(index)];
    switch (column.type) {
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
        return integer(row, index);
    case ColumnType::Money:
    case ColumnType::Float:
    case ColumnType::Double:
    case ColumnType::DateTime:
    case ColumnType::Numeric:
        break;
    default:
        return std::nullopt;
    }
    const Field bytes = field(row, index);
    if (!bytes)
        return std::nullopt;
    if (column.type == ColumnType::Money)
        return static_cast<double>(static_cast<std::int64_t>(load64(bytes->data()))) / 10000.0;
    if (column.type == ColumnType::Float)
        return double{std::bit_cast<float>(load32(bytes->data()))};
    if (column.type == ColumnType::Numeric)
        return numericText(*bytes, column.scale).toDouble();
    return std::bit_cast<double>(load64(bytes->data()));
}

QStringView Table::text(std::uint32_t row, int index, QString &buffer) const
{
    const ColumnType type = m_columns[static_cast<std::size_t>(index)].type;
    if (type != ColumnType::Text && type != ColumnType::Memo)
        return {};
    std::vector<std::uint8_t> scratch;
    const Field bytes = content(row, index, scratch);
    if (!bytes)
        return {};
    m_image->decodeText(*bytes, buffer);
    return buffer.isEmpty() ? QStringView(u"") : QStringView(buffer);
}

QString Table::text(std::uint32_t row, int index) const
{
    QString buffer;
    const QStringView read = text(row, index, buffer);
    if (read.isEmpty())
        return read.isNull() ? QString() : u""_s;
    return buffer;
}

QByteArray Table::bytes(std::uint32_t row, int index) const
{
    const ColumnType type = m_columns[static_cast<std::size_t>(index)].type;
    if (type != ColumnType::Binary && type != ColumnType::Ole)
        return {};
    std::vector<std::uint8_t> scratch;
    const Field bytes = content(row, index, scratch);
    if (!bytes)
        return {};
    return bytes->empty()
               ? QByteArray("")
               : QByteArray(reinterpret_cast<const char *>(bytes->data()), static_cast<qsizetype>(bytes->size()));
}

QVariant Table::value(std::uint32_t row, int index) const
{
    const Column &column = m_columns[static_cast<std::size_t>(index)];
    switch (column.type) {
    case ColumnType::Unreadable:
        return {};
    case ColumnType::Boolean:
        return boolean(row, index);
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long: {
        const std::optional<std::int32_t> number = integer(row, index);
        return number ? QVariant(*number) : QVariant();
    }
    case ColumnType::Float:
    case ColumnType::Double:
    case ColumnType::DateTime: {
        const std::optional<double> serial = number(row, index);
        return serial ? QVariant(*serial) : QVariant();
    }
    case ColumnType::Text:
    case ColumnType::Memo: {
        const QString read = text(row, index);
        return read.isNull() ? QVariant() : QVariant(read);
    }
    case ColumnType::Binary:
    case ColumnType::Ole: {
        const QByteArray read = bytes(row, index);
        return read.isNull() ? QVariant() : QVariant(read);
    }
    case ColumnType::Money:
    case ColumnType::Numeric:
    case ColumnType::Guid:
        break;
    }
    const Field bytes = field(row, index);
    if (!bytes)
        return {};
    if (column.type == ColumnType::Guid)
        return guid(*bytes);
    return column.type == ColumnType::Money ? moneyText(*bytes) : numericText(*bytes, column.scale);
}

} // namespace kalvenor::jet
