// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/database.h"

#include "platform/basic/error.h"
#include "platform/jet/reader/usagemap.h"

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

constexpr std::uint32_t CataloguePage = 2;
constexpr std::uint32_t SystemFlags = 0x80000002;
constexpr qsizetype MaxWarnings = 50;

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

} // namespace

std::shared_ptr<Database> Database::open(const QString &file)
{
    return open(Image::load(file));
}

std::shared_ptr<Database> Database::open(std::shared_ptr<Image> image)
{
    auto database = std::make_shared<Database>();
    database->m_image = std::move(image);
    const qint64 rest = database->m_image->stamp().size % database->m_image->pageSize();
    if (rest != 0)
        database->warn(u"the last %1 bytes of the file are no whole page; it may be cut short"_s.arg(rest));
    if (isCutShort(*database->m_image))
        database->warn(u"the file lacks pages at its end that were in use; it was cut short"_s);
    database->readCatalogue();
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
                warn(u"table %1 is left out: the catalogue names no page for it"_s.arg(entry.name));
                continue;
            }
        } else {
            entry.linkedTo = linkTarget(*catalogue, columns, row);
        }
        addEntry(std::move(entry));
    }
    for (const QString &warning : catalogue->warnings())
        warn(u"table MSysObjects, %1"_s.arg(warning));
}

void Database::addEntry(CatalogueEntry entry)
{
    const QString folded = withoutCase(entry.name);
    if (m_byName.contains(folded)) {
        warn(u"table %1 is in the catalogue twice; the first counts"_s.arg(entry.name));
        return;
    }
    if (entry.definitionPage != 0) {
        if (m_byPage.contains(entry.definitionPage)) {
            warn(u"table %1 is left out: its page %2 is that of table %3"_s.arg(entry.name)
                     .arg(entry.definitionPage)
                     .arg(m_entries[m_byPage.value(entry.definitionPage)].name));
            return;
        }
        m_byPage.insert(entry.definitionPage, m_entries.size());
    }
    m_byName.insert(folded, m_entries.size());
    m_entries.push_back(std::move(entry));
}

void Database::warn(const QString &warning)
{
    if (m_warnings.size() < MaxWarnings)
        m_warnings.append(warning);
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
        throw basic::Error(basic::Fault::TableMissing, {.file = file()}, {name});
    if (!found->linkedTo.isEmpty())
        throw basic::Error(basic::Fault::TableLinked, {.file = file()}, {name, found->linkedTo});
    std::shared_ptr<const Table> &table = m_tables[found->name];
    if (!table)
        table = Table::read(m_image, found->name, found->definitionPage);
    return table;
}

bool Database::isStale() const
{
    return m_image->isStale();
}

} // namespace kalvenor::jet
