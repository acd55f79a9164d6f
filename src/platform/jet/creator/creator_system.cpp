// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator_system.h"

#include "platform/jet/order/sortkey.h"
#include "platform/jet/reader/encoding.h"
#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace kalvenor::jet::creating {

namespace {

// Date, header word and SIDs belong together: SIDs are masked by a value that goes with them, and how is not known.
// They are those of an empty database that the format's own library made.
constexpr double CreationDate = 42329.94480300926;
constexpr std::uint32_t HeaderWord = 0x261c;
const char *const EngineSid = "\x65\x89";
const char *const AdminsSid = "\x64\x8b";
const char *const UsersSid = "\x65\x8b";
const char *const CreatorOwnerSid = "\x65\x8e";

constexpr std::int32_t RootContainer = 0x0f000000;
constexpr std::int32_t TablesContainer = 0x0f000001;
constexpr std::int32_t DatabasesContainer = 0x0f000002;
constexpr std::int32_t RelationshipsContainer = 0x0f000003;
constexpr std::int32_t DatabaseObject = 0x10000000;
constexpr std::int32_t SystemObject = INT32_MIN; ///< flag 0x80000000

constexpr std::int32_t TypeTable = 1;
constexpr std::int32_t TypeDatabase = 2;
constexpr std::int32_t TypeContainer = 3;

enum Place : std::size_t { objects, accessRights, queries, relationships };
constexpr std::int32_t FirstDefinition = 2;

Column systemColumn(const char *name, ColumnType type, std::uint16_t length, bool sid = false)
{
    Column column;
    column.name = QLatin1String(name);
    column.type = type;
    column.length = length;
    const bool isVariable = type == ColumnType::Text || type == ColumnType::Binary || isLongValue(type);
    column.flags = static_cast<std::uint8_t>(ColumnFlag::systemColumn | nullable | (isVariable ? 0 : fixedLength) |
                                             (sid ? ownerColumn : 0));
    return column;
}

Column longColumn(const char *name)
{
    return systemColumn(name, ColumnType::Long, 4);
}

Column textColumn(const char *name)
{
    return systemColumn(name, ColumnType::Text, 510);
}

IndexSpec index(const char *name, std::vector<std::uint16_t> columns, unsigned flags)
{
    return {QLatin1String(name), std::move(columns), static_cast<std::uint8_t>(alwaysSet | flags), false};
}

TableSpec systemTable(const char *name, std::vector<Column> columns, std::vector<IndexSpec> indexes)
{
    TableSpec spec;
    spec.name = QLatin1String(name);
    spec.system = true;
    spec.columns = std::move(columns);
    spec.indexes = std::move(indexes);
    layOut(spec);
    return spec;
}

std::vector<TableSpec> systemTableSpecs()
{
    using enum ColumnType;
    const auto ole = [](const char *name) {
        return systemColumn(name, Ole, 0);
    };
    std::vector<TableSpec> specs;
    specs.push_back(systemTable(
        "MSysObjects",
        {longColumn("Id"), longColumn("ParentId"), textColumn("Name"), systemColumn("Type", Integer, 2),
         systemColumn("DateCreate", DateTime, 8), systemColumn("DateUpdate", DateTime, 8),
         systemColumn("Owner", Binary, 510, true), longColumn("Flags"), systemColumn("Database", Memo, 0),
         systemColumn("Connect", Memo, 0), textColumn("ForeignName"), systemColumn("RmtInfoShort", Binary, 510),
         ole("RmtInfoLong"), ole("Lv"), ole("LvProp"), ole("LvModule"), ole("LvExtra")},
        {index("ParentIdName", {1, 2}, uniqueKeys), index("Id", {0}, uniqueKeys)}));
    specs.push_back(systemTable("MSysACEs",
                                {longColumn("ObjectId"), systemColumn("SID", Binary, 510, true), longColumn("ACM"),
                                 systemColumn("FInheritable", Boolean, 1)},
                                {index("ObjectId", {0}, requiresValues)}));
    specs.push_back(
        systemTable("MSysQueries",
                    {longColumn("ObjectId"), systemColumn("Attribute", Byte, 1), systemColumn("Order", Binary, 510),
                     textColumn("Name1"), textColumn("Name2"), systemColumn("Expression", Memo, 0),
                     systemColumn("Flag", Integer, 2), longColumn("LvExtra")},
                    {index("ObjectIdAttribute", {0, 1, 2}, uniqueKeys)}));
    specs.push_back(systemTable("MSysRelationships",
                                {textColumn("szRelationship"), longColumn("grbit"), longColumn("ccolumn"),
                                 longColumn("icolumn"), textColumn("szObject"), textColumn("szColumn"),
                                 textColumn("szReferencedObject"), textColumn("szReferencedColumn")},
                                {index("szRelationship", {0}, ignoresNulls), index("szObject", {4}, ignoresNulls),
                                 index("szReferencedObject", {6}, ignoresNulls)}));
    return specs;
}

void addObject(TableBuilder &table, std::int32_t id, std::int32_t parent, const QString &name, std::int32_t type,
               const char *owner, std::int32_t flags)
{
    std::vector<NewValue> row(table.spec().columns.size());
    row[0] = id;
    row[1] = parent;
    row[2] = name;
    row[3] = type;
    row[4] = CreationDate;
    row[5] = CreationDate;
    row[6] = QByteArray(owner);
    row[7] = flags;
    table.addRow(row);
}

struct AccessRight {
    std::int32_t object;
    const char *sid;
    std::int32_t rights;
    bool inheritable;
};

void addAccessRight(TableBuilder &table, const AccessRight &right)
{
    const NewValue row[] = {right.object, QByteArray(right.sid), right.rights, right.inheritable};
    table.addRow(row);
}

} // namespace

SystemTables::SystemTables(PageStore &store)
{
    store.add(); // header
    store.add(); // global maps
    for (TableSpec &spec : systemTableSpecs())
        m_tables.push_back(std::make_unique<TableBuilder>(store, std::move(spec)));
    for (const auto &table : m_tables)
        table->reserveMaps();
}

bool SystemTables::hasName(QStringView name) const
{
    // The containers' names have another parent, the database's too.
    return std::any_of(m_tables.begin(), m_tables.end(),
                       [name](const auto &table) { return compareGeneral(table->spec().name, name) == 0; });
}

void SystemTables::addRows(const std::vector<const TableBuilder *> &userTables)
{
    TableBuilder &catalogue = *m_tables[objects];
    for (const auto &[id, name] : {std::pair(TablesContainer, "Tables"), std::pair(DatabasesContainer, "Databases"),
                                   std::pair(RelationshipsContainer, "Relationships")})
        addObject(catalogue, id, RootContainer, QLatin1String(name), TypeContainer, EngineSid, SystemObject);
    addObject(catalogue, DatabaseObject, DatabasesContainer, u"MSysDb"_s, TypeDatabase, AdminsSid, SystemObject);
    for (const auto &table : m_tables) {
        addObject(catalogue, static_cast<std::int32_t>(table->definitionPage()), TablesContainer, table->spec().name,
                  TypeTable, EngineSid, SystemObject);
    }

    constexpr auto page = [](Place place) {
        return FirstDefinition + static_cast<std::int32_t>(place);
    };
    const AccessRight rights[] = {
        {page(objects), AdminsSid, 0x60000, false},
        {page(accessRights), AdminsSid, 0x60000, false},
        {page(queries), AdminsSid, 0x60000, false},
        {page(relationships), AdminsSid, 0xe0000, false},
        {page(queries), UsersSid, 0x14, false},
        {page(relationships), UsersSid, 0x14, false},
        {page(objects), UsersSid, 0x14, false},
        {TablesContainer, CreatorOwnerSid, 0xf00fe, true},
        {TablesContainer, AdminsSid, 0x60001, false},
        {TablesContainer, UsersSid, 0xffeff, true},
        {RelationshipsContainer, CreatorOwnerSid, 0xf00fe, true},
        {RelationshipsContainer, AdminsSid, 0x60001, false},
        {RelationshipsContainer, UsersSid, 0xfffff, true},
        {DatabasesContainer, AdminsSid, 0x60000, false},
        {DatabaseObject, AdminsSid, 0x6000e, false},
        {DatabaseObject, UsersSid, 14, false},
    };
    TableBuilder &access = *m_tables[accessRights];
    for (const AccessRight &right : rights)
        addAccessRight(access, right);
    for (const TableBuilder *table : userTables) {
        const auto id = static_cast<std::int32_t>(table->definitionPage());
        addObject(catalogue, id, TablesContainer, table->spec().name, TypeTable, AdminsSid, 0);
        addAccessRight(access, {id, AdminsSid, 0xfffff, false});
        addAccessRight(access, {id, UsersSid, 0xfffff, false});
    }
    for (const auto &table : m_tables)
        table->sortIndexes();
}

void SystemTables::finish()
{
    for (const auto &table : m_tables)
        table->finish();
}

void fillHeaderPage(std::uint8_t *page, std::uint32_t encodingKey)
{
    constexpr std::uint32_t codePage = 1252;
    constexpr std::uint32_t general = 0x0409;
    constexpr std::uint32_t firstCounter = 0x0101;
    constexpr std::uint16_t unusedCounter = 0x0100;
    constexpr std::size_t counters = 0xe00;

    std::memset(page, 0, PageSize);
    put(page, std::uint32_t{0x100});
    const QByteArray name("Standard Jet DB");
    std::copy(name.begin(), name.end(), page + 4);
    put(page + 0x14, std::uint32_t{1});
    put(page + 0x18, std::uint32_t{0x100});
    put(page + 0x1c, std::uint32_t{0x101});
    for (std::uint32_t table = 0; table < 4; ++table)
        put(page + 0x20 + 4 * table, 2 + table);
    put(page + 0x3c, static_cast<std::uint16_t>(codePage));
    put(page + 0x3e, encodingKey);
    // An empty password is the date word, ten times.
    for (std::uint32_t i = 0; i < 10; ++i)
        put(page + 0x42 + 4 * i, static_cast<std::uint32_t>(CreationDate));
    put(page + 0x6a, HeaderWord);
    put(page + 0x6e, general);
    put(page + 0x72, CreationDate);
    put(page + 0x98, std::uint32_t{0x654});
    put(page + 0x9c, std::uint32_t{0x00302E34}); // "4.0"
    put(page + counters, static_cast<std::uint16_t>(firstCounter));
    for (std::size_t at = counters + 2; at < PageSize; at += 2)
        put(page + at, unusedCounter);
    maskHeader({page, PageSize}, true);
}

} // namespace kalvenor::jet::creating
