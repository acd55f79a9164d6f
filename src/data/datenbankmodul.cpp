// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datenbankmodul.h"

#include <array>

namespace kalvenor::data {

std::vector<HostTable> hostTables(const QString &sprache)
{
    using enum HostDatabase;
    return {
        {Family, QStringLiteral("Baum")},
        {Family, QStringLiteral("Baum_DS")},
        {Family, QStringLiteral("Bilder")},
        {Family, QStringLiteral("Daten")},
        {Family, QStringLiteral("Daten_DS")},
        {Family, QStringLiteral("Dokument")},
        {Family, QStringLiteral("Ereignis")},
        {Family, QStringLiteral("Ereignis_DS")},
        {Family, QStringLiteral("Familie")},
        {Family, QStringLiteral("Galerie")},
        {Family, QStringLiteral("Galerie_DS")},
        {Family, QStringLiteral("Namen_DS")},
        {Family, QStringLiteral("Namen")},
        {Family, QStringLiteral("Quellen_DS")},
        {Family, QStringLiteral("Referenz")},
        {Family, QStringLiteral("Ort")},
        {Family, QStringLiteral("Stichwort")},
        {Family, QStringLiteral("Stichwort_DS")},
        {Events, sprache},
        {Events, QStringLiteral("Namenfont")},
        {Family, QStringLiteral("Adressen")},
        {Family, QStringLiteral("Adressen_DS ")}, // the host writes this name with one trailing blank
        {Family, QStringLiteral("Version")},
        {History, QStringLiteral("Ereignis")},
        {Names, QStringLiteral("Namen")},
    };
}

QString sideDatabaseFile(HostDatabase database)
{
    switch (database) {
    case HostDatabase::Family:
        return {};
    case HostDatabase::Events:
        return QStringLiteral("\\Ereignis.mdb");
    case HostDatabase::History:
        return QStringLiteral("\\Geschichte.mdb");
    case HostDatabase::Names:
        return QStringLiteral("\\namen.mdb");
    case HostDatabase::Places:
        return QStringLiteral("\\orte.mdb");
    }
    return {};
}

void Datenbankmodul::datenbankoeffnen(const QString &familyDatabase)
{
    using enum HostDatabase;
    dao::Workspace &workspace = m_engine.workspace(0);
    m_tables.clear();
    m_sideDatabases.clear();
    Familiendatenbank = workspace.openDatabase(m_host.native(familyDatabase));
    for (const HostDatabase side : {Events, History, Names, Places})
        m_sideDatabases.push_back(
            workspace.openDatabase(m_host.native(m_host.Hostverzeichnis + sideDatabaseFile(side))));

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

} // namespace kalvenor::data
