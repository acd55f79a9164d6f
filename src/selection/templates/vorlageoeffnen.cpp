// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/templates/vorlageoeffnen.h"

#include "selection/marking/marksnapshot.h"
#include "selection/templates/databaseswitch.h"
#include <new>
#include <QFileInfo>
#include <unordered_set>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

namespace {

constexpr qint64 PersonsBetweenReports = 1024;

basic::Error withRemark(const basic::Error &error, const QString &remark)
{
    return basic::Error(error.kind(), error.place(), error.text() + u' ' + remark);
}

bool isOpen(const VorlageServices &services, const QString &familienpfad)
{
    const QString open = QFileInfo(services.database.databases.Familiendatenbank->file()).canonicalFilePath();
    return !open.isEmpty() && open == QFileInfo(services.database.host.native(familienpfad)).canonicalFilePath();
}

/// Whether the database has to be changed for the template's one.
bool needsOtherDatabase(const VorlageServices &services, const QString &File, const QString &familienpfad)
{
    if (isOpen(services, familienpfad))
        return false;
    if (!services.database.host.dir(familienpfad).isEmpty())
        return true;
    if (!services.useOpenDatabase)
        throw basic::Error(basic::ErrorKind::FileNotFound, services.database.host.native(File),
                           u"The template belongs to a family database that does not exist: %1.%2"_s.arg(
                               familienpfad, services.database.host.hasUnmappedDrive(familienpfad)
                                                 ? u" No folder is known for its drive letter; name it in "
                                                   "Kalvenor.ini, section [Laufwerke]."_s
                                                 : QString()));
    if (!services.useOpenDatabase(familienpfad))
        throw basic::Error(basic::ErrorKind::Cancelled, {}, u"Stopped; the template was not opened."_s);
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
            throw basic::Error(basic::ErrorKind::Cancelled, {}, u"Stopped; no mark was changed."_s);
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
                     const basic::Progress &progress)
{
    const std::shared_ptr<dao::Database> family = databases.Familiendatenbank;
    const QString table = u"Daten"_s;
    const basic::Progress watch = [&](qint64 done, qint64 total) {
        if (progress)
            progress(done, total);
        return true;
    };
    const MarkSnapshot before(databases);
    try {
        family->execute(u"Update Daten SET Markierung = 0 Where Markierung = -1 ;"_s, watch);
        family->setMarks(table, persons, true, watch);
    } catch (const basic::Error &error) {
        try {
            const MarkStep step = before.changesSince(databases);
            family->setMarks(table, step.marked, false);
            family->setMarks(table, step.unmarked, true);
        } catch (const basic::Error &) {
            throw withRemark(error, u"Some marks were changed and could not be put back."_s);
        }
        throw;
    }
    return before.changesSince(databases);
}

} // namespace

OpenedVorlage vorlageoeffnen(const VorlageServices &services, const QString &File, const basic::Progress &progress)
{
    OpenedVorlage opened;
    opened.vorlage = readVorlage(services.database.host.native(File));
    const QString &familienpfad = opened.vorlage.familienpfad;
    opened.otherDatabase = needsOtherDatabase(services, File, familienpfad);
    DatabaseSwitch databaseSwitch(services.database);
    try {
        if (opened.otherDatabase)
            databaseSwitch.goOver(familienpfad);
        else
            services.database.databases.Familiendatenbank->refresh();
        const std::vector<qint32> persons = findPersons(services.database.databases, opened, progress);
        MarkStep changes = markExactly(services.database.databases, persons, progress);
        if (!opened.otherDatabase)
            opened.changes = std::move(changes);
        opened.found = static_cast<qsizetype>(persons.size());
    } catch (const basic::Error &error) {
        databaseSwitch.goBack(error);
    } catch (const std::bad_alloc &) {
        databaseSwitch.goBack(basic::Error(basic::ErrorKind::Overflow, {}, u"There is not enough memory for this."_s));
    }
    return opened;
}

} // namespace kalvenor::selection
