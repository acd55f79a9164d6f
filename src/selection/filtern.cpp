// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/filtern.h"

#include "data/datevalue.h"
#include "platform/basic/text.h"

namespace kalvenor::selection {

namespace {

/// The clause texts of one date column, blanks included.
struct DateClauses {
    QString from;    ///< followed by the day number
    QString fromAny; ///< where the lower bound is no date
    QString to;
    QString toAny;
};

const std::array<DateClauses, 3> Clauses{{
    {QStringLiteral("  AND Geburtsdatum >= "),
     QStringLiteral("AND ( Geburt_XX = 'XXX_______' OR Geburtsdatum >= -620910 ) "),
     QStringLiteral(" AND Geburtsdatum <= "),
     QStringLiteral(" AND ( Geburt_XX = 'XXX_______' OR geburtsdatum <= 767011 ) ")},
    {QStringLiteral("  AND Sterbedatum >= "),
     QStringLiteral(" AND ( sterbe_XX = 'XXX_______' OR sterbedatum >= -620910 ) "),
     QStringLiteral("AND sterbedatum <= "),
     QStringLiteral("AND ( sterbe_XX = 'XXX_______' OR sterbedatum <= 767011 ) ")},
    {QStringLiteral("  AND geaendert >= "), {}, QStringLiteral("AND geaendert <= "), {}},
}};

QString withStars(const QString &typed)
{
    const QString text = trimBlanks(typed);
    const QString front = text.startsWith(u'*') ? QString() : QStringLiteral("*");
    const QString back = text.endsWith(u'*') ? QString() : QStringLiteral("*");
    return front + text + back;
}

QString boundClause(const QString &bound, DateOrder order, const QString &clause, const QString &any)
{
    if (!isDate(bound, order))
        return any;
    QString typed = bound;
    return clause + trimBlanks(midPart(data::datumwandeln(typed, order), 11));
}

} // namespace

FilterQueries filtern(const Filter &filter, DateOrder order)
{
    const QString pattern = withStars(filter.Presse);
    QString query = QStringLiteral("SELECT * FROM Daten WHERE Listname LIKE '") + pattern + QStringLiteral("' ");
    if (filter.Geschlechtfilter[0] + filter.Geschlechtfilter[1] == 1)
        query += filter.Geschlechtfilter[0] == 1 ? QStringLiteral("AND Geschlecht = 'M' ")
                                                 : QStringLiteral("AND Geschlecht = 'W' ");
    for (std::size_t date = 0; date < Clauses.size(); ++date) {
        if (filter.Datumfilter[date] != 1)
            continue;
        query += boundClause(filter.Presse_Datum[0], order, Clauses[date].from, Clauses[date].fromAny);
        query += boundClause(filter.Presse_Datum[1], order, Clauses[date].to, Clauses[date].toAny);
    }

    FilterQueries result{pattern, {plainListQuery(PersonList::Unmarked), plainListQuery(PersonList::Marked)}};
    if (filter.Filterliste == PersonList::Unmarked)
        result.queries[0] = query + QStringLiteral(" AND Markierung = 0 ORDER BY Listname;");
    else
        result.queries[1] = query + QStringLiteral(" AND Markierung = -1 ORDER BY Listname;");
    return result;
}

} // namespace kalvenor::selection
