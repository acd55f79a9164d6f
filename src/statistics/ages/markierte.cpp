// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ages/markierte.h"

#include "data/person.h"

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

namespace {

constexpr qint64 RowsBetweenReports = 256;

} // namespace

qint64 jedenMarkierten(data::Datenbankmodul &databases, basic::Fault stopped, const basic::Progress &progress,
                       const std::function<void(const Markierter &)> &visit)
{
    const auto marked = databases.Familiendatenbank->openQuery(
        u"SELECT Counter FROM Daten WHERE Markierung = -1 ORDER BY Listname ;"_s, progress);
    const qint64 count = marked->recordCount();
    if (count == 0)
        return 0;

    dao::Recordset &persons = *databases.Datentabelle;
    persons.setIndex(u"Counter"_s);
    const data::PersonColumns columns(persons);
    const int counterField = marked->fieldIndex(u"Counter"_s);
    Markierter person(persons, columns.Listname);
    QString sex;
    for (qint64 processed = 0; !marked->eof(); marked->moveNext(), ++processed) {
        if (progress && processed % RowsBetweenReports == 0 && !progress(processed, count))
            throw basic::Error(stopped);
        const auto counter = marked->integer(counterField);
        if (!counter)
            continue;
        persons.seekEqual(*counter);
        if (persons.noMatch())
            continue;
        person.Counter = *counter;
        person.Geburtsdatum = persons.number(columns.Geburtsdatum);
        person.Sterbedatum = persons.number(columns.Sterbedatum);
        person.geschlecht = geschlechtAus(persons.text(columns.Geschlecht, sex));
        visit(person);
    }
    marked->close();
    return count;
}

} // namespace kalvenor::statistics
