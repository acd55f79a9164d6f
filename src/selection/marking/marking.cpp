// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/marking/marking.h"

#include "data/person.h"
#include <deque>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

namespace {

dao::Recordset &personTable(data::Datenbankmodul &databases)
{
    databases.Datentabelle->setIndex(u"Counter"_s);
    return *databases.Datentabelle;
}

constexpr qint64 PersonsBetweenReports = 64;

/// Finds the direct line of persons. Each person is found once.
class RelativesWalk {
public:
    RelativesWalk(data::Datenbankmodul &databases, std::span<const qint32> starts, const basic::Progress &progress)
        : m_databases(databases), m_persons(personTable(databases)), m_columns(m_persons),
          m_found(starts.begin(), starts.end()), m_starts(starts), m_progress(progress)
    {
    }

    /// Adds the descendants or the ancestors. False once the limit is reached.
    bool addChildren() { return add(&RelativesWalk::childrenOf); }
    bool addParents() { return add(&RelativesWalk::parentsOf); }
    const std::vector<qint32> &relatives() const { return m_relatives; }

private:
    using Kin = std::vector<qint32> (RelativesWalk::*)(qint32);

    bool add(Kin kin);
    std::vector<qint32> childrenOf(qint32 counter);
    std::vector<qint32> parentsOf(qint32 counter);
    bool seek(qint32 counter)
    {
        m_persons.seekEqual(counter);
        return !m_persons.noMatch();
    }

    data::Datenbankmodul &m_databases;
    dao::Recordset &m_persons;
    data::PersonColumns m_columns;
    std::unordered_set<qint32> m_found;
    std::span<const qint32> m_starts;
    const basic::Progress &m_progress;
    std::vector<qint32> m_relatives;
};

bool RelativesWalk::add(Kin kin)
{
    // Who was walked through here; a person found in the other direction is still walked through in this one.
    std::unordered_set<qint32> walked(m_starts.begin(), m_starts.end());
    std::deque<qint32> waiting(m_starts.begin(), m_starts.end());
    for (qint64 seen = 0; !waiting.empty(); ++seen) {
        if (m_progress && seen % PersonsBetweenReports == 0 &&
            !m_progress(seen, seen + static_cast<qint64>(waiting.size())))
            throw basic::Error(basic::Fault::StoppedUnmarked);
        const qint32 person = waiting.front();
        waiting.pop_front();
        for (const qint32 relative : (this->*kin)(person)) {
            if (!walked.insert(relative).second || !seek(relative))
                continue;
            waiting.push_back(relative);
            if (!m_found.insert(relative).second)
                continue;
            m_relatives.push_back(relative);
            if (m_relatives.size() == RelativesLimit)
                return false;
        }
    }
    return true;
}

std::vector<qint32> RelativesWalk::childrenOf(qint32 counter)
{
    if (!seek(counter))
        return {};
    const QString parent = m_persons.text(m_columns.Geschlecht) == u"W" ? u"Mutter"_s : u"Vater"_s;
    const auto children = m_databases.Familiendatenbank->openQuery(
        u"SELECT Counter FROM Daten WHERE %1 = %2 ;"_s.arg(parent).arg(counter));
    const int field = children->fieldIndex(u"Counter"_s);
    std::vector<qint32> counters;
    for (; !children->eof(); children->moveNext()) {
        if (const auto child = children->integer(field))
            counters.push_back(*child);
    }
    children->close();
    return counters;
}

std::vector<qint32> RelativesWalk::parentsOf(qint32 counter)
{
    std::vector<qint32> counters;
    if (seek(counter)) {
        for (const int column : {m_columns.Vater, m_columns.Mutter}) {
            if (const auto parent = m_persons.integer(column); parent && *parent != 0)
                counters.push_back(*parent);
        }
    }
    return counters;
}

} // namespace

MarkingResult markPersons(data::Datenbankmodul &databases, std::span<const qint32> counters, bool marked,
                          Relatives relatives, const basic::Progress &progress)
{
    RelativesWalk walk(databases, counters, progress);
    MarkingResult result;
    if (relatives.children)
        result.limitReached = !walk.addChildren();
    if (relatives.parents && !result.limitReached)
        result.limitReached = !walk.addParents();

    std::vector<qint32> all(counters.begin(), counters.end());
    all.insert(all.end(), walk.relatives().begin(), walk.relatives().end());
    if (all.size() == 1) {
        // One person goes the way of the host's own add-ins: seek, edit, update.
        dao::Recordset &persons = personTable(databases);
        persons.seekEqual(all.front());
        if (persons.noMatch())
            return result;
        persons.edit();
        persons.setValue(u"markierung"_s, marked);
        if (persons.update())
            result.changed = all;
        return result;
    }
    dao::Execution done = databases.Familiendatenbank->setMarks(u"Daten"_s, all, marked, progress);
    result.changed = std::move(done.changedKeys);
    result.left = std::move(done.left);
    return result;
}

std::vector<qint32> unknownPersons(data::Datenbankmodul &databases, std::span<const qint32> counters)
{
    dao::Recordset &persons = personTable(databases);
    std::vector<qint32> unknown;
    for (const qint32 counter : counters) {
        persons.seekEqual(counter);
        if (persons.noMatch())
            unknown.push_back(counter);
    }
    return unknown;
}

} // namespace kalvenor::selection
