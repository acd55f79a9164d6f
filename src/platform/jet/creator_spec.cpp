// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator_spec.h"

#include "platform/basic/error.h"
#include "platform/jet/record.h"
#include "platform/jet/sortkey.h"
#include <algorithm>

namespace kalvenor::jet::creating {

namespace {

constexpr std::size_t maximumColumns = 255;
constexpr std::size_t maximumIndexes = 32;
constexpr std::size_t maximumIndexColumns = 10;
constexpr qsizetype maximumName = 64;
constexpr int maximumTextCharacters = 255;
constexpr int maximumBinaryBytes = 510;

[[noreturn]] void refuse(const QString &table, const QString &text)
{
    throw Error(ErrorKind::InvalidProcedureCall, table, text);
}

void checkName(const QString &table, const QString &name, const QString &what)
{
    if (name.isEmpty() || name.size() > maximumName) {
        refuse(table,
               QStringLiteral("The %1 name \"%2\" must have 1 to %3 characters.").arg(what, name).arg(maximumName));
    }
    const bool badCharacter = std::any_of(name.begin(), name.end(), [](QChar character) {
        return character.unicode() < 0x20 || QStringView(u".![]`").contains(character);
    });
    if (badCharacter || name.startsWith(u' ')) {
        refuse(table, QStringLiteral("The %1 name \"%2\" must not begin with a blank nor contain . ! [ ] ` or control "
                                     "characters.")
                          .arg(what, name));
    }
}

template <typename Items>
void checkNamesDiffer(const QString &table, const Items &items, const QString &what)
{
    for (std::size_t i = 0; i < items.size(); ++i) {
        checkName(table, items[i].name, what);
        for (std::size_t other = 0; other < i; ++other) {
            if (compareGeneral(items[i].name, items[other].name) == 0)
                refuse(table, QStringLiteral("The %1 name \"%2\" occurs twice.").arg(what, items[i].name));
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
            refuse(table, QStringLiteral("The length of column \"%1\" must be 1 to %2, not %3.")
                              .arg(wanted.name)
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
        column.length = static_cast<std::uint16_t>(2 * inRange(maximumTextCharacters));
        break;
    case ColumnType::Binary:
        column.flags = nullable;
        column.length = static_cast<std::uint16_t>(inRange(maximumBinaryBytes));
        break;
    case ColumnType::Memo:
    case ColumnType::Ole:
        column.flags = nullable;
        break;
    default:
        column.length = static_cast<std::uint16_t>(sizeOf(wanted.type));
        if (column.length == 0)
            refuse(table, QStringLiteral("Column \"%1\" has a type that is none.").arg(wanted.name));
    }
    if (wanted.compressed && (wanted.type == ColumnType::Text || wanted.type == ColumnType::Memo))
        column.extraFlags = compressible;
    if (wanted.type == ColumnType::Numeric) {
        column.scale = wanted.scale;
        if (wanted.scale > 28)
            refuse(table, QStringLiteral("Column \"%1\" can have 28 decimals at most.").arg(wanted.name));
    }
    if (wanted.autonumber) {
        if (wanted.type != ColumnType::Long)
            refuse(table, QStringLiteral("Column \"%1\" must be Long to be an autonumber.").arg(wanted.name));
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
    if (wanted.columns.empty() || wanted.columns.size() > maximumIndexColumns) {
        refuse(spec.name, QStringLiteral("Index \"%1\" must have 1 to %2 columns.")
                              .arg(wanted.name)
                              .arg(static_cast<int>(maximumIndexColumns)));
    }
    for (const QString &name : wanted.columns) {
        const auto found = std::find_if(spec.columns.begin(), spec.columns.end(),
                                        [&](const Column &column) { return column.name == name; });
        if (found == spec.columns.end() || !canBeIndexed(found->type)) {
            refuse(spec.name,
                   QStringLiteral("Index \"%1\" cannot be over \"%2\": there is no such column, or its type cannot be "
                                  "indexed.")
                       .arg(wanted.name, name));
        }
        if (std::find(index.columns.begin(), index.columns.end(), found->number) != index.columns.end())
            refuse(spec.name, QStringLiteral("Index \"%1\" names column \"%2\" twice.").arg(wanted.name, name));
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
    checkName(name, name, QStringLiteral("table"));
    try {
        generalKey(name, Unlisted::Refused);
    } catch (const Error &error) {
        refuse(name, error.text());
    }
    if (columns.empty() || columns.size() > maximumColumns || indexes.size() > maximumIndexes) {
        refuse(name, QStringLiteral("A table must have 1 to %1 columns and at most %2 indexes.")
                         .arg(static_cast<int>(maximumColumns))
                         .arg(static_cast<int>(maximumIndexes)));
    }
    checkNamesDiffer(name, columns, QStringLiteral("column"));
    checkNamesDiffer(name, indexes, QStringLiteral("index"));
    if (std::count_if(indexes.begin(), indexes.end(), [](const NewIndex &index) { return index.primary; }) > 1)
        refuse(name, QStringLiteral("A table can have one primary index only."));

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
