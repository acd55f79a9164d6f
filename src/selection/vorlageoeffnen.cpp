// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/vorlageoeffnen.h"

#include "selection/databaseswitch.h"
#include "selection/marksnapshot.h"
#include <new>
#include <QFileInfo>
#include <unordered_set>
#include <utility>

namespace kalvenor::selection {

namespace {

constexpr qint64 PersonsBetweenReports = 1024;

Error withRemark(const Error &error, const QString &remark)
{
    return Error(error.kind(), error.place(), error.text() + u' ' + remark);
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
        throw Error(ErrorKind::FileNotFound, services.database.host.native(File),
                    QStringLiteral("The template belongs to a family database that does not exist: %1.%2")
                        .arg(familienpfad, services.database.host.hasUnmappedDrive(familienpfad)
                                               ? QStringLiteral(" No folder is known for its drive letter; name it in "
                                                                "Kalvenor.ini, section [Laufwerke].")
                                               : QString()));
    if (!services.useOpenDatabase(familienpfad))
        throw Error(ErrorKind::Cancelled, {}, QStringLiteral("Stopped; the template was not opened."));
    return false;
}

/// Looks every person of the template up; those that are there, each once.
std::vector<qint32> findPersons(data::Datenbankmodul &databases, OpenedVorlage &opened, const Progress &progress)
{
    databases.Datentabelle->setIndex(QStringLiteral("Counter"));
    std::vector<qint32> found;
    std::unordered_set<qint32> seen;
    const auto count = static_cast<qint64>(opened.vorlage.counters.size());
    const auto look = [&](qint64 done) {
        if (progress && !progress(done, count))
            throw Error(ErrorKind::Cancelled, {}, QStringLiteral("Stopped; no mark was changed."));
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
MarkStep markExactly(data::Datenbankmodul &databases, const std::vector<qint32> &persons, const Progress &progress)
{
    const std::shared_ptr<dao::Database> family = databases.Familiendatenbank;
    const QString table = QStringLiteral("Daten");
    const Progress watch = [&](qint64 done, qint64 total) {
        if (progress)
            progress(done, total);
        return true;
    };
    const MarkSnapshot before(databases);
    try {
        family->execute(QStringLiteral("Update Daten SET Markierung = 0 Where Markierung = -1 ;"), watch);
        family->setMarks(table, persons, true, watch);
    } catch (const Error &error) {
        try {
            const MarkStep step = before.changesSince(databases);
            family->setMarks(table, step.marked, false);
            family->setMarks(table, step.unmarked, true);
        } catch (const Error &) {
            throw withRemark(error, QStringLiteral("Some marks were changed and could not be put back."));
        }
        throw;
    }
    return before.changesSince(databases);
}

} // namespace

OpenedVorlage vorlageoeffnen(const VorlageServices &services, const QString &File, const Progress &progress)
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
    } catch (const Error &error) {
        databaseSwitch.goBack(error);
    } catch (const std::bad_alloc &) {
        databaseSwitch.goBack(Error(ErrorKind::Overflow, {}, QStringLiteral("There is not enough memory for this.")));
    }
    return opened;
}

} // namespace kalvenor::selection
