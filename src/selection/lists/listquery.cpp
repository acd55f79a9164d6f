// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/lists/listquery.h"

#include "platform/basic/text.h"

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

QString plainListQuery(PersonList list)
{
    return list == PersonList::Unmarked ? u"SELECT * FROM Daten WHERE Markierung = 0 ORDER BY Listname;"_s
                                        : u"SELECT * FROM Daten WHERE Markierung = -1 ORDER BY Listname;"_s;
}

QString wherePart(const QString &listQuery)
{
    const qsizetype where = listQuery.indexOf(u"WHERE");
    // A name pattern may hold the word, so the last one is the query's own.
    const qsizetype order = listQuery.lastIndexOf(u"ORDER");
    if (where < 0 || order < where)
        return {};
    return listQuery.mid(where, order - where);
}

QString markAllStatement(PersonList from, const QString &listQuery)
{
    const QString set =
        from == PersonList::Unmarked ? u"Update Daten SET Markierung = -1 "_s : u"Update Daten SET Markierung = 0 "_s;
    const QString where = wherePart(listQuery);
    return basic::trimBlanks(where).isEmpty() ? set + u';' : set + where;
}

} // namespace kalvenor::selection
