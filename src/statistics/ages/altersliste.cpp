// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ages/altersliste.h"

#include "statistics/ages/markierte.h"

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

namespace {

bool isSexSelected(Geschlecht geschlecht, const GeschlechtAlter &geschlechtalter)
{
    return (geschlecht == Geschlecht::Mann && geschlechtalter[0] == 1) ||
           (geschlecht == Geschlecht::Frau && geschlechtalter[1] == 1);
}

} // namespace

qint64 alterslistenausgabe(data::Datenbankmodul &databases, const GeschlechtAlter &geschlechtalter, Altersliste &list,
                           const basic::Progress &progress)
{
    list.clear();
    if (geschlechtalter[0] == 0 && geschlechtalter[1] == 0)
        return 0;
    return jedenMarkierten(databases, basic::Fault::StoppedAgeList, progress, [&](const Markierter &person) {
        const auto days = lebenstage(person.Geburtsdatum, person.Sterbedatum);
        if (days && isSexSelected(person.geschlecht, geschlechtalter))
            list.push_back({person.Counter, person.geschlecht, *days, person.listname().toString()});
    });
}

} // namespace kalvenor::statistics
