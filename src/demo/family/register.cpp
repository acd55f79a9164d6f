// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/family/register.h"

#include "demo/family/calendar.h"
#include "demo/family/names.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

namespace {

const QString AboutText = u"um________"_s;
const QString BeforeText = u"vor_______"_s;
const KnownDate UnknownDate{UnknownDay, u"XXX_______"_s};

/// In how many of 10,000 cases a register of that year lacks a birth; of deaths it lacks some more.
int lostBirths(int year)
{
    return std::max(80, 1600 - 5 * (year - 1550));
}

KnownDate inexact(int day, Random &random)
{
    const QDate date = dateOf(day);
    const bool monthKnown = random.chance(2500);
    return {dayOf(date.year(), monthKnown ? date.month() : 1),
            date.toString(monthKnown ? u"__.MM.yyyy" : u"__.__.yyyy")};
}

QString yearText(const KnownDate &date)
{
    if (date.day == UnknownDay)
        return u"?"_s;
    const QString year = QString::number(yearOf(date.day));
    return date.companion == AboutText ? u"um "_s + year : date.companion == BeforeText ? u"vor "_s + year : year;
}

} // namespace

Entry enter(const Person &person, Random &random)
{
    const int birthYear = yearOf(person.birth);
    const int deathYear = yearOf(person.death);
    const bool early = birthYear < 1800;
    const bool grewUp = deathYear - birthYear > 12;
    Entry entry{{person.birth, {}}, {person.death, {}}, person.death > Today, person.hasChildren || !random.chance(70)};

    if (random.chance(lostBirths(birthYear)))
        entry.birth = UnknownDate;
    else if (random.chance(early ? 900 : 250))
        entry.birth = inexact(person.birth, random);
    else if (grewUp && random.chance(early ? 500 : 80))
        entry.birth = {dayOf(birthYear - birthYear % 5), AboutText};

    // A date of death that is not exact stands at its year's first day: not for those who died in their first year.
    if (entry.living || random.chance(300 + lostBirths(deathYear) * 3 / 2))
        entry.death = UnknownDate;
    else if (deathYear > birthYear && random.chance(early ? 700 : 200))
        entry.death = inexact(person.death, random);
    else if (grewUp && random.chance(early ? 400 : 60))
        entry.death = {dayOf(deathYear - deathYear % 5), random.chance(7000) ? AboutText : BeforeText};
    return entry;
}

QString givenNamesOf(const Person &person)
{
    if (person.givenCount == 0)
        return u"N.N."_s;
    const QString &first = givenName(person.given[0]);
    return person.givenCount == 1 ? first : first + u' ' + givenName(person.given[1]);
}

QString listName(const Person &person, const Entry &entry)
{
    const QString name = surname(person.surname) + u", "_s + givenNamesOf(person) + u" *"_s + yearText(entry.birth);
    return entry.living ? name : name + u" +"_s + yearText(entry.death);
}

} // namespace kalvenor::demo
