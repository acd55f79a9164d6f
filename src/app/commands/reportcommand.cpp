// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/reportcommand.h"

#include "app/commands/introductionfile.h"
#include "app/start/startedprogram.h"
#include "platform/print/pdfwriter.h"
#include "report/composition/bericht.h"
#include "selection/templates/vorlageoeffnen.h"
#include "statistics/figures/grafikbild.h"
#include "statistics/options/statistik.h"
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

QString toText(const std::string &word)
{
    return QString::fromLocal8Bit(word.data(), static_cast<qsizetype>(word.size()));
}

QString absoluteNative(const std::string &word)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(toText(word)));
}

QString endingOf(const std::string &word)
{
    return QFileInfo(toText(word)).suffix().toLower();
}

std::string fileComplaint(const std::string &word)
{
    const bool known = QStringList{"pdf", "rtf", "html"}.contains(endingOf(word));
    return known ? std::string() : "the report's file name must end in .pdf, .rtf or .html: " + word;
}

std::string typeComplaint(const std::string &word)
{
    bool isNumber = false;
    const int number = toText(word).toInt(&isNumber);
    return isNumber && statistics::grafiktypAus(number) ? std::string()
                                                        : "\"" + word + "\" is no chart type; there are 0-9, 14 and 16";
}

} // namespace

void ReportCommand::addTo(CLI::App &app, const std::function<void(CLI::App *)> &addCommon)
{
    m_report = app.add_subcommand("report", "Writes the report of the marked persons");
    addCommon(m_report);
    m_report->add_option("--title", m_title, "The report's title")->type_name("T");
    m_report->add_option("--intro", m_intro, "The introductory text, a file")->type_name("F.rtf");
    m_report->add_option("--template", m_template, "Opens this template first, as `template open` does")
        ->type_name("F.kvl");
    m_report->add_option("--by", m_by, "Century of birth or of death")
        ->check(CLI::IsMember({"birth", "death"}).description(""))
        ->type_name("birth|death");
    m_report->add_option("--type", m_type, "Type of the chart: 0-9, 14 or 16")->check(typeComplaint)->type_name("N");
    m_report->add_flag("--no-legend", m_noLegend, "The chart has no legend");
    m_report->add_flag("--archive", m_archive, "Writes the PDF as PDF/A-1b, for keeping");
    m_report->add_option("--output", m_output, "The file to write")
        ->required()
        ->check(fileComplaint)
        ->type_name("F.pdf|F.rtf|F.html");
}

QString ReportCommand::introductionFile() const
{
    return absoluteNative(given("--intro") ? m_intro : m_template);
}

void ReportCommand::apply(statistics::Statistik &statistik, const statistics::GeschlechtAlter &sex) const
{
    if (given("--title"))
        statistik.titel = toText(m_title);
    if (given("--intro"))
        statistik.rtf = readIntroduction(introductionFile());
    if (given("--type"))
        statistik.grafiktyp = *statistics::grafiktypAus(m_type);
    if (given("--by"))
        statistik.nachGeburtsjahr = m_by == "birth";
    if (given("--sex"))
        statistik.geschlechtalter = sex;
    if (m_noLegend)
        statistik.legende = false;
}

int ReportCommand::run(const QString &programFolder, const statistics::GeschlechtAlter &sex) const
{
    StartedProgram started(programFolder);
    if (!started.ready)
        return Failed;
    Program &program = started.program;
    desktop::TerminalProgress terminal(u"composing the report"_s);

    statistics::Statistik statistik{.geschlechtalter = sex};
    if (!m_template.empty()) {
        statistik =
            selection::vorlageoeffnen(program, basic::windowsPath(absoluteNative(m_template)), terminal.progress())
                .vorlage.statistik;
    }
    apply(statistik, sex);

    statistics::Altersliste list;
    statistics::alterslistenausgabe(program.databases, statistik.geschlechtalter, list, terminal.progress());
    const statistics::Grafikzahlen figures =
        statistics::grafikermitteln(program.databases, statistik, terminal.progress());
    chart::ChartLook look = statistics::grafiklook(program.language, program.host, statistik);
    look.emptyText = statistics::leererText(program.language, figures.zahlen);

    print::PrintControl print;
    report::Bericht bericht(program, print);
    bericht.hintShown(); // it is about the window
    const QString output = absoluteNative(m_output);
    const QString ending = endingOf(m_output);
    print::ExportTarget target;
    if (ending != u"pdf")
        target = {ending == u"rtf" ? print::ExportFormat::Rtf : print::ExportFormat::Html, basic::windowsPath(output)};
    const QString written = bericht.auswahldrucken({.statistik = statistik,
                                                    .introductionFile = introductionFile(),
                                                    .list = list,
                                                    .figures = figures,
                                                    .look = look,
                                                    .criteria = {}},
                                                   target, terminal.progress());
    const QString persons = QString::number(list.size());
    if (ending == u"pdf") {
        print::writePdf(*print.layout(), print.document().title, output, terminal.progress(),
                        m_archive ? print::PdfKind::Archive : print::PdfKind::Plain);
        printLine(
            u"%1: %2 persons on %3 pages"_s.arg(output, persons, QString::number(print.layout()->pages().size())));
    } else {
        printLine(u"%1: %2 persons"_s.arg(program.host.native(written), persons));
    }
    return started.done();
}

} // namespace kalvenor::app
