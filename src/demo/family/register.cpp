// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/family/register.h"

#include "demo/family/calendar.h"
#include "demo/family/names.h"

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

namespace {

const QString AboutText = u"um________"_s;
const QString BeforeText = u"vor_______"_s;
const QString UnknownText = u"XXX_______"_s;

const KnownDate UnknownDate{UnknownDay, UnknownText};

/// In how many of 10,000 cases a register of that year lacks the date.
int lostBirths(int year)
{
    return year < 1600 ? 1600 : year < 1700 ? 1000 : year < 1800 ? 550 : year < 1876 ? 300 : 80;
}

int lostDeaths(int year)
{
    return year < 1600 ? 2600 : year < 1700 ? 1900 : year < 1800 ? 1300 : year < 1876 ? 800 : 350;
}

KnownDate inexact(int day, Random &random)
{
    const Date date = dateOf(day);
    const QString year = QString::number(date.year);
    if (random.chance(2500))
        return {dayOf(date.year, date.month), u"__.%1."_s.arg(date.month, 2, 10, QChar(u'0')) + year};
    return {dayOf(date.year), u"__.__."_s + year};
}

QString yearText(const KnownDate &date)
{
    if (date.isUnknown())
        return u"?"_s;
    const QString year = QString::number(yearOf(date.day));
    if (date.companion == AboutText)
        return u"um "_s + year;
    return date.companion == BeforeText ? u"vor "_s + year : year;
}

} // namespace

bool KnownDate::isUnknown() const
{
    return day == UnknownDay;
}

Entry enter(const Person &person, Random &random)
{
    const int birthYear = yearOf(person.birth);
    const int deathYear = yearOf(person.death);
    const bool early = birthYear < 1800;
    Entry entry;
    entry.sexKnown = person.hasChildren || !random.chance(70);
    entry.living = person.death > Today;

    entry.birth = {person.birth, {}};
    if (random.chance(lostBirths(birthYear)))
        entry.birth = UnknownDate;
    else if (random.chance(early ? 900 : 250))
        entry.birth = inexact(person.birth, random);
    else if (deathYear - birthYear > 12 && random.chance(early ? 500 : 80))
        entry.birth = {dayOf(birthYear - birthYear % 5), AboutText};

    // A date of death that is not exact stands at its year's first day: not for those who died in their first year.
    entry.death = {person.death, {}};
    if (entry.living || random.chance(lostDeaths(deathYear)))
        entry.death = UnknownDate;
    else if (deathYear > birthYear && random.chance(early ? 700 : 200))
        entry.death = inexact(person.death, random);
    else if (deathYear - birthYear > 12 && random.chance(early ? 400 : 60))
        entry.death = {dayOf(deathYear - deathYear % 5), random.chance(7000) ? AboutText : BeforeText};
    return entry;
}

QString givenNamesOf(const Person &person)
{
    if (person.givenCount == 0)
        return u"N.N."_s;
    QString names = givenName(person.given[0]);
    for (int i = 1; i < person.givenCount; ++i)
        names += u' ' + givenName(person.given[i]);
    return names;
}

QString listName(const Person &person, const Entry &entry)
{
    QString name = surname(person.surname) + u", "_s + givenNamesOf(person) + u" *"_s + yearText(entry.birth);
    if (!entry.living)
        name += u" +"_s + yearText(entry.death);
    return name;
}

} // namespace kalvenor::demo
