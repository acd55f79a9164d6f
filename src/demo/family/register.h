// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/family/population.h"
#include <QString>

// What a genealogist could still find out about a life.
namespace kalvenor::demo {

/// A date as the person table holds it: a day number and a companion text of ten characters, null for a full date.
/// A date of which only the year is known stands as its 1 January with "__.__.1782", an unknown one as day 767011 with
/// "XXX_______"; "um________" and "vor_______" say about and before.
struct KnownDate {
    int day = 0;
    QString companion;
};

struct Entry {
    KnownDate birth;
    KnownDate death; ///< unknown for the living too
    bool living = false;
    bool sexKnown = true;
};

Entry enter(const Person &person, Random &random);

QString givenNamesOf(const Person &person);
/// "Groß, Otto Jakob *1782 +1843"; "um" before a year that is not exact, "?" for an unknown one.
QString listName(const Person &person, const Entry &entry);

} // namespace kalvenor::demo
