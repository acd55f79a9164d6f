// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator_spec.h"

#include "platform/basic/error.h"
#include "platform/jet/order/sortkey.h"
#include "platform/jet/reader/record.h"
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::jet::creating {

namespace {

constexpr std::size_t MaximumColumns = 255;
constexpr std::size_t MaximumIndexes = 32;
constexpr std::size_t MaximumIndexColumns = 10;
constexpr qsizetype MaximumName = 64;
constexpr int MaximumTextCharacters = 255;
constexpr int MaximumBinaryBytes = 510;

[[noreturn]] void refuse(const QString &table, basic::Fault fault, std::vector<basic::Argument> arguments)
{
    throw basic::Error(fault, {.table = table}, std::move(arguments));
}

void checkName(const QString &table, const QString &name)
{
    const bool badCharacter = std::any_of(name.begin(), name.end(), [](QChar character) {
        return character.unicode() < 0x20 || QStringView(u".![]`").contains(character);
    });
    if (name.isEmpty() || name.size() > MaximumName || badCharacter || name.startsWith(u' '))
        refuse(table, basic::Fault::NameUnsuited, {name});
}

template <typename Items>
void checkNamesDiffer(const QString &table, const Items &items)
{
    for (std::size_t i = 0; i < items.size(); ++i) {
        checkName(table, items[i].name);
        for (std::size_t other = 0; other < i; ++other) {
            if (compareGeneral(items[i].name, items[other].name) == 0)
                refuse(table, basic::Fault::NameTwice, {items[i].name});
        }
    }
}

Column columnOf(const QString &table, const NewColumn &wanted)
{
    Column column;
    column.name = wanted.name;
    column.type = wanted.type;
    column.flags = fixedLength | nullable;
    const auto require = [&](bool isPossible) {
        if (!isPossible)
            refuse(table, basic::Fault::ColumnImpossible, {wanted.name});
    };
    const auto inRange = [&](int limit) {
        const int length = wanted.length == 0 ? limit : wanted.length;
        require(length >= 1 && length <= limit);
        return length;
    };
    switch (wanted.type) {
    case ColumnType::Boolean:
        column.length = 1;
        break;
    case ColumnType::Text:
        column.flags = nullable;
        column.length = static_cast<std::uint16_t>(2 * inRange(MaximumTextCharacters));
        break;
    case ColumnType::Binary:
        column.flags = nullable;
        column.length = static_cast<std::uint16_t>(inRange(MaximumBinaryBytes));
        break;
    case ColumnType::Memo:
    case ColumnType::Ole:
        column.flags = nullable;
        break;
    default:
        column.length = static_cast<std::uint16_t>(sizeOf(wanted.type));
        require(column.length != 0);
    }
    if (wanted.compressed && (wanted.type == ColumnType::Text || wanted.type == ColumnType::Memo))
        column.extraFlags = Compressible;
    if (wanted.type == ColumnType::Numeric) {
        column.scale = wanted.scale;
        require(wanted.scale <= 28);
    }
    if (wanted.autonumber) {
        require(wanted.type == ColumnType::Long);
        column.flags |= autonumber;
    }
    return column;
}

bool canBeIndexed(ColumnType type)
{
    switch (type) {
    case ColumnType::Boolean:
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
    case ColumnType::Float:
    case ColumnType::Double:
    case ColumnType::DateTime:
    case ColumnType::Text:
        return true;
    default:
        return false;
    }
}

IndexSpec indexOf(const TableSpec &spec, const NewIndex &wanted)
{
    IndexSpec index;
    index.name = wanted.name;
    index.primary = wanted.primary;
    if (wanted.primary)
        index.flags = alwaysSet | requiresValues | uniqueKeys;
    else if (wanted.unique)
        index.flags = alwaysSet | uniqueKeys;
    const auto require = [&](bool isPossible) {
        if (!isPossible)
            refuse(spec.name, basic::Fault::IndexImpossible, {wanted.name});
    };
    require(!wanted.columns.empty() && wanted.columns.size() <= MaximumIndexColumns);
    for (const QString &name : wanted.columns) {
        const auto found = std::find_if(spec.columns.begin(), spec.columns.end(),
                                        [&](const Column &column) { return column.name == name; });
        require(found != spec.columns.end() && canBeIndexed(found->type));
        require(std::find(index.columns.begin(), index.columns.end(), found->number) == index.columns.end());
        index.columns.push_back(found->number);
    }
    return index;
}

} // namespace

void layOut(TableSpec &spec)
{
    spec.variableColumns = 0;
    spec.fixedBytes = 0;
    std::uint16_t number = 0;
    for (Column &column : spec.columns) {
        column.number = number++;
        column.variableIndex = spec.variableColumns;
        if (!column.isFixed()) {
            ++spec.variableColumns;
        } else if (column.type != ColumnType::Boolean) {
            column.fixedOffset = spec.fixedBytes;
            spec.fixedBytes = static_cast<std::uint16_t>(spec.fixedBytes + column.length);
        }
    }
}

TableSpec userTable(const QString &name, const std::vector<NewColumn> &columns, const std::vector<NewIndex> &indexes)
{
    checkName(name, name);
    try {
        generalKey(name, Unlisted::Refused);
    } catch (const basic::Error &error) {
        throw error.at({.table = name});
    }
    if (columns.empty() || columns.size() > MaximumColumns || indexes.size() > MaximumIndexes)
        refuse(name, basic::Fault::TableTooWide, {MaximumColumns, MaximumIndexes});
    checkNamesDiffer(name, columns);
    checkNamesDiffer(name, indexes);
    if (std::count_if(indexes.begin(), indexes.end(), [](const NewIndex &index) { return index.primary; }) > 1)
        refuse(name, basic::Fault::IndexImpossible, {indexes.back().name});

    TableSpec spec;
    spec.name = name;
    for (const NewColumn &column : columns)
        spec.columns.push_back(columnOf(name, column));
    layOut(spec);
    for (const NewIndex &index : indexes)
        spec.indexes.push_back(indexOf(spec, index));
    return spec;
}

} // namespace kalvenor::jet::creating
