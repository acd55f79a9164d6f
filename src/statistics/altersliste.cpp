// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/altersliste.h"

#include "data/person.h"
#include "statistics/alter.h"

namespace kalvenor::statistics {

namespace {

constexpr qint64 RowsBetweenReports = 256;

bool isSexSelected(QStringView geschlecht, const GeschlechtAlter &geschlechtalter)
{
    return (geschlecht == u"M" && geschlechtalter[0] == 1) || (geschlecht == u"W" && geschlechtalter[1] == 1);
}

} // namespace

void alterslistenausgabe(data::Datenbankmodul &databases, const GeschlechtAlter &geschlechtalter, Altersliste &list,
                         const Progress &progress)
{
    list.clear();
    if (geschlechtalter[0] == 0 && geschlechtalter[1] == 0)
        return;
    const auto marked = databases.Familiendatenbank->openQuery(
        QStringLiteral("SELECT Counter FROM Daten WHERE Markierung = -1 ORDER BY Listname ;"), progress);
    const qint64 count = marked->recordCount();
    if (count == 0)
        return;

    dao::Recordset &persons = *databases.Datentabelle;
    persons.setIndex(QStringLiteral("Counter"));
    const data::PersonColumns columns(persons);
    const int counterField = marked->fieldIndex(QStringLiteral("Counter"));
    for (qint64 processed = 0; !marked->eof(); marked->moveNext(), ++processed) {
        if (progress && processed % RowsBetweenReports == 0 && !progress(processed, count))
            throw Error(ErrorKind::Cancelled, {}, QStringLiteral("The age list was stopped; it is not complete."));
        const auto counter = marked->integer(counterField);
        if (!counter)
            continue;
        persons.seekEqual(*counter);
        if (persons.noMatch())
            continue;
        const auto days = lebenstage(persons.number(columns.Geburtsdatum), persons.number(columns.Sterbedatum));
        if (days && isSexSelected(persons.text(columns.Geschlecht), geschlechtalter))
            list.push_back({alterszeile(*days, persons.text(columns.Listname)), *counter});
    }
    marked->close();
}

} // namespace kalvenor::statistics
