// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator_spec.h"

#include "platform/basic/error.h"
#include "platform/jet/order/sortkey.h"
#include "platform/jet/reader/record.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::jet::creating {

namespace {

constexpr std::size_t MaximumColumns = 255;
constexpr std::size_t MaximumIndexes = 32;
constexpr std::size_t MaximumIndexColumns = 10;
constexpr qsizetype MaximumName = 64;
constexpr int MaximumTextCharacters = 255;
constexpr int MaximumBinaryBytes = 510;

[[noreturn]] void refuse(const QString &table, const QString &text)
{
    throw basic::Error(basic::ErrorKind::InvalidProcedureCall, table, text);
}

void checkName(const QString &table, const QString &name, const QString &what)
{
    if (name.isEmpty() || name.size() > MaximumName) {
        refuse(table, u"The %1 name \"%2\" must have 1 to %3 characters."_s.arg(what, name).arg(MaximumName));
    }
    const bool badCharacter = std::any_of(name.begin(), name.end(), [](QChar character) {
        return character.unicode() < 0x20 || QStringView(u".![]`").contains(character);
    });
    if (badCharacter || name.startsWith(u' ')) {
        refuse(table, u"The %1 name \"%2\" must not begin with a blank nor contain . ! [ ] ` or control "
                      "characters."_s.arg(what, name));
    }
}

template <typename Items>
void checkNamesDiffer(const QString &table, const Items &items, const QString &what)
{
    for (std::size_t i = 0; i < items.size(); ++i) {
        checkName(table, items[i].name, what);
        for (std::size_t other = 0; other < i; ++other) {
            if (compareGeneral(items[i].name, items[other].name) == 0)
                refuse(table, u"The %1 name \"%2\" occurs twice."_s.arg(what, items[i].name));
        }
    }
}

Column columnOf(const QString &table, const NewColumn &wanted)
{
    Column column;
    column.name = wanted.name;
    column.type = wanted.type;
    column.flags = fixedLength | nullable;
    const auto inRange = [&](int limit) {
        const int length = wanted.length == 0 ? limit : wanted.length;
        if (length < 1 || length > limit) {
            refuse(table, u"The length of column \"%1\" must be 1 to %2, not %3."_s.arg(wanted.name)
                              .arg(limit)
                              .arg(wanted.length));
        }
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
        if (column.length == 0)
            refuse(table, u"Column \"%1\" has a type that is none."_s.arg(wanted.name));
    }
    if (wanted.compressed && (wanted.type == ColumnType::Text || wanted.type == ColumnType::Memo))
        column.extraFlags = Compressible;
    if (wanted.type == ColumnType::Numeric) {
        column.scale = wanted.scale;
        if (wanted.scale > 28)
            refuse(table, u"Column \"%1\" can have 28 decimals at most."_s.arg(wanted.name));
    }
    if (wanted.autonumber) {
        if (wanted.type != ColumnType::Long)
            refuse(table, u"Column \"%1\" must be Long to be an autonumber."_s.arg(wanted.name));
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
    if (wanted.columns.empty() || wanted.columns.size() > MaximumIndexColumns) {
        refuse(
            spec.name,
            u"Index \"%1\" must have 1 to %2 columns."_s.arg(wanted.name).arg(static_cast<int>(MaximumIndexColumns)));
    }
    for (const QString &name : wanted.columns) {
        const auto found = std::find_if(spec.columns.begin(), spec.columns.end(),
                                        [&](const Column &column) { return column.name == name; });
        if (found == spec.columns.end() || !canBeIndexed(found->type)) {
            refuse(spec.name, u"Index \"%1\" cannot be over \"%2\": there is no such column, or its type cannot be "
                              "indexed."_s.arg(wanted.name, name));
        }
        if (std::find(index.columns.begin(), index.columns.end(), found->number) != index.columns.end())
            refuse(spec.name, u"Index \"%1\" names column \"%2\" twice."_s.arg(wanted.name, name));
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
    checkName(name, name, u"table"_s);
    try {
        generalKey(name, Unlisted::Refused);
    } catch (const basic::Error &error) {
        throw error.at({.table = name});
    }
    if (columns.empty() || columns.size() > MaximumColumns || indexes.size() > MaximumIndexes) {
        refuse(name,
               u"A table must have 1 to %1 columns and at most %2 indexes."_s.arg(static_cast<int>(MaximumColumns))
                   .arg(static_cast<int>(MaximumIndexes)));
    }
    checkNamesDiffer(name, columns, u"column"_s);
    checkNamesDiffer(name, indexes, u"index"_s);
    if (std::count_if(indexes.begin(), indexes.end(), [](const NewIndex &index) { return index.primary; }) > 1)
        refuse(name, u"A table can have one primary index only."_s);

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
