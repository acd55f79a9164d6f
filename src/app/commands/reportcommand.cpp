// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/reportcommand.h"

#include "app/start/startedprogram.h"
#include "platform/print/pdfwriter.h"
#include "report/composition/bericht.h"
#include "selection/templates/vorlageoeffnen.h"
#include "statistics/figures/grafikbild.h"
#include "statistics/options/statistik.h"
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

int runReport(const basic::WindowsPath &programFolder, const ReportCommand &command)
{
    StartedProgram started(programFolder);
    if (!started.ready)
        return Failed;
    Program &program = started.program;
    desktop::TerminalProgress terminal(started.progress(language::Text::ComposingPages));

    statistics::Statistik statistik;
    if (!command.vorlage.isEmpty()) {
        statistik = selection::vorlageoeffnen(program, basic::windowsPath(command.vorlage), terminal.progress())
                        .vorlage.statistik;
    }
    command.statistik.applyTo(statistik);

    statistics::Altersliste list;
    statistics::alterslistenausgabe(program.databases, statistik.geschlechtalter, list, terminal.progress());
    const statistics::Grafikzahlen figures =
        statistics::grafikermitteln(program.databases, statistik, terminal.progress());
    chart::ChartLook look = statistics::grafiklook(program.language, program.host, statistik);
    const language::Text reason = statistics::leerGrund(figures.zahlen);
    look.emptyText = program.language.text( // what to do next does not belong on paper
        reason == language::Text::MarkPersonsFirst ? language::Text::NobodyMarked : reason);

    print::PrintControl print;
    report::Bericht bericht(program, print);
    bericht.hintShown(); // it is about the window
    const QString &output = command.output;
    const QString ending = QFileInfo(output).suffix().toLower();
    print::ExportTarget target;
    if (ending != u"pdf")
        target = {ending == u"rtf" ? print::ExportFormat::Rtf : print::ExportFormat::Html, basic::windowsPath(output)};
    const basic::WindowsPath written = bericht.auswahldrucken(
        {.statistik = statistik,
         .introductionFile = command.statistik.rtf ? command.statistik.introductionFile : command.vorlage,
         .list = list,
         .figures = figures,
         .look = look,
         .criteria = {}},
        target, terminal.progress());
    const QString persons = QString::number(list.size());
    if (ending == u"pdf") {
        print::writePdf(*print.layout(), print.document().title, output, terminal.progress(),
                        command.archive ? print::PdfKind::Archive : print::PdfKind::Plain);
        printLine(
            u"%1: %2 persons on %3 pages"_s.arg(output, persons, QString::number(print.layout()->pages().size())));
    } else {
        printLine(u"%1: %2 persons"_s.arg(program.host.native(written), persons));
    }
    return started.done();
}

} // namespace kalvenor::app
