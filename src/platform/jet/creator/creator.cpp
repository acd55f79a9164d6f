// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator.h"

#include "platform/basic/error.h"
#include "platform/jet/creator/creator_system.h"
#include "platform/jet/creator/creator_table.h"
#include "platform/jet/order/sortkey.h"
#include "platform/jet/reader/encoding.h"
#include "platform/storage/replacement.h"
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

using namespace creating;

struct Creator::Table::Impl {
    Impl(PageStore &store, TableSpec spec, const bool &complete) : builder(store, std::move(spec)), isComplete(complete)
    {
        builder.reserveMaps();
    }

    TableBuilder builder;
    const bool &isComplete;
};

struct Creator::Impl {
    PageStore store;
    SystemTables system{store};
    std::vector<std::unique_ptr<Table>> tables;
    bool isComplete = false;

    /// Indexes, maps, definitions and catalogue; the first time only.
    void complete();
};

namespace {

[[noreturn]] void refuseAfterWrite(const QString &table)
{
    throw basic::Error(basic::Fault::Misuse, {.table = table}, {u"a database takes nothing once it is written"_s});
}

} // namespace

Creator::Table::Table(std::unique_ptr<Impl> impl) : m_impl(std::move(impl))
{
}
Creator::Table::~Table() = default;

void Creator::Table::addRow(std::span<const NewValue> values)
{
    if (m_impl->isComplete)
        refuseAfterWrite(m_impl->builder.spec().name);
    m_impl->builder.addRow(values);
}

std::uint32_t Creator::Table::rowCount() const
{
    return m_impl->builder.rowCount();
}

Creator::Creator() : m_impl(std::make_unique<Impl>())
{
}
Creator::~Creator() = default;

Creator::Table &Creator::addTable(const QString &name, const std::vector<NewColumn> &columns,
                                  const std::vector<NewIndex> &indexes)
{
    if (m_impl->isComplete)
        refuseAfterWrite(name);
    TableSpec spec = userTable(name, columns, indexes);
    const bool taken = m_impl->system.hasName(name) ||
                       std::any_of(m_impl->tables.begin(), m_impl->tables.end(), [&](const auto &table) {
                           return compareGeneral(table->m_impl->builder.spec().name, name) == 0;
                       });
    if (taken)
        throw basic::Error(basic::Fault::NameTwice, {.table = name}, {name});
    m_impl->tables.push_back(std::unique_ptr<Table>(
        new Table(std::make_unique<Table::Impl>(m_impl->store, std::move(spec), m_impl->isComplete))));
    return *m_impl->tables.back();
}

void Creator::Impl::complete()
{
    for (const auto &table : tables)
        table->m_impl->builder.sortIndexes();
    isComplete = true;
    std::vector<const TableBuilder *> builders;
    for (const auto &table : tables) {
        table->m_impl->builder.finish();
        builders.push_back(&table->m_impl->builder);
    }
    system.addRows(builders);
    system.finish();
    fillGlobalMaps(store);
}

void Creator::write(const QString &file, std::uint32_t encodingKey)
{
    if (!m_impl->isComplete)
        m_impl->complete();
    PageStore &store = m_impl->store;
    storage::Replacement out(basic::NativePath(file), storage::Origin::NewHost);
    const auto check = [&](bool success) {
        if (!success)
            throw basic::Error(basic::Fault::NotWritten, {.file = file}, {out.errorText()});
    };
    check(!out.hasFailed());
    std::array<std::uint8_t, PageSize> buffer;
    for (std::uint32_t page = 0; page < store.count(); ++page) {
        std::copy_n(store.page(page), PageSize, buffer.begin());
        if (page == 0)
            fillHeaderPage(buffer.data(), encodingKey);
        else if (encodingKey != 0)
            encodePage(buffer, encodingKey, page);
        check(out.append({reinterpret_cast<const char *>(buffer.data()), PageSize}));
    }
    check(out.commit());
}

} // namespace kalvenor::jet
