// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/templates/databaseswitch.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

DatabaseSwitch::DatabaseSwitch(DatabaseServices services)
    : m_services(std::move(services)), m_former(m_services.host.Familienpfad)
{
}

void DatabaseSwitch::goOver(const QString &familienpfad)
{
    m_changed = true;
    open(familienpfad);
}

void DatabaseSwitch::goBack(const basic::Error &why)
{
    if (!m_changed)
        throw why;
    try {
        open(m_former);
    } catch (const basic::Error &error) {
        throw basic::Error(why.kind(), why.place(),
                           why.text() + u" The former database could not be opened again either (%1). Quit the "
                                        "program and start it again."_s.arg(error.message()));
    }
    throw why;
}

void DatabaseSwitch::open(const QString &familienpfad)
{
    if (m_services.closing)
        m_services.closing();
    host::Host &host = m_services.host;
    m_services.language.datenbankenschliessen(familienpfad); // a name: the host's own texts stay closed
    m_services.databases.datenbankoeffnen(familienpfad);
    m_services.language.spracheoeffnen(host.Hostverzeichnis + u"\\ADD-IN-LANGUAGE.MDB"_s);
    host.Familienpfad = familienpfad;
    if (m_services.opened)
        m_services.opened();
}

} // namespace kalvenor::selection
