// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/commands.h"

#include "app/start/hostlanguage.h"
#include "app/start/startedprogram.h"
#include "demo/host/demohost.h"
#include "platform/desktop/terminal.h"
#include "selection/lists/listquery.h"
#include "selection/marking/leftpersons.h"

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

namespace {

void tellLimitReached(Program &program)
{
    program.host.desktop().messageBox(program.language.text(Text::RelativesLimitReached), 0,
                                      program.language.text(Text::MarkRelatives));
}

QString numbers(const std::vector<qint32> &counters)
{
    QStringList texts;
    for (const qint32 counter : counters)
        texts << QString::number(counter);
    return texts.join(u", "_s);
}

} // namespace

int runDemo(const DemoCommand &command)
{
    const auto language = systemLanguage();
    desktop::TerminalProgress terminal(progressLine(wording(Text::MakingDemo, language), language));
    const demo::DemoHost made =
        demo::makeDemoHost({command.folder, command.persons, command.seed}, terminal.progress());
    printLine(u"host folder:     %1\nprogram folder:  %2\nfamily database: %3\npersons:         %4"_s.arg(
        made.hostFolder, made.programFolder, made.familyDatabase, QString::number(made.persons)));
    return Done;
}

int runList(const basic::WindowsPath &programFolder, const ListCommand &command)
{
    StartedProgram started(programFolder);
    if (!started.ready)
        return Failed;
    desktop::TerminalProgress terminal(started.progress(Text::ReadingDatabase));
    const auto persons = started.program.databases.Familiendatenbank->openQuery(command.query, terminal.progress());
    const int counter = persons->fieldIndex(u"Counter"_s);
    const int listname = persons->fieldIndex(u"Listname"_s);
    ListOutput output(command.format, "listname");
    for (qint64 written = 0; !persons->eof() && written != command.limit; persons->moveNext(), ++written)
        output.add(persons->integer(counter).value_or(0), persons->text(listname));
    output.finish();
    return started.done();
}

int runMark(const basic::WindowsPath &programFolder, const MarkCommand &command)
{
    StartedProgram started(programFolder);
    if (!started.ready)
        return Failed;
    data::Datenbankmodul &databases = started.program.databases;
    desktop::TerminalProgress terminal(started.progress(command.mark ? Text::MarkingPersons : Text::UnmarkingAll));
    std::size_t changed = 0;
    std::vector<dao::LeftRow> left;
    if (command.query) {
        const auto from = command.mark ? selection::PersonList::Unmarked : selection::PersonList::Marked;
        dao::Execution done = databases.Familiendatenbank->execute(selection::markAllStatement(from, *command.query),
                                                                   terminal.progress());
        changed = done.changedKeys.size();
        left = std::move(done.left);
    } else {
        const auto unknown = selection::unknownPersons(databases, command.counters);
        if (!unknown.empty()) {
            desktop::writeError(started.program.language.text(Text::PersonsUnknown)
                                    .arg(databases.Familiendatenbank->file(), numbers(unknown)));
            return Failed;
        }
        auto result =
            selection::markPersons(databases, command.counters, command.mark, command.relatives, terminal.progress());
        changed = result.changed.size();
        left = std::move(result.left);
        if (result.limitReached)
            tellLimitReached(started.program);
    }
    printLine(u"%1 rows changed"_s.arg(changed));
    if (!left.empty())
        desktop::writeError(selection::leftPersons(started.program.language, databases, left));
    return started.done();
}

int runAges(const basic::WindowsPath &programFolder, const AgesCommand &command)
{
    StartedProgram started(programFolder);
    if (!started.ready)
        return Failed;
    desktop::TerminalProgress terminal(started.progress(Text::ComputingAgeList));
    statistics::Altersliste list;
    statistics::alterslistenausgabe(started.program.databases, command.sex, list, terminal.progress());
    ListOutput output(command.format, "line");
    for (const statistics::Alterszeile &line : list)
        output.add(line.Counter, line.text());
    output.finish();
    return started.done();
}

} // namespace kalvenor::app
