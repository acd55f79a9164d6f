// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/templatecommands.h"

#include "app/commands/introductionfile.h"
#include "app/start/startedprogram.h"
#include "selection/templates/vorlageoeffnen.h"
#include "selection/templates/vorlagespeichern.h"
#include "statistics/options/statistik.h"
#include <algorithm>
#include <QDir>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

/// Numbers of persons that are named, of those that were not found.
constexpr std::size_t NamedPersons = 20;

QString toText(const std::string &word)
{
    return QString::fromLocal8Bit(word.data(), static_cast<qsizetype>(word.size()));
}

QString absoluteNative(const std::string &word)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(toText(word)));
}

QByteArray readRtf(const QString &nativeFile)
{
    QByteArray rtf = readIntroduction(nativeFile);
    if (!rtf.startsWith("{\\rtf"))
        throw basic::Error(basic::Fault::IntroductionNotRtf, {.file = nativeFile});
    return rtf;
}

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

void TemplateCommands::addTo(CLI::App &app, const std::function<void(CLI::App *)> &addProgram)
{
    m_template = app.add_subcommand("template", "Saves the marked persons as a template, opens or resets one");
    m_template->require_subcommand(1);
    m_save = m_template->add_subcommand("save", "Saves the marked persons and the options of the statistic");
    m_open = m_template->add_subcommand("open", "Marks exactly the persons of a template, in its database");
    m_reset = m_template->add_subcommand("reset", "Clears title and introduction and resets the options of a template, "
                                                  "or prints what they would be");
    for (CLI::App *command : {m_save, m_open, m_reset}) {
        addProgram(command);
        CLI::Option *file = command->add_option("FILE", m_file, "The template, ending in .kvl")->type_name("");
        file->check([](const std::string &word) { return word.empty() ? "the name is empty" : std::string(); }, "");
        file->required(command != m_reset);
    }
    addOptions();
}

void TemplateCommands::addOptions()
{
    std::vector<int> numbers;
    for (const statistics::ChartTypeEntry &entry : statistics::chartTypeEntries())
        numbers.push_back(static_cast<int>(entry.type));
    m_save->add_option("--title", m_title, "The statistic's title")->type_name("T");
    m_save->add_option("--intro", m_intro, "The introduction, a file")->type_name("F.rtf");
    m_save->add_option("--type", m_type, "Type of the chart: 0-9, 14 or 16")
        ->check(CLI::IsMember(numbers).description(""))
        ->type_name("N");
    m_save->add_option("--sex", m_sex, "Whom to show: m men, w women, mw both")
        ->check(CLI::IsMember({"m", "w", "mw"}).description(""))
        ->type_name("m|w|mw");
    m_save->add_option("--by", m_by, "The chart goes by year of birth or of death")
        ->check(CLI::IsMember({"birth", "death"}).description(""))
        ->type_name("birth|death");
    CLI::Option *legend = m_save->add_flag("--legend", m_legend, "The chart has a legend");
    m_save->add_flag("--no-legend", m_noLegend, "The chart has none")->excludes(legend);
    m_open->add_flag("--here", m_here, "Where the template's database does not exist, use the host's");
}

int TemplateCommands::run(const QString &programFolder) const
{
    return m_save->parsed() ? save(programFolder) : m_open->parsed() ? open(programFolder) : reset(programFolder);
}

int TemplateCommands::save(const QString &programFolder) const
{
    const StartedProgram started(programFolder);
    if (!started.ready)
        return Failed;
    const host::Host &host = started.program.host;
    statistics::Statistik statistik = selection::vorlageclear(host);
    statistik.titel = toText(m_title);
    if (!m_intro.empty())
        statistik.rtf = readRtf(absoluteNative(m_intro));
    if (m_save->count("--type") > 0)
        statistik.grafiktyp = *statistics::grafiktypAus(m_type);
    if (!m_sex.empty()) {
        const qint16 men = m_sex.find('m') != std::string::npos ? 1 : 0;
        const qint16 women = m_sex.find('w') != std::string::npos ? 1 : 0;
        statistik.geschlechtalter = {men, women, men, women};
    }
    if (!m_by.empty())
        statistik.nachGeburtsjahr = m_by == "birth";
    if (m_legend || m_noLegend)
        statistik.legende = m_legend;

    const QString file = absoluteNative(m_file);
    desktop::TerminalProgress terminal(u"saving the template"_s);
    const qsizetype persons = selection::vorlagespeichern(host, started.program.databases, basic::windowsPath(file),
                                                          statistik, terminal.progress());
    printLine(u"%1: %2 persons"_s.arg(file).arg(persons));
    return started.done();
}

int TemplateCommands::open(const QString &programFolder) const
{
    StartedProgram started(programFolder);
    if (!started.ready)
        return Failed;
    Program &program = started.program;
    selection::UseOpenDatabase useOpenDatabase;
    if (m_here)
        useOpenDatabase = [](const QString &) {
            return true;
        };
    desktop::TerminalProgress terminal(u"opening the template"_s);
    const selection::OpenedVorlage opened = selection::vorlageoeffnen(
        program, basic::windowsPath(absoluteNative(m_file)), terminal.progress(), useOpenDatabase);
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
    return started.done();
}

int TemplateCommands::reset(const QString &programFolder) const
{
    desktop::TerminalDesktop desktop;
    const host::Host host(programFolder, desktop);
    const statistics::Statistik statistik = selection::vorlageclear(host);
    if (!m_file.empty()) {
        const QString file = absoluteNative(m_file);
        selection::Vorlage vorlage = selection::readVorlage(file);
        vorlage.statistik = statistik;
        selection::writeVorlage(file, vorlage);
    }
    printLine(lines(statistik));
    return Done;
}

} // namespace kalvenor::app
