// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ages/auslassung.h"

#include "statistics/ages/markierte.h"

namespace kalvenor::statistics {

namespace {

std::optional<Auslassung> auslassung(const Markierter &person)
{
    const bool born = istBekannt(person.Geburtsdatum);
    const bool died = istBekannt(person.Sterbedatum);
    if (!born || !died)
        return born ? Auslassung::Tod : died ? Auslassung::Geburt : Auslassung::GeburtUndTod;
    if (!lebenstage(person.Geburtsdatum, person.Sterbedatum))
        return Auslassung::NichtNachGeburt;
    if (person.geschlecht == Geschlecht::Unbekannt)
        return Auslassung::Geschlecht;
    return std::nullopt;
}

} // namespace

std::vector<Ausgelassener> auslassungen(data::Datenbankmodul &databases, const basic::Progress &progress)
{
    std::vector<Ausgelassener> result;
    jedenMarkierten(databases, basic::Fault::StoppedIncomplete, progress, [&](const Markierter &person) {
        if (const auto reason = auslassung(person))
            result.push_back({person.Counter, *reason, person.listname().toString()});
    });
    return result;
}

} // namespace kalvenor::statistics
