// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datenbankmodul.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kalvenor::data {

std::vector<HostTable> hostTables(const QString &sprache)
{
    using enum HostDatabase;
    return {
        {Family, u"Baum"_s},      {Family, u"Baum_DS"_s},      {Family, u"Bilder"_s},     {Family, u"Daten"_s},
        {Family, u"Daten_DS"_s},  {Family, u"Dokument"_s},     {Family, u"Ereignis"_s},   {Family, u"Ereignis_DS"_s},
        {Family, u"Familie"_s},   {Family, u"Galerie"_s},      {Family, u"Galerie_DS"_s}, {Family, u"Namen_DS"_s},
        {Family, u"Namen"_s},     {Family, u"Quellen_DS"_s},   {Family, u"Referenz"_s},   {Family, u"Ort"_s},
        {Family, u"Stichwort"_s}, {Family, u"Stichwort_DS"_s}, {Events, sprache},         {Events, u"Namenfont"_s},
        {Family, u"Adressen"_s},  {Family, u"Adressen_DS "_s}, // the host writes this name with one trailing blank
        {Family, u"Version"_s},   {History, u"Ereignis"_s},    {Names, u"Namen"_s},
    };
}

QString sideDatabaseFile(HostDatabase database)
{
    switch (database) {
    case HostDatabase::Family:
        return {};
    case HostDatabase::Events:
        return u"\\Ereignis.mdb"_s;
    case HostDatabase::History:
        return u"\\Geschichte.mdb"_s;
    case HostDatabase::Names:
        return u"\\namen.mdb"_s;
    case HostDatabase::Places:
        return u"\\orte.mdb"_s;
    }
    return {};
}

void Datenbankmodul::datenbankoeffnen(const basic::WindowsPath &familyDatabase)
{
    using enum HostDatabase;
    m_tables.clear();
    m_sideDatabases.clear();
    Familiendatenbank = m_engine.openDatabase(m_host.native(familyDatabase));
    for (const HostDatabase side : {Events, History, Names, Places})
        m_sideDatabases.push_back(
            m_engine.openDatabase(m_host.native(m_host.Hostverzeichnis + sideDatabaseFile(side))));

    for (const HostTable &table : hostTables(m_host.Sprache)) {
        const auto &database =
            table.database == Family
                ? Familiendatenbank
                : m_sideDatabases[static_cast<std::size_t>(table.database) - static_cast<std::size_t>(Events)];
        auto recordset = database->openTable(table.name);
        if (table.database == Family && table.name == u"Daten")
            Datentabelle = recordset;
        m_tables.push_back(std::move(recordset));
    }
}

std::vector<jet::Damage> Datenbankmodul::damage() const
{
    std::vector<jet::Damage> all = Familiendatenbank->damage();
    for (const auto &side : m_sideDatabases) {
        const std::vector<jet::Damage> more = side->damage();
        all.insert(all.end(), more.begin(), more.end());
    }
    return all;
}

} // namespace kalvenor::data
