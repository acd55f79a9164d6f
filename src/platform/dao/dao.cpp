// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/dao.h"

#include "platform/basic/error.h"
#include "platform/dao/dao_p.h"
#include <algorithm>
#include <unordered_set>

namespace kalvenor::dao {

using namespace Qt::StringLiterals;

SqlSession &Database::Private::open() const
{
    if (!session)
        throw basic::Error(basic::Fault::DatabaseClosed, {.file = file});
    return *session;
}

void Database::Private::reload()
{
    session = std::make_shared<SqlSession>(std::make_shared<Snapshot>(jet::Database::open(file)));
    ++generation;
    for (const std::shared_ptr<Recordset> &recordset : recordsets)
        recordset->d->letGo();
}

bool Database::Private::reloadIfStale()
{
    if (!open().snapshot()->database()->isStale())
        return false;
    reload();
    return true;
}

Database::Database(std::unique_ptr<Private> priv) : d(std::move(priv))
{
}

Database::~Database() = default;

const QString &Database::file() const
{
    return d->file;
}

bool Database::isOpen() const
{
    return d->session != nullptr;
}

std::shared_ptr<Recordset> Database::openTable(const QString &name)
{
    d->reloadIfStale();
    auto priv = std::make_unique<Recordset::Private>();
    priv->database = weak_from_this();
    priv->isTable = true;
    priv->snapshot = d->open().snapshot();
    QueryResult result;
    result.view = priv->snapshot->view(name);
    const jet::Table &table = *result.view->table();
    for (int i = 0; i < static_cast<int>(table.columns().size()); ++i) {
        result.names << table.columns()[static_cast<std::size_t>(i)].name;
        result.columns.push_back(i);
    }
    priv->place = tablePlace(d->file, table.name());
    priv->setResult(std::move(result));
    return d->recordsets.emplace_back(std::make_shared<Recordset>(std::move(priv)));
}

std::shared_ptr<Recordset> Database::openQuery(const QString &sql, const basic::Progress &progress)
{
    d->reloadIfStale();
    const std::shared_ptr<SqlSession> session = d->session;
    auto priv = std::make_unique<Recordset::Private>();
    priv->database = weak_from_this();
    priv->snapshot = session->snapshot();
    priv->place = {.file = d->file};
    priv->setResult(session->query(sql, progress));
    d->open(); // whoever watches the progress may have closed it
    std::erase_if(d->recordsets, [](const std::shared_ptr<Recordset> &recordset) {
        return recordset.use_count() == 1 && !recordset->d->isTable;
    });
    return d->recordsets.emplace_back(std::make_shared<Recordset>(std::move(priv)));
}

Execution Database::execute(const QString &sql, const basic::Progress &progress)
{
    return writeMarks([&](SqlSession &session) { return session.update(sql, progress); }, progress);
}

Execution Database::setMarks(const QString &table, std::span<const qint32> keys, bool value,
                             const basic::Progress &progress)
{
    const auto collect = [&](SqlSession &session) {
        UpdateResult update{session.snapshot()->view(table)};
        const LongIndex &index = update.view->index(keyColumnOf(*update.view->table()));
        for (const qint32 key : keys) {
            for (const quint32 row : index.rows(key))
                update.marks.push_back({row, value});
        }
        return update;
    };
    return writeMarks(collect, progress);
}

Execution Database::writeMarks(const std::function<UpdateResult(SqlSession &)> &collect,
                               const basic::Progress &progress)
{
    d->reloadIfStale();
    Execution execution;
    std::unordered_set<qint32> before; // changed by a first attempt that another program's change ended
    for (bool again = false;; again = true) {
        const std::shared_ptr<SqlSession> session = d->session;
        const UpdateResult update = collect(*session);
        d->open();
        TableView &view = *update.view;
        const jet::Table &table = *view.table();
        const int markColumn = markColumnOf(table);
        execution.matched = static_cast<qint64>(update.marks.size());
        if (update.marks.empty())
            break;
        const int keyColumn = keyColumnOf(table);
        const Bits old = view.marks(markColumn);
        try {
            const jet::MarksWritten written = session->snapshot()->write(view, markColumn, update.marks, progress);
            for (const quint32 row : written.changed) {
                table.fetchAhead(row);
                if (const auto key = table.integer(row, keyColumn); key && !before.contains(*key))
                    execution.changedKeys.push_back(*key);
            }
            for (const jet::LeftRow &row : written.left)
                execution.left.push_back({row.why, table.integer(row.row, keyColumn)});
            if (!before.empty()) {
                for (const jet::Mark &mark : update.marks)
                    before.erase(table.integer(mark.row, keyColumn).value_or(0));
                execution.matched += static_cast<qint64>(before.size());
            }
            break;
        } catch (const basic::Error &error) {
            if (error.kind() != basic::ErrorKind::ChangedElsewhere)
                throw;
            for (const jet::Mark &mark : update.marks) {
                const auto key = table.integer(mark.row, keyColumn);
                if (key && old.test(mark.row) != table.boolean(mark.row, markColumn) && before.insert(*key).second)
                    execution.changedKeys.push_back(*key);
            }
            if (again) {
                const basic::Error refused(basic::Fault::ChangedAgain, error.place());
                throw before.empty() ? refused : refused.with(basic::Fault::RowsChangedBefore, {before.size()});
            }
            d->reload();
        }
    }
    return execution;
}

MarkSnapshot Database::marks(const QString &table)
{
    const std::shared_ptr<TableView> view = d->open().snapshot()->view(table);
    return {view, view->marks(markColumnOf(*view->table()))};
}

bool Database::refresh()
{
    return d->reloadIfStale();
}

bool Database::isStale() const
{
    return d->open().snapshot()->database()->isStale();
}

quint64 Database::generation() const
{
    d->open();
    return d->generation;
}

std::vector<jet::Damage> Database::damage() const
{
    return d->open().snapshot()->damage();
}

const std::vector<std::shared_ptr<Recordset>> &Database::recordsets() const
{
    return d->recordsets;
}

void Database::close()
{
    if (!isOpen())
        return;
    const std::shared_ptr<Database> self = weak_from_this().lock();
    while (!d->recordsets.empty())
        d->recordsets.back()->close();
    d->session.reset();
    if (Engine *engine = std::exchange(d->engine, nullptr))
        std::erase(engine->m_databases, self);
}

std::shared_ptr<Database> Engine::openDatabase(const QString &file)
{
    auto priv = std::make_unique<Database::Private>();
    priv->file = file;
    priv->engine = this;
    priv->reload();
    return m_databases.emplace_back(std::make_shared<Database>(std::move(priv)));
}

void Engine::close()
{
    while (!m_databases.empty())
        std::shared_ptr<Database>(m_databases.back())->close();
}

} // namespace kalvenor::dao
