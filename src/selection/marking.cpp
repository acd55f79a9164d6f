// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/marking.h"

namespace kalvenor::selection {

namespace {

dao::Recordset &personTable(data::Datenbankmodul &databases)
{
    databases.Datentabelle->setIndex(QStringLiteral("Counter"));
    return *databases.Datentabelle;
}

} // namespace

std::vector<qint32> markPersons(data::Datenbankmodul &databases, std::span<const qint32> counters, bool marked,
                                const Progress &progress)
{
    dao::Recordset &persons = personTable(databases);
    std::vector<qint32> changed;
    qint64 done = 0;
    for (const qint32 counter : counters) {
        if (progress && !progress(done++, static_cast<qint64>(counters.size())))
            throw Error(ErrorKind::Cancelled, {},
                        QStringLiteral("Stopped; %1 persons were changed before.").arg(changed.size()));
        persons.seekEqual(counter);
        if (persons.noMatch())
            continue;
        persons.edit();
        persons.setValue(QStringLiteral("markierung"), marked);
        if (persons.update())
            changed.push_back(counter);
    }
    return changed;
}

std::vector<qint32> unknownPersons(data::Datenbankmodul &databases, std::span<const qint32> counters)
{
    dao::Recordset &persons = personTable(databases);
    std::vector<qint32> unknown;
    for (const qint32 counter : counters) {
        persons.seekEqual(counter);
        if (persons.noMatch())
            unknown.push_back(counter);
    }
    return unknown;
}

} // namespace kalvenor::selection
