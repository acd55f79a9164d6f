// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/templatecommands.h"

#include "app/start/startedprogram.h"
#include "selection/marking/leftpersons.h"
#include "selection/templates/vorlageoeffnen.h"
#include "selection/templates/vorlagespeichern.h"
#include "statistics/options/statistik.h"
#include <algorithm>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

/// Numbers of persons that are named, of those that were not found.
constexpr std::size_t NamedPersons = 20;

QString sexText(qint16 men, qint16 women)
{
    return u"%1%2"_s.arg(men == 1 ? "m" : "", women == 1 ? "w" : "");
}

QString lines(const statistics::Statistik &statistik)
{
    const auto &boxes = statistik.geschlechtalter;
    return u"title:         %1\nintroduction:  %2 bytes\nchart type:    %3\nlegend:        %4\nsex, list:     %5\n"
           "sex, chart:    %6\nby:            %7"_s.arg(
               statistik.titel, QString::number(statistik.rtf.size()),
               QString::number(static_cast<int>(statistik.type())), statistik.legende ? "yes" : "no",
               sexText(boxes[0], boxes[1]), sexText(boxes[2], boxes[3]), statistik.nachGeburtsjahr ? "birth" : "death");
}

} // namespace

int runTemplateSave(const basic::WindowsPath &programFolder, const QString &file, const StatistikWords &words)
{
    StartedProgram started(programFolder);
    if (!started.ready)
        return Failed;
    const host::Host &host = started.program.host;
    statistics::Statistik statistik = selection::vorlageclear(host);
    words.applyTo(statistik);
    desktop::TerminalProgress terminal(started.progress(language::Text::SavingTemplate));
    const qsizetype persons = selection::vorlagespeichern(host, started.program.databases, basic::windowsPath(file),
                                                          statistik, terminal.progress());
    printLine(u"%1: %2 persons"_s.arg(file).arg(persons));
    return started.done();
}

int runTemplateOpen(const basic::WindowsPath &programFolder, const QString &file, bool here)
{
    StartedProgram started(programFolder);
    if (!started.ready)
        return Failed;
    Program &program = started.program;
    selection::UseOpenDatabase useOpenDatabase;
    if (here)
        useOpenDatabase = [](const basic::WindowsPath &) {
            return true;
        };
    desktop::TerminalProgress terminal(started.progress(language::Text::OpeningTemplate));
    const selection::OpenedVorlage opened =
        selection::vorlageoeffnen(program, basic::windowsPath(file), terminal.progress(), useOpenDatabase);
    QStringList missing;
    for (std::size_t i = 0; i < std::min(opened.missing.size(), NamedPersons); ++i)
        missing << QString::number(opened.missing[i]);
    if (opened.missing.size() > NamedPersons)
        missing << u"…"_s;
    printLine(u"%1\ndatabase:      %2\nfound:         %3\nnot found:     %4%5"_s
                  .arg(lines(opened.vorlage.statistik), program.databases.Familiendatenbank->file())
                  .arg(opened.found)
                  .arg(opened.missing.size())
                  .arg(missing.isEmpty() ? QString() : u" (%1)"_s.arg(missing.join(u", "_s))));
    if (opened.vorlage.lastIsOpen)
        printLine(u"last line:     has no end; if the file was cut, another person than %1 may be meant"_s.arg(
            opened.vorlage.counters.back()));
    if (!opened.left.empty())
        desktop::writeError(selection::leftPersons(program.language, program.databases, opened.left));
    return started.done();
}

int runTemplateReset(const basic::WindowsPath &programFolder, const QString &file)
{
    desktop::TerminalDesktop desktop;
    const host::Host host(programFolder, desktop);
    const statistics::Statistik statistik = selection::vorlageclear(host);
    if (!file.isEmpty()) {
        selection::Vorlage vorlage = selection::readVorlage(basic::NativePath(file));
        vorlage.statistik = statistik;
        selection::writeVorlage(basic::NativePath(file), vorlage);
    }
    printLine(lines(statistik));
    return Done;
}

} // namespace kalvenor::app
