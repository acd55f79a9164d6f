// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/database.h"

#include "platform/basic/error.h"
#include "platform/jet/reader/definition.h"
#include "platform/jet/reader/usagemap.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

constexpr std::uint32_t CataloguePage = 2;
constexpr std::uint32_t SystemFlags = 0x80000002;

/// Types of catalogue rows that name tables.
constexpr int LocalTable = 1;
constexpr int OdbcTable = 4;
constexpr int LinkedTable = 6;

QString withoutCase(const QString &name)
{
    return name.toCaseFolded();
}

/// The columns a reader needs of the catalogue, found by name.
struct CatalogueColumns {
    int id, name, type, flags, database, foreignName;

    explicit CatalogueColumns(const Table &table)
        : id(table.columnOf(u"Id")), name(table.columnOf(u"Name")), type(table.columnOf(u"Type")),
          flags(table.columnOf(u"Flags")), database(table.columnOf(u"Database")),
          foreignName(table.columnOf(u"ForeignName"))
    {
        if (id < 0 || name < 0 || type < 0 || flags < 0)
            throw basic::Error(basic::Fault::CatalogueDamaged, {.file = table.image().file(), .page = CataloguePage});
    }
};

QString linkTarget(const Table &catalogue, const CatalogueColumns &columns, std::uint32_t row)
{
    const QString file = columns.database < 0 ? QString() : catalogue.text(row, columns.database);
    const QString table = columns.foreignName < 0 ? QString() : catalogue.text(row, columns.foreignName);
    if (file.isEmpty())
        return table.isEmpty() ? u"another database"_s : u"table %1"_s.arg(table);
    return table.isEmpty() ? file : u"%1 (table %2)"_s.arg(file, table);
}

/// The page for lack of which a table could not be read; 0 where it was something else.
std::uint32_t lackedBy(const basic::Error &error)
{
    const std::vector<basic::Argument> &arguments = error.parts().front().arguments;
    std::uint32_t page = 0;
    if (error.fault() == basic::Fault::UsageMapMissing)
        page = arguments.front().text.toUInt();
    else if (error.fault() == basic::Fault::DefinitionDamaged &&
             arguments.front().word == basic::Fault::WordPageBeyondEnd)
        page = static_cast<std::uint32_t>(error.place().page);
    return page < MostPages ? page : 0;
}

} // namespace

std::shared_ptr<Database> Database::open(const QString &file)
{
    return open(Image::load(file));
}

std::shared_ptr<Database> Database::open(std::shared_ptr<Image> image)
{
    auto database = std::make_shared<Database>();
    database->m_image = std::move(image);
    try {
        database->readCatalogue();
    } catch (const basic::Error &error) {
        const std::uint32_t count = database->m_image->pageCount();
        if (lackedBy(error) < count)
            throw;
        database->m_missingPages = lackedBy(error) + 1 - count;
        throw database->incomplete().with(error);
    }
    const qint64 rest = database->m_image->stamp().size % database->m_image->pageSize();
    if (rest != 0 && database->m_missingPages == 0)
        database->note(basic::Fault::PartialPage, {rest});
    return database;
}

void Database::readCatalogue()
{
    const auto catalogue = Table::read(m_image, u"MSysObjects"_s, CataloguePage);
    const CatalogueColumns columns(*catalogue);
    for (std::uint32_t row = 0; row < catalogue->rowCount(); ++row) {
        const int type = catalogue->integer(row, columns.type).value_or(0);
        if (type != LocalTable && type != OdbcTable && type != LinkedTable)
            continue;
        CatalogueEntry entry;
        entry.name = catalogue->text(row, columns.name);
        if (entry.name.isEmpty())
            continue;
        const auto flags = static_cast<std::uint32_t>(catalogue->integer(row, columns.flags).value_or(0));
        entry.system = (flags & SystemFlags) != 0;
        if (type == LocalTable) {
            entry.definitionPage =
                static_cast<std::uint32_t>(catalogue->integer(row, columns.id).value_or(0)) & 0xffffff;
            if (entry.definitionPage == 0) {
                note(basic::Fault::TableWithoutPage, {entry.name});
                continue;
            }
        } else {
            entry.linkedTo = linkTarget(*catalogue, columns, row);
        }
        addEntry(std::move(entry));
    }
    findMissingPages(*catalogue);
    for (const Damage &damage : catalogue->damage())
        m_damage.note(damage);
}

void Database::findMissingPages(const Table &catalogue)
{
    const std::uint32_t count = m_image->pageCount();
    std::uint32_t end = std::max(count, catalogue.pagesNeeded());
    const auto needs = [&end](std::uint32_t page) {
        end = std::max(end, page + 1);
    };
    for (const CatalogueEntry &entry : m_entries) {
        if (entry.definitionPage == 0)
            continue;
        try {
            const Definition definition = readDefinition(*m_image, entry.name, entry.definitionPage);
            const auto goesBeyond = [this, count](std::uint32_t map) {
                return readUsageMap(*m_image, map).end > count;
            };
            const auto isBeyond = [count](std::uint32_t page) {
                return page >= count;
            };
            // Only then it is worth while to look for the rows.
            if (goesBeyond(definition.ownedPages) || std::ranges::any_of(definition.indexPages, isBeyond) ||
                std::ranges::any_of(definition.otherMaps, goesBeyond))
                end = std::max(end, table(entry.name)->pagesNeeded());
        } catch (const basic::Error &error) {
            needs(lackedBy(error)); // whoever reads the table hears of the rest
        }
    }
    m_missingPages = end - count;
    if (m_missingPages > 0)
        note(basic::Fault::FileCutShort, incomplete().parts().front().arguments);
}

basic::Error Database::incomplete(basic::Fault fault) const
{
    const qint64 pageSize = m_image->pageSize();
    const qint64 bytes = m_missingPages * pageSize - m_image->stamp().size % pageSize;
    return basic::Error(fault, {.file = file()}, {m_missingPages, bytes});
}

void Database::addEntry(CatalogueEntry entry)
{
    const QString folded = withoutCase(entry.name);
    if (m_byName.contains(folded)) {
        note(basic::Fault::TableTwice, {entry.name});
        return;
    }
    if (entry.definitionPage != 0) {
        if (m_byPage.contains(entry.definitionPage)) {
            note(basic::Fault::TablePageTaken, {entry.name, m_entries[m_byPage.value(entry.definitionPage)].name});
            return;
        }
        m_byPage.insert(entry.definitionPage, m_entries.size());
    }
    m_byName.insert(folded, m_entries.size());
    m_entries.push_back(std::move(entry));
}

void Database::note(basic::Fault fault, std::vector<basic::Argument> arguments)
{
    m_damage.note({.file = file()}, -1, fault, std::move(arguments));
}

const CatalogueEntry *Database::entry(const QString &name) const
{
    const auto found = m_byName.constFind(withoutCase(name));
    return found == m_byName.constEnd() ? nullptr : &m_entries[*found];
}

std::shared_ptr<const Table> Database::table(const QString &name)
{
    const CatalogueEntry *const found = entry(name);
    if (found == nullptr)
        throw m_missingPages > 0 ? incomplete() : basic::Error(basic::Fault::TableMissing, {.file = file()}, {name});
    if (!found->linkedTo.isEmpty())
        throw basic::Error(basic::Fault::TableLinked, {.file = file()}, {name, found->linkedTo});
    const auto read = m_tables.find(found->name);
    if (read != m_tables.end())
        return read->second;
    try {
        return m_tables.emplace(found->name, Table::read(m_image, found->name, found->definitionPage)).first->second;
    } catch (const basic::Error &error) {
        if (m_missingPages > 0)
            throw incomplete().with(error);
        throw;
    }
}

bool Database::isStale() const
{
    return m_image->isStale();
}

} // namespace kalvenor::jet
