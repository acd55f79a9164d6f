// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/templates/vorlageoeffnen.h"

#include <QFileInfo>
#include <unordered_set>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

namespace {

constexpr qint64 PersonsBetweenReports = 1024;

bool isOpen(const data::Session &session, const basic::WindowsPath &familienpfad)
{
    const QString open = QFileInfo(session.databases.Familiendatenbank->file()).canonicalFilePath();
    return !open.isEmpty() && open == QFileInfo(session.host.native(familienpfad)).canonicalFilePath();
}

/// Whether the database has to be changed for the template's one.
bool needsOtherDatabase(const data::Session &session, const basic::WindowsPath &File,
                        const basic::WindowsPath &familienpfad, const UseOpenDatabase &useOpenDatabase)
{
    if (isOpen(session, familienpfad))
        return false;
    if (!session.host.dir(familienpfad).isEmpty())
        return true;
    if (!useOpenDatabase) {
        const basic::Error missing(basic::Fault::TemplateFamilyMissing, {.file = session.host.native(File)},
                                   {familienpfad.text()});
        throw session.host.hasUnmappedDrive(familienpfad) ? missing.with(basic::Fault::DriveUnknown) : missing;
    }
    if (!useOpenDatabase(familienpfad))
        throw basic::Error(basic::Fault::StoppedOpening);
    return false;
}

/// Looks every person of the template up; those that are there, each once.
std::vector<qint32> findPersons(data::Datenbankmodul &databases, OpenedVorlage &opened, const basic::Progress &progress)
{
    databases.Datentabelle->setIndex(u"Counter"_s);
    std::vector<qint32> found;
    std::unordered_set<qint32> seen;
    const auto count = static_cast<qint64>(opened.vorlage.counters.size());
    const auto look = [&](qint64 done) {
        if (progress && !progress(done, count))
            throw basic::Error(basic::Fault::StoppedUnchanged);
    };
    for (qint64 i = 0; i < count; ++i) {
        if (i % PersonsBetweenReports == 0)
            look(i);
        const qint32 counter = opened.vorlage.counters[static_cast<std::size_t>(i)];
        if (!seen.insert(counter).second)
            continue;
        databases.Datentabelle->seekEqual(counter);
        (databases.Datentabelle->noMatch() ? opened.missing : found).push_back(counter);
    }
    look(count);
    return found;
}

/// Marks exactly these persons, and gives back what that changed. Once begun, it is not cancelled.
MarkStep markExactly(data::Datenbankmodul &databases, const std::vector<qint32> &persons,
                     std::vector<dao::LeftRow> &left, const basic::Progress &progress)
{
    const std::shared_ptr<dao::Database> family = databases.Familiendatenbank;
    const QString table = u"Daten"_s;
    const basic::Progress watch = [&](qint64 done, qint64 total) {
        if (progress)
            progress(done, total);
        return true;
    };
    const dao::MarkSnapshot before = family->marks(table);
    try {
        left = family->execute(u"Update Daten SET Markierung = 0 Where Markierung = -1 ;"_s, watch).left;
        const dao::Execution marked = family->setMarks(table, persons, true, watch);
        left.insert(left.end(), marked.left.begin(), marked.left.end());
    } catch (const basic::Error &error) {
        try {
            family->refresh(); // what was written, whether it could be confirmed or not
            const MarkStep step = family->marks(table).since(before);
            family->setMarks(table, step.marked, false);
            family->setMarks(table, step.unmarked, true);
        } catch (const basic::Error &) {
            throw error.with(basic::Fault::MarksNotPutBack);
        }
        throw;
    }
    return family->marks(table).since(before);
}

} // namespace

OpenedVorlage vorlageoeffnen(data::Session &session, const basic::WindowsPath &File, const basic::Progress &progress,
                             const UseOpenDatabase &useOpenDatabase)
{
    OpenedVorlage opened;
    opened.vorlage = readVorlage(session.host.native(File));
    const basic::WindowsPath &familienpfad = opened.vorlage.familienpfad;
    const auto mark = [&] {
        const std::vector<qint32> persons = findPersons(session.databases, opened, progress);
        opened.found = static_cast<qsizetype>(persons.size());
        return markExactly(session.databases, persons, opened.left, progress);
    };
    opened.otherDatabase = needsOtherDatabase(session, File, familienpfad, useOpenDatabase);
    if (opened.otherDatabase) {
        session.exchangeDatabase(familienpfad, mark);
    } else {
        session.databases.Familiendatenbank->refresh();
        opened.changes = mark();
    }
    return opened;
}

} // namespace kalvenor::selection
