// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/filter/filtern.h"

#include "data/datevalue.h"
#include "platform/basic/text.h"

using namespace Qt::StringLiterals;

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
    {u"  AND Geburtsdatum >= "_s, u"AND ( Geburt_XX = 'XXX_______' OR Geburtsdatum >= -620910 ) "_s,
     u" AND Geburtsdatum <= "_s, u" AND ( Geburt_XX = 'XXX_______' OR geburtsdatum <= 767011 ) "_s},
    {u"  AND Sterbedatum >= "_s, u" AND ( sterbe_XX = 'XXX_______' OR sterbedatum >= -620910 ) "_s,
     u"AND sterbedatum <= "_s, u"AND ( sterbe_XX = 'XXX_______' OR sterbedatum <= 767011 ) "_s},
    {u"  AND geaendert >= "_s, {}, u"AND geaendert <= "_s, {}},
}};

QString withStars(const QString &typed)
{
    const QString text = basic::trimBlanks(typed);
    const QString front = text.startsWith(u'*') ? QString() : u"*"_s;
    const QString back = text.endsWith(u'*') ? QString() : u"*"_s;
    return front + text + back;
}

/// The day number of a date, as the query has it.
QString dayText(const QString &bound, basic::DateOrder order)
{
    QString typed = bound;
    return basic::trimBlanks(basic::midPart(data::datumwandeln(typed, order), 11));
}

QString boundClause(const QString &bound, basic::DateOrder order, const QString &clause, const QString &any)
{
    return basic::isDate(bound, order) ? clause + dayText(bound, order) : any;
}

} // namespace

PatternProblem patternProblem(const QString &pattern)
{
    if (pattern.contains(u'\''))
        return {language::Text::NoApostrophe, QString(pattern).replace(u'\'', u'?')};
    if (pattern.lastIndexOf(u'[') > pattern.lastIndexOf(u']'))
        return {language::Text::BracketOpen};
    return {};
}

std::optional<qint64> boundDay(const QString &bound, basic::DateOrder order)
{
    if (!basic::isDate(bound, order))
        return std::nullopt;
    bool isNumber = false;
    const qint64 day = dayText(bound, order).toLongLong(&isNumber);
    return isNumber ? std::optional(day) : std::nullopt;
}

FilterQueries filtern(const Filter &filter, basic::DateOrder order)
{
    const QString pattern = withStars(filter.Presse);
    QString query = u"SELECT * FROM Daten WHERE Listname LIKE '"_s + pattern + u"' "_s;
    if (filter.Geschlechtfilter[0] + filter.Geschlechtfilter[1] == 1)
        query += filter.Geschlechtfilter[0] == 1 ? u"AND Geschlecht = 'M' "_s : u"AND Geschlecht = 'W' "_s;
    for (std::size_t date = 0; date < Clauses.size(); ++date) {
        if (filter.Datumfilter[date] != 1)
            continue;
        query += boundClause(filter.Presse_Datum[0], order, Clauses[date].from, Clauses[date].fromAny);
        query += boundClause(filter.Presse_Datum[1], order, Clauses[date].to, Clauses[date].toAny);
    }

    FilterQueries result{pattern, {plainListQuery(PersonList::Unmarked), plainListQuery(PersonList::Marked)}};
    if (filter.Filterliste == PersonList::Unmarked)
        result.queries[0] = query + u" AND Markierung = 0 ORDER BY Listname;"_s;
    else
        result.queries[1] = query + u" AND Markierung = -1 ORDER BY Listname;"_s;
    return result;
}

} // namespace kalvenor::selection
