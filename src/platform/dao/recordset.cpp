// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/recordset.h"

#include "platform/basic/error.h"
#include "platform/basic/number.h"
#include "platform/dao/dao_p.h"
#include <algorithm>

namespace kalvenor::dao {

using namespace Qt::StringLiterals;

void Recordset::Private::requireOpen()
{
    if (!isOpen)
        throw basic::Error(basic::Fault::RecordsetClosed, place);
    if (snapshot)
        return;
    const std::shared_ptr<Database> owner = database.lock();
    if (!owner || !owner->isOpen())
        throw basic::Error(basic::Fault::DatabaseClosed, place);
    adopt(owner->d->session->snapshot());
}

void Recordset::Private::letGo()
{
    if (!isTable)
        return;
    snapshot.reset();
    result.view.reset();
    stand(-1);
}

void Recordset::Private::requireRow()
{
    requireOpen();
    if (!valid)
        throw basic::Error(basic::Fault::NoRow, place);
}

void Recordset::Private::requireTable()
{
    requireOpen();
    if (!isTable)
        throw basic::Error(basic::Fault::NotATable, place);
}

void Recordset::Private::requireField(int field)
{
    requireRow();
    if (field < 0 || field >= result.names.size())
        throw basic::Error(basic::Fault::FieldMissing, place, {field});
}

void Recordset::Private::stand(qint64 where)
{
    position = std::clamp<qint64>(where, 0, count);
    valid = where >= 0 && where < count;
    editing = false;
    edited.reset();
}

void Recordset::Private::fetchAhead() const
{
    constexpr std::size_t recordsAhead = 16;
    constexpr std::size_t placesAhead = 2 * recordsAhead;
    const auto at = static_cast<std::size_t>(position);
    if (at + placesAhead >= result.rows.size())
        return;
    const jet::Table &table = *result.view->table();
    table.fetchPlace(result.rows[at + placesAhead]);
    table.fetch(result.rows[at + recordsAhead]);
}

void Recordset::Private::setResult(QueryResult &&given)
{
    result = std::move(given);
    if (isTable)
        count = result.view->table()->rowCount();
    else if (result.view)
        count = static_cast<qint64>(result.rows.size());
    else
        count = result.names.isEmpty() ? 0 : static_cast<qint64>(result.cells.size()) / result.names.size();
    stand(0);
}

void Recordset::Private::adopt(const std::shared_ptr<Snapshot> &other)
{
    if (other == snapshot)
        return;
    const QString indexName = indexColumn < 0 ? QString() : result.names[indexColumn];
    QueryResult next;
    next.view = other->view(place.table);
    const jet::Table &table = *next.view->table();
    for (int i = 0; i < static_cast<int>(table.columns().size()); ++i) {
        next.names << table.columns()[static_cast<std::size_t>(i)].name;
        next.columns.push_back(i);
    }
    snapshot = other;
    indexColumn = indexName.isEmpty() ? -1 : table.columnOf(indexName);
    setResult(std::move(next));
    valid = false;
}

Recordset::Recordset(std::unique_ptr<Private> priv) : d(std::move(priv))
{
}

Recordset::~Recordset() = default;

bool Recordset::isOpen() const
{
    return d->isOpen;
}

void Recordset::close()
{
    if (!isOpen())
        return;
    d->isOpen = false;
    d->snapshot.reset();
    d->result = {};
    d->valid = false;
    const std::shared_ptr<Database> database = d->database.lock();
    if (!database)
        return;
    auto &recordsets = database->d->recordsets;
    const auto self = std::find_if(recordsets.begin(), recordsets.end(),
                                   [this](const std::shared_ptr<Recordset> &other) { return other.get() == this; });
    if (self != recordsets.end()) {
        const std::shared_ptr<Recordset> keep = *self; // may be the last to hold it
        recordsets.erase(self);
    }
}

qint64 Recordset::recordCount() const
{
    d->requireOpen();
    return d->count;
}

bool Recordset::eof() const
{
    d->requireOpen();
    return d->position >= d->count;
}

void Recordset::moveFirst()
{
    d->requireOpen();
    const std::shared_ptr<Database> database = d->database.lock();
    if (d->isTable && database && database->isOpen())
        d->adopt(database->d->session->snapshot());
    d->stand(0);
}

void Recordset::moveNext()
{
    d->requireOpen();
    if (eof())
        throw basic::Error(basic::Fault::BehindLastRow, d->place);
    d->stand(d->position + 1);
    d->fetchAhead();
}

void Recordset::moveTo(qint64 position)
{
    d->requireOpen();
    d->stand(position);
}

qint64 Recordset::position() const
{
    d->requireOpen();
    return d->position;
}

void Recordset::setIndex(const QString &name)
{
    d->requireTable();
    const jet::Table &table = *d->result.view->table();
    for (const jet::Index &index : table.indexes()) {
        if (index.name.compare(name, Qt::CaseInsensitive) != 0)
            continue;
        const auto &columns = table.columns();
        const auto column = std::find_if(columns.begin(), columns.end(), [&index](const jet::Column &candidate) {
            return index.columns.size() == 1 && candidate.number == index.columns.front().columnNumber;
        });
        if (column == columns.end() || !d->result.view->isWhole(static_cast<int>(column - columns.begin())))
            throw basic::Error(basic::Fault::IndexUnsuited, d->place, {name});
        d->indexColumn = static_cast<int>(column - columns.begin());
        return;
    }
    throw basic::Error(basic::Fault::IndexMissing, d->place, {name});
}

void Recordset::seekEqual(qint32 key)
{
    d->requireTable();
    const std::shared_ptr<Database> database = d->database.lock();
    if (database && database->isOpen())
        d->adopt(database->d->session->snapshot());
    if (d->indexColumn < 0)
        throw basic::Error(basic::Fault::NoIndexChosen, d->place);
    const auto rows = d->result.view->index(d->indexColumn).rows(key);
    d->noMatch = rows.empty();
    if (rows.empty()) {
        d->stand(0);
        d->valid = false;
    } else {
        d->stand(rows.front());
    }
}

bool Recordset::noMatch() const
{
    d->requireOpen();
    return d->noMatch;
}

void Recordset::edit()
{
    d->requireTable();
    d->requireRow();
    d->editing = true;
    d->edited.reset();
}

void Recordset::setValue(const QString &field, bool value)
{
    d->requireTable();
    d->requireRow();
    if (!d->editing)
        throw basic::Error(basic::Fault::NotInEdit, d->place);
    const int index = fieldIndex(field);
    if (d->result.names[index].compare(MarkColumnName, Qt::CaseInsensitive) != 0)
        throw basic::Error(basic::Fault::OnlyMark, d->place, {MarkColumnName, field});
    d->edited = value;
}

bool Recordset::update()
{
    d->requireTable();
    d->requireRow();
    if (!d->editing)
        throw basic::Error(basic::Fault::NotInEdit, d->place);
    const std::shared_ptr<Database> database = d->database.lock();
    const std::optional<bool> value = d->edited;
    d->editing = false;
    d->edited.reset();
    if (!value)
        return false;
    if (!database || !database->isOpen())
        throw basic::Error(basic::Fault::DatabaseClosed, d->place);

    const jet::Table &table = *d->result.view->table();
    const int keyColumn = keyColumnOf(table);
    const auto key = table.integer(d->row(), keyColumn);
    if (!key)
        throw basic::Error(basic::Fault::RowWithoutKey, d->place, {d->row()});
    const Execution done = database->setMarks(d->place.table, {&*key, 1}, *value);
    if (!done.left.empty())
        throw basic::Error(done.left.front().why, d->place, {*key, MarkColumnName});
    // The row may be another one in a newer state of the file; its key says which.
    d->adopt(database->d->open().snapshot());
    const auto rows = d->result.view->index(keyColumnOf(*d->result.view->table())).rows(*key);
    if (rows.empty())
        throw basic::Error(basic::Fault::RowDeleted, d->place);
    d->stand(rows.front());
    return !done.changedKeys.empty();
}

std::span<const quint32> Recordset::rows() const
{
    d->requireOpen();
    return d->result.rows;
}

qint64 Recordset::tableRowCount() const
{
    d->requireOpen();
    return d->result.view ? d->result.view->table()->rowCount() : 0;
}

bool Recordset::countsIn(const Recordset &other) const
{
    d->requireOpen();
    other.d->requireOpen();
    return d->result.view != nullptr && d->result.view == other.d->result.view;
}

int Recordset::fieldIndex(const QString &name) const
{
    d->requireOpen();
    const QStringList &names = d->result.names;
    for (int i = 0; i < static_cast<int>(names.size()); ++i) {
        if (names[i].compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    throw basic::Error(basic::Fault::ColumnMissing, d->place, {name});
}

QVariant Recordset::value(int field) const
{
    d->requireField(field);
    return d->result.view ? d->result.view->table()->value(d->row(), d->column(field)) : d->cell(field);
}

std::optional<double> Recordset::number(int field) const
{
    d->requireField(field);
    if (const auto &view = d->result.view) {
        if (view->typeOf(d->column(field)) == jet::ColumnType::Boolean)
            return view->table()->boolean(d->row(), d->column(field)) ? -1.0 : 0.0;
        return view->table()->number(d->row(), d->column(field));
    }
    const QVariant &cell = d->cell(field);
    switch (cell.typeId()) {
    case QMetaType::Bool:
        return cell.toBool() ? -1.0 : 0.0;
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return cell.toDouble();
    default:
        return {};
    }
}

std::optional<qint32> Recordset::integer(int field) const
{
    d->requireField(field);
    if (const auto &view = d->result.view; view && view->isWhole(d->column(field)))
        return view->table()->integer(d->row(), d->column(field));
    const auto value = number(field);
    return value ? std::optional(basic::toLong32(*value)) : std::nullopt;
}

bool Recordset::boolean(int field) const
{
    d->requireField(field);
    if (const auto &view = d->result.view; view && view->typeOf(d->column(field)) == jet::ColumnType::Boolean)
        return view->table()->boolean(d->row(), d->column(field));
    return number(field).value_or(0.0) != 0.0;
}

QStringView Recordset::text(int field, QString &buffer) const
{
    d->requireField(field);
    if (const auto &view = d->result.view; view && view->isText(d->column(field)))
        return view->table()->text(d->row(), d->column(field), buffer);
    return buffer = text(field);
}

QString Recordset::text(int field) const
{
    d->requireField(field);
    if (const auto &view = d->result.view; view && view->isText(d->column(field)))
        return view->table()->text(d->row(), d->column(field));
    if (const auto value = number(field))
        return basic::trimmedNumberText(*value);
    return this->value(field).toString();
}

} // namespace kalvenor::dao
