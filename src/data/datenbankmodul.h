// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "platform/dao/dao.h"
#include <memory>
#include <QString>
#include <span>
#include <vector>

namespace kalvenor::data {

/// The databases of a host installation.
enum class HostDatabase { Family, Events, History, Names, Places };

/// One table that start-up opens. An empty name stands for the interface language.
struct HostTable {
    HostDatabase database;
    QString name;
};

/// All tables in the order in which they are opened, the language's table under its name.
std::vector<HostTable> hostTables(const QString &sprache);
/// File of a side database, from the host folder on: "\Ereignis.mdb". Empty for the family database.
QString sideDatabaseFile(HostDatabase database);

/// The host's databases, open from start to end. Only the family database and `Datentabelle` are used; the other
/// tables are held open because that proves a complete host installation.
class Datenbankmodul {
public:
    Datenbankmodul(const host::Host &host, dao::Engine &engine) : m_host(host), m_engine(engine) {}

    std::shared_ptr<dao::Database> Familiendatenbank;
    std::shared_ptr<dao::Recordset> Datentabelle; ///< the person table, for seeks on its index "Counter"

    /// Opens the family database, the side databases and all tables, in their order. Throws the
    /// engine's Error, naming the file or table, at the first one that is missing or damaged.
    void datenbankoeffnen(const basic::WindowsPath &familyDatabase);

    /// What damage was passed over so far in any of the databases.
    std::vector<jet::Damage> damage() const;

private:
    const host::Host &m_host;
    dao::Engine &m_engine;
    std::vector<std::shared_ptr<dao::Database>> m_sideDatabases;
    std::vector<std::shared_ptr<dao::Recordset>> m_tables;
};

} // namespace kalvenor::data
