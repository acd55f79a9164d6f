// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator_index.h"

#include "platform/basic/error.h"
#include "platform/jet/order/sortkey.h"
#include <algorithm>
#include <cstring>
#include <limits>

using namespace Qt::StringLiterals;

namespace kalvenor::jet::creating {

namespace {

constexpr std::uint32_t EntriesStart = 0x1e0;
constexpr std::uint32_t EntryArea = PageSize - EntriesStart;
constexpr std::uint32_t MaskStart = 27;
constexpr std::uint8_t NodePage = 3;
constexpr std::uint8_t LeafPage = 4;
constexpr std::uint8_t ValueFlag = 0x7f;
constexpr std::uint8_t NullFlag = 0x00;
/// Two entries must fit into a node, each with its row and child.
constexpr std::size_t LongestKey = EntryArea / 2 - 8;

using Bytes = std::vector<std::uint8_t>;

template <typename Unsigned>
void appendBigEndian(Unsigned number, Bytes &to)
{
    for (int shift = std::numeric_limits<Unsigned>::digits - 8; shift >= 0; shift -= 8)
        to.push_back(static_cast<std::uint8_t>(number >> shift));
}

/// The bits of a floating number so that they ascend with it.
template <typename Unsigned>
Unsigned ascendingBits(Unsigned bits)
{
    constexpr Unsigned sign = Unsigned{1} << (std::numeric_limits<Unsigned>::digits - 1);
    return (bits & sign) != 0 ? static_cast<Unsigned>(~bits) : static_cast<Unsigned>(bits | sign);
}

template <typename Unsigned>
Unsigned load(const std::uint8_t *from)
{
    return qFromLittleEndian<Unsigned>(from);
}

int compareBytes(std::span<const std::uint8_t> left, std::span<const std::uint8_t> right)
{
    const std::size_t shorter = std::min(left.size(), right.size());
    const int order = shorter == 0 ? 0 : std::memcmp(left.data(), right.data(), shorter);
    if (order != 0 || left.size() == right.size())
        return order;
    return left.size() < right.size() ? -1 : 1;
}

/// The pages of one level of the tree, from left to right.
class Level {
public:
    Level(PageStore &store, std::uint8_t type, std::uint32_t owner) : m_store(store), m_type(type), m_owner(owner)
    {
        startPage();
    }

    void add(std::span<const std::uint8_t> entry)
    {
        const auto length = static_cast<std::uint32_t>(entry.size());
        if (m_used + length > EntryArea) {
            m_lastEntries.push_back(m_last);
            startPage();
        }
        std::uint8_t *const page = m_store.page(m_pages.back());
        std::memcpy(page + EntriesStart + m_used, entry.data(), length);
        m_used += length;
        std::uint8_t &maskByte = page[MaskStart + m_used / 8];
        maskByte = static_cast<std::uint8_t>(maskByte | 1u << m_used % 8);
        put(page + 2, static_cast<std::uint16_t>(EntryArea - m_used));
        m_last.assign(entry.begin(), entry.end());
    }
    void end() { m_lastEntries.push_back(m_last); }

    const std::vector<std::uint32_t> &pages() const { return m_pages; }
    /// The last entry of each page.
    const std::vector<Bytes> &lastEntries() const { return m_lastEntries; }

private:
    void startPage()
    {
        const std::uint32_t added = m_store.add();
        std::uint8_t *const page = m_store.page(added);
        page[0] = m_type;
        page[1] = 1;
        put(page + 2, static_cast<std::uint16_t>(EntryArea));
        put(page + 4, m_owner);
        if (!m_pages.empty()) {
            put(page + 12, m_pages.back());
            put(m_store.page(m_pages.back()) + 16, added);
        }
        m_pages.push_back(added);
        m_used = 0;
    }

    PageStore &m_store;
    std::uint8_t m_type;
    std::uint32_t m_owner;
    std::uint32_t m_used = 0;
    std::vector<std::uint32_t> m_pages;
    std::vector<Bytes> m_lastEntries;
    Bytes m_last;
};

} // namespace

IndexEntries::IndexEntries(const TableSpec &table, const IndexSpec &index) : m_table(&table), m_index(&index)
{
    m_isSingleLong = index.columns.size() == 1 && table.columns[index.columns[0]].type == ColumnType::Long;
}

void IndexEntries::prepare(std::span<const NewValue> values, const std::uint8_t *fixedData)
{
    m_prepared.clear();
    m_preparedNull = false;
    for (const std::uint16_t number : m_index->columns)
        appendKey(m_table->columns[number], values[number], fixedData);
    const bool lacksValue = m_preparedNull && (m_index->flags & requiresValues) != 0;
    if (lacksValue || m_prepared.size() > LongestKey)
        throw basic::Error(basic::Fault::KeyUnsuited, {.table = m_table->name}, {m_index->name});
}

void IndexEntries::appendKey(const Column &column, const NewValue &value, const std::uint8_t *fixedData)
{
    if (column.type == ColumnType::Boolean) {
        const auto *given = std::get_if<bool>(&value);
        m_prepared.push_back(ValueFlag);
        m_prepared.push_back(given != nullptr && *given ? 0x00 : 0xff);
        return;
    }
    if (std::holds_alternative<std::monostate>(value)) {
        m_prepared.push_back(NullFlag);
        m_preparedNull = true;
        return;
    }
    m_prepared.push_back(ValueFlag);
    const std::uint8_t *const fixed = fixedData + column.fixedOffset;
    switch (column.type) {
    case ColumnType::Byte:
        m_prepared.push_back(*fixed);
        break;
    case ColumnType::Integer:
        appendBigEndian(static_cast<std::uint16_t>(load<std::uint16_t>(fixed) ^ 0x8000u), m_prepared);
        break;
    case ColumnType::Long:
        appendBigEndian(load<std::uint32_t>(fixed) ^ 0x80000000u, m_prepared);
        break;
    case ColumnType::Float:
        appendBigEndian(ascendingBits(load<std::uint32_t>(fixed)), m_prepared);
        break;
    case ColumnType::Double:
    case ColumnType::DateTime:
        appendBigEndian(ascendingBits(load<std::uint64_t>(fixed)), m_prepared);
        break;
    case ColumnType::Text:
        try {
            appendGeneralKey(std::get<QString>(value), m_prepared, Unlisted::Refused);
        } catch (const basic::Error &error) {
            throw error.at({.table = m_table->name});
        }
        break;
    default:
        throw basic::Error(basic::Fault::IndexImpossible, {.table = m_table->name}, {m_index->name});
    }
}

void IndexEntries::add(RowAddress row)
{
    if (m_preparedNull && (m_index->flags & ignoresNulls) != 0)
        return;
    if (m_isSingleLong && !m_preparedNull) {
        m_longs.push_back(std::uint64_t{qFromBigEndian<std::uint32_t>(m_prepared.data() + 1)} << 32 | row);
        return;
    }
    m_entries.push_back({m_keys.size(), static_cast<std::uint16_t>(m_prepared.size()), m_preparedNull, row});
    m_keys.insert(m_keys.end(), m_prepared.begin(), m_prepared.end());
}

void IndexEntries::refuseDuplicate(std::span<const std::uint8_t> key) const
{
    const QByteArray hex =
        QByteArray(reinterpret_cast<const char *>(key.data()), static_cast<qsizetype>(key.size())).toHex();
    QString shown = QString::fromLatin1(hex);
    if (m_isSingleLong)
        shown = QString::number(static_cast<std::int32_t>(qFromBigEndian<std::uint32_t>(key.data() + 1) ^ 0x80000000u));
    throw basic::Error(basic::Fault::IndexKeyTwice, {.table = m_table->name}, {m_index->name, shown});
}

void IndexEntries::sort()
{
    if (!std::is_sorted(m_longs.begin(), m_longs.end()))
        std::sort(m_longs.begin(), m_longs.end());
    const auto before = [this](const Entry &left, const Entry &right) {
        const int order = compareBytes(key(left), key(right));
        return order != 0 ? order < 0 : left.row < right.row;
    };
    if (!std::is_sorted(m_entries.begin(), m_entries.end(), before))
        std::sort(m_entries.begin(), m_entries.end(), before);

    if ((m_index->flags & uniqueKeys) == 0)
        return;
    const auto sameLong =
        std::adjacent_find(m_longs.begin(), m_longs.end(),
                           [](std::uint64_t left, std::uint64_t right) { return left >> 32 == right >> 32; });
    if (sameLong != m_longs.end()) {
        Bytes shown{ValueFlag};
        appendBigEndian(static_cast<std::uint32_t>(*sameLong >> 32), shown);
        refuseDuplicate(shown);
    }
    if (m_isSingleLong)
        return; // the others are nulls, which may be many
    const auto same =
        std::adjacent_find(m_entries.begin(), m_entries.end(), [this](const Entry &left, const Entry &right) {
            return !left.hasNull && compareBytes(key(left), key(right)) == 0;
        });
    if (same != m_entries.end())
        refuseDuplicate(key(*same));
}

IndexEntries::Tree IndexEntries::write(PageStore &store, std::uint32_t owner) const
{
    Tree tree;
    Bytes entry;
    const auto keepPages = [&tree](const Level &level) {
        tree.pages.insert(tree.pages.end(), level.pages().begin(), level.pages().end());
    };
    Level leaves(store, LeafPage, owner);
    for (const Entry &other : m_entries) { // in an index over one Long these are nulls: first in order
        const auto bytes = key(other);
        entry.assign(bytes.begin(), bytes.end());
        appendBigEndian(other.row, entry);
        leaves.add(entry);
    }
    for (const std::uint64_t number : m_longs) {
        entry.assign({ValueFlag});
        appendBigEndian(number, entry);
        leaves.add(entry);
    }
    leaves.end();
    keepPages(leaves);

    std::vector<std::uint32_t> children = leaves.pages();
    std::vector<Bytes> lastEntries = leaves.lastEntries();
    for (bool overLeaves = true; children.size() > 1; overLeaves = false) {
        Level nodes(store, NodePage, owner);
        for (std::size_t child = 0; child < children.size(); ++child) {
            entry = lastEntries[child];
            // The entry of a node below ends with that node's child, which gives way to the node itself.
            if (!overLeaves)
                entry.erase(entry.end() - 4, entry.end());
            appendBigEndian(children[child], entry);
            nodes.add(entry);
        }
        nodes.end();
        keepPages(nodes);
        children = nodes.pages();
        lastEntries = nodes.lastEntries();
    }
    tree.root = children.front();
    return tree;
}

} // namespace kalvenor::jet::creating
