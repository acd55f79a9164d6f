// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/definition.h"

#include "platform/basic/error.h"
#include "platform/jet/reader/cursor.h"
#include "platform/jet/reader/datapage.h"
#include "platform/jet/reader/textcodec.h"
#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

constexpr std::size_t MaxPages = 64;
constexpr std::uint32_t MaxColumns = 255;
constexpr std::uint32_t MaxIndexes = 1000;
constexpr int ColumnsOfIndex = 10;
constexpr std::uint16_t NoColumn = 0xffff;

/// Where the two versions differ.
struct Sizes {
    std::size_t rowCount, greatestColumns, logicalIndexes, ownedPages, headEnd;
    std::size_t statistics;
};
constexpr Sizes Sizes3{12, 21, 27, 35, 43, 8};
constexpr Sizes Sizes4{16, 41, 47, 55, 63, 12};

class Reader {
public:
    Reader(const Image &image, const QString &table, std::uint32_t firstPage)
        : m_image(image), m_table(table), m_firstPage(firstPage), m_jet4(image.version() == Version::Jet4),
          m_content(joinPages()), m_cursor(m_content)
    {
    }

    Definition read()
    {
        readHead();
        m_cursor.skip(m_physicalCount * sizes().statistics);
        readColumns();
        readPhysicalIndexes();
        readLogicalIndexes();
        readLongValueMaps();
        return std::move(m_result);
    }

private:
    struct Physical {
        std::vector<IndexColumn> columns;
        std::uint32_t rootPage = 0;
        std::uint8_t flags = 0;
    };

    const Sizes &sizes() const { return m_jet4 ? Sizes4 : Sizes3; }

    [[noreturn]] void damaged(basic::Fault what, std::uint32_t page) const
    {
        throw basic::Error(basic::Fault::DefinitionDamaged, {.file = m_image.file(), .table = m_table, .page = page},
                           {what});
    }
    void require(bool sound, basic::Fault what) const
    {
        if (!sound)
            damaged(what, m_firstPage);
    }

    /// The first page whole, of the others what follows their 8 bytes of head, cut at the stated length.
    std::vector<std::uint8_t> joinPages() const
    {
        std::vector<std::uint8_t> joined;
        std::uint32_t number = m_firstPage;
        for (std::size_t pages = 0; number != 0; ++pages) {
            const std::span<const std::uint8_t> page = m_image.page(number);
            if (page.empty())
                damaged(basic::Fault::WordPageBeyondEnd, number);
            if (page[0] != static_cast<std::uint8_t>(PageType::Definition))
                damaged(basic::Fault::WordOtherPage, number);
            if (pages == MaxPages)
                damaged(basic::Fault::WordPageCircle, number);
            const auto part = pages == 0 ? page : page.subspan(8);
            joined.insert(joined.end(), part.begin(), part.end());
            number = load32(&page[4]);
        }
        require(!joined.empty(), basic::Fault::WordNoPage);
        const std::size_t content = load32(&joined[8]);
        require(content != 0 && content <= joined.size() - 8, basic::Fault::WordLength);
        joined.resize(8 + content);
        return joined;
    }

    void readHead()
    {
        Cursor &c = m_cursor;
        c.moveTo(sizes().rowCount);
        m_result.rowCount = c.u32();
        c.moveTo(sizes().greatestColumns);
        m_result.greatestColumns = c.u16();
        m_result.variableColumns = c.u16();
        m_columnCount = c.u16();
        c.moveTo(sizes().logicalIndexes);
        m_logicalCount = c.u32();
        m_physicalCount = c.u32();
        m_result.ownedPages = c.u32();
        c.moveTo(sizes().headEnd);
        require(!c.failed(), basic::Fault::WordCutShort);
        require(m_columnCount <= MaxColumns && m_columnCount <= m_result.greatestColumns,
                basic::Fault::WordColumnCount);
        require(m_result.variableColumns <= m_result.greatestColumns, basic::Fault::WordVariableColumns);
        require(m_logicalCount <= MaxIndexes && m_physicalCount <= MaxIndexes, basic::Fault::WordIndexCount);
    }

    QString readName()
    {
        const std::size_t length = m_jet4 ? m_cursor.u16() : m_cursor.u8();
        require(!m_jet4 || length % 2 == 0, basic::Fault::WordHalfCharacter);
        const std::span<const std::uint8_t> bytes = m_cursor.bytes(length);
        require(!m_cursor.failed(), basic::Fault::WordNameTooLong);
        QString name;
        m_image.decodeText(bytes, name);
        return name;
    }

    Column readDescriptor()
    {
        Cursor &c = m_cursor;
        Column column;
        const std::uint8_t type = c.u8();
        c.skip(m_jet4 ? 4 : 0);
        column.number = c.u16();
        column.variableIndex = c.u16();
        c.skip(m_jet4 ? 3 : 7);
        column.scale = c.u8();
        c.skip(m_jet4 ? 2 : 0);
        column.flags = c.u8();
        if (m_jet4) {
            column.extraFlags = c.u8();
            c.skip(4);
        }
        column.fixedOffset = c.u16();
        column.length = c.u16();
        require(!c.failed(), basic::Fault::WordColumnsCut);
        if ((type >= 1 && type <= 12) || type == 15 || type == 16)
            column.type = static_cast<ColumnType>(type);
        else if (type == 17)
            column.type = ColumnType::Binary;
        else
            m_result.damage.emplace_back(basic::Fault::TypeUnknown, basic::Place(),
                                         std::vector<basic::Argument>{column.number, type});
        return column;
    }

    void readColumns()
    {
        std::vector<Column> columns;
        columns.reserve(m_columnCount);
        for (std::uint32_t i = 0; i < m_columnCount; ++i)
            columns.push_back(readDescriptor());
        for (Column &column : columns)
            column.name = readName();
        std::set<std::uint16_t> numbers;
        std::set<QString> names;
        for (Column &column : columns) {
            if (numbers.insert(column.number).second && names.insert(column.name.toCaseFolded()).second)
                m_result.columns.push_back(std::move(column));
            else
                m_result.damage.emplace_back(basic::Fault::ColumnTwice, basic::Place(),
                                             std::vector<basic::Argument>{column.name, column.number});
        }
        std::ranges::sort(m_result.columns, {}, &Column::number);
    }

    void readPhysicalIndexes()
    {
        Cursor &c = m_cursor;
        std::set<std::uint16_t> indexed;
        for (std::uint32_t i = 0; i < m_physicalCount; ++i) {
            Physical index;
            c.skip(m_jet4 ? 4 : 0);
            for (int k = 0; k < ColumnsOfIndex; ++k) {
                const std::uint16_t number = c.u16();
                const bool ascending = (c.u8() & 1) != 0;
                if (number == NoColumn || c.failed())
                    continue;
                require(std::ranges::binary_search(m_result.columns, number, {}, &Column::number),
                        basic::Fault::WordIndexColumn);
                index.columns.push_back({number, ascending});
                indexed.insert(number);
            }
            m_result.otherMaps.push_back(c.u32());
            index.rootPage = c.u32();
            m_result.indexPages.push_back(index.rootPage);
            c.skip(m_jet4 ? 4 : 0);
            index.flags = c.u8();
            c.skip(m_jet4 ? 5 : 0);
            require(!c.failed(), basic::Fault::WordIndexesCut);
            m_physical.push_back(std::move(index));
        }
        m_result.indexedColumns.assign(indexed.begin(), indexed.end());
    }

    void readLogicalIndexes()
    {
        Cursor &c = m_cursor;
        for (std::uint32_t i = 0; i < m_logicalCount; ++i) {
            c.skip(m_jet4 ? 8 : 4);
            const std::uint32_t physical = c.u32();
            c.skip(11);
            const std::uint8_t kind = c.u8();
            c.skip(m_jet4 ? 4 : 0);
            require(!c.failed(), basic::Fault::WordIndexesCut);
            require(physical < m_physical.size(), basic::Fault::WordIndexPages);
            const Physical &behind = m_physical[physical];
            m_result.indexes.push_back({QString(), behind.columns, (behind.flags & 0x01) != 0,
                                        (behind.flags & 0x02) != 0, kind == 1, behind.rootPage});
        }
        for (Index &index : m_result.indexes)
            index.name = readName();
    }

    /// What is not there is no damage: nobody needs it to read.
    void readLongValueMaps()
    {
        while (!m_cursor.failed() && m_cursor.u16() != NoColumn) {
            const std::uint32_t map = m_cursor.u32();
            m_cursor.skip(4);
            if (!m_cursor.failed())
                m_result.otherMaps.push_back(map);
        }
    }

    const Image &m_image;
    const QString &m_table;
    std::uint32_t m_firstPage;
    bool m_jet4;
    std::vector<std::uint8_t> m_content;
    Cursor m_cursor;
    Definition m_result;
    std::uint32_t m_columnCount = 0;
    std::uint32_t m_logicalCount = 0;
    std::uint32_t m_physicalCount = 0;
    std::vector<Physical> m_physical;
};

} // namespace

Definition readDefinition(const Image &image, const QString &table, std::uint32_t firstPage)
{
    return Reader(image, table, firstPage).read();
}

} // namespace kalvenor::jet
