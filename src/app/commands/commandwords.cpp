// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/commandwords.h"

#include "app/commands/chartcommand.h"
#include "app/commands/filteroptions.h"
#include "app/start/startedprogram.h"
#include <CLI/CLI.hpp>
#include <limits>
#include <map>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

/// Where a folder is asked for, the empty text is a variable that a script left empty.
const CLI::Validator
    NotEmpty([](const std::string &word) { return word.empty() ? "the name is empty" : std::string(); }, "");

std::string isTemplate(const std::string &word)
{
    return toText(word).endsWith(u".kvl", Qt::CaseInsensitive)
               ? std::string()
               : "there is no command " + word + ", and a template ends in .kvl";
}

std::string sizeComplaint(const std::string &word)
{
    return pictureSize(toText(word)).isValid()
               ? std::string()
               : "\"" + word + "\" is no size like 900x540, each side 1 to 20000 pixels";
}

std::string typeComplaint(const std::string &word)
{
    bool isNumber = false;
    const int number = toText(word).toInt(&isNumber);
    return isNumber && statistics::grafiktypAus(number) ? std::string()
                                                        : "\"" + word + "\" is no chart type; there are 0-9, 14 and 16";
}

/// Refuses names of files that end otherwise.
auto endingIn(const QStringList &endings, const char *complaint)
{
    return [endings, complaint](const std::string &word) {
        const bool known = endings.contains(QFileInfo(toText(word)).suffix().toLower());
        return known ? std::string() : complaint + word;
    };
}

constexpr const char *WhomToList = "Whom to list: m men, w women, mw both";

/// The commands and their options.
class Parser {
public:
    explicit Parser(Words &given);
    CLI::App app{"Age statistics for a family database; without a command, in a window", "kalvenor"};
    /// What was parsed.
    void finish();

private:
    CLI::App *add(CLI::App &to, Command command, const char *name, const char *what);
    void addProgram(CLI::App *to);
    CLI::App *command(Command command, const char *name, const char *what);
    void addSex(CLI::App *to, const char *what);
    void addFormat(CLI::App *to);
    void addFilter(CLI::App *to);
    void addMarkCommand(Command command, const char *name, const char *what);
    void addBy(CLI::App *to, const char *what);
    void addType(CLI::App *to, const char *what);
    void addList();
    void addChart();
    void addReport();
    void addTemplates();

    Words &words;
    std::map<const CLI::App *, Command> m_commands;
};

void Parser::finish()
{
    for (const auto &[sub, kind] : m_commands) {
        if (!sub->parsed())
            continue;
        words.command = kind;
        for (const CLI::Option *option : sub->get_options()) {
            if (option->count() > 0)
                words.options.insert(option->get_name());
        }
    }
}

CLI::App *Parser::add(CLI::App &to, Command command, const char *name, const char *what)
{
    CLI::App *sub = to.add_subcommand(name, what);
    sub->add_flag("--verbose", words.verbose, "Shows the technical wording of an error, too");
    m_commands[sub] = command;
    return sub;
}

void Parser::addProgram(CLI::App *to)
{
    to->add_option("--program", words.program, "The program's folder; its parent is the host folder")
        ->check(NotEmpty)
        ->type_name("DIR");
}

CLI::App *Parser::command(Command command, const char *name, const char *what)
{
    CLI::App *sub = add(app, command, name, what);
    addProgram(sub);
    return sub;
}

void Parser::addSex(CLI::App *to, const char *what)
{
    to->add_option("--sex", words.sex, what)
        ->check(CLI::IsMember({"m", "w", "mw"}).description(""))
        ->type_name("m|w|mw");
}

void Parser::addFormat(CLI::App *to)
{
    to->add_option("--format", words.format, "How the result is written")
        ->check(CLI::IsMember({"text", "tsv", "json"}).description(""))
        ->type_name("text|tsv|json");
}

void Parser::addFilter(CLI::App *to)
{
    const std::string order = orderText(basic::systemDateOrder()).toStdString();
    CLI::Option *dates = to->add_option("--dates", words.dates, "Which dates lie between --from and --to")
                             ->delimiter(',')
                             ->check(CLI::IsMember({"birth", "death", "change"}).description(""))
                             ->type_name("birth,death,change");
    to->add_option("--name", words.name, "Whose list name matches; * any text, ? one character")->type_name("PATTERN");
    addSex(to, "m men, w women, mw whoever");
    to->add_option("--from", words.from, "Not before this day, " + order + " or yyyy-mm-dd")
        ->needs(dates)
        ->type_name("DATE");
    to->add_option("--to", words.to, "Not after this day, " + order + " or yyyy-mm-dd")
        ->needs(dates)
        ->type_name("DATE");
}

void Parser::addMarkCommand(Command kind, const char *name, const char *what)
{
    CLI::App *sub = command(kind, name, what);
    CLI::Option *all = sub->add_flag("--all", words.all, "All persons of the list, or those that the filter leaves");
    CLI::Option *counter = sub->add_option("--counter", words.counters, "These persons, by their Counter")
                               ->delimiter(',')
                               ->type_name("N[,N…]")
                               ->excludes(all);
    sub->add_flag("--children", words.children, "With all descendants")->needs(counter);
    sub->add_flag("--parents", words.parents, "With all ancestors")->needs(counter);
    addFilter(sub);
}

Parser::Parser(Words &given) : words(given)
{
    app.set_version_flag("--version", KALVENOR_VERSION);
    app.require_subcommand(0, 1);
    addProgram(&app);
    app.add_option("TEMPLATE", words.templateFile, "Opens the window with this template")
        ->check(isTemplate)
        ->type_name("F.kvl");

    CLI::App *demo = add(app, Command::Demo, "demo", "Makes a demonstration host installation");
    demo->add_option("DIR", words.folder, "Where; DIR/QV becomes the host folder")
        ->required()
        ->check(NotEmpty)
        ->type_name("");
    demo->add_option("--persons", words.persons, "How many persons")
        ->check(CLI::Range(1, 2'000'000).description(""))
        ->type_name("N");
    demo->add_option("--seed", words.seed, "Another seed makes other families")->type_name("S");

    command(Command::Check, "check", "Says what of the installation is there, readable and writable");
    addList();
    addMarkCommand(Command::Mark, "mark", "Marks persons and prints how many rows changed");
    addMarkCommand(Command::Unmark, "unmark", "Takes marks away and prints how many rows changed");
    CLI::App *ages = command(Command::Ages, "ages", "Writes the age list of the marked persons");
    addSex(ages, WhomToList);
    addFormat(ages);
    addChart();
    addReport();
    addTemplates();
}

void Parser::addList()
{
    CLI::App *list = command(Command::List, "list", "Lists the unmarked or the marked persons");
    list->add_option("--list", words.list, "Which list")
        ->check(CLI::IsMember({"unmarked", "marked"}).description(""))
        ->type_name("unmarked|marked");
    list->add_option("--limit", words.limit, "No more than the first N persons")
        ->check(CLI::Range(qint64{0}, std::numeric_limits<qint64>::max()).description(""))
        ->type_name("N");
    addFormat(list);
    addFilter(list);
    list->add_flag("--show-query", words.showQuery, "Prints the list's query instead");
}

void Parser::addBy(CLI::App *to, const char *what)
{
    to->add_option("--by", words.by, what)
        ->check(CLI::IsMember({"birth", "death"}).description(""))
        ->type_name("birth|death");
}

void Parser::addType(CLI::App *to, const char *what)
{
    to->add_option("--type", words.type, what)->check(typeComplaint)->type_name("N");
}

void Parser::addChart()
{
    CLI::App *chart =
        command(Command::Chart, "chart",
                "Writes the average ages of the marked persons per century, with a picture where one is wanted");
    addSex(chart, WhomToList);
    addFormat(chart);
    addBy(chart, "Century of birth or of death");
    chart->add_option("--output", words.output, "The picture to write")
        ->check(endingIn({"png", "jpg", "jpeg", "svg"}, "the picture's file name must end in .png, .jpg or .svg: "))
        ->type_name("F.png|F.jpg|F.svg");
    addType(chart, "Type of the picture's chart: 0-9, 14 or 16");
    chart->add_option("--size", words.size, "Size of the picture in pixels")->check(sizeComplaint)->type_name("WxH");
    chart->add_flag("--no-legend", words.noLegend, "The picture has no legend");
}

void Parser::addReport()
{
    CLI::App *report = command(Command::Report, "report", "Writes the report of the marked persons");
    addSex(report, WhomToList);
    report->add_option("--title", words.title, "The report's title")->type_name("T");
    report->add_option("--intro", words.intro, "The introductory text, a file")->type_name("F.rtf");
    report->add_option("--template", words.openedFirst, "Opens this template first, as `template open` does")
        ->type_name("F.kvl");
    addBy(report, "Century of birth or of death");
    addType(report, "Type of the chart: 0-9, 14 or 16");
    report->add_flag("--no-legend", words.noLegend, "The chart has no legend");
    report->add_flag("--archive", words.archive, "Writes the PDF as PDF/A-1b, for keeping");
    report->add_option("--output", words.output, "The file to write")
        ->required()
        ->check(endingIn({"pdf", "rtf", "html"}, "the report's file name must end in .pdf, .rtf or .html: "))
        ->type_name("F.pdf|F.rtf|F.html");
}

void Parser::addTemplates()
{
    CLI::App *templates = app.add_subcommand("template", "Saves the marked persons as a template, opens or resets one");
    templates->require_subcommand(1);
    CLI::App *save =
        add(*templates, Command::TemplateSave, "save", "Saves the marked persons and the options of the statistic");
    CLI::App *open =
        add(*templates, Command::TemplateOpen, "open", "Marks exactly the persons of a template, in its database");
    CLI::App *reset =
        add(*templates, Command::TemplateReset, "reset",
            "Clears title and introduction and resets the options of a template, or prints what they would be");
    for (CLI::App *sub : {save, open, reset}) {
        addProgram(sub);
        CLI::Option *file = sub->add_option("FILE", words.file, "The template, ending in .kvl");
        file->type_name("")->required(sub != reset);
        // One of another name is only read, never written.
        file->check(sub == open
                        ? NotEmpty
                        : CLI::Validator(endingIn({u"kvl"_s}, "the template's file name must end in .kvl: "), ""));
    }
    save->add_option("--title", words.title, "The statistic's title")->type_name("T");
    save->add_option("--intro", words.intro, "The introduction, a file")->type_name("F.rtf");
    addType(save, "Type of the chart: 0-9, 14 or 16");
    addSex(save, "Whom to show: m men, w women, mw both");
    addBy(save, "The chart goes by year of birth or of death");
    CLI::Option *legend = save->add_flag("--legend", words.legend, "The chart has a legend");
    save->add_flag("--no-legend", words.noLegend, "The chart has none")->excludes(legend);
    open->add_flag("--here", words.here, "Where the template's database does not exist, use the host's");
}

} // namespace

QString toText(const std::string &word)
{
    return QString::fromLocal8Bit(word.data(), static_cast<qsizetype>(word.size()));
}

std::optional<int> readWords(int argc, char **argv, Words &words)
{
    Parser parser(words);
    try {
        parser.app.parse(argc, argv);
    } catch (const CLI::Success &asked) {
        return parser.app.exit(asked);
    } catch (const CLI::ParseError &error) {
        // In English, as the help; CLI11 may break a complaint over lines.
        desktop::writeError(wording(language::Text::SeeCommandHelp, language::CatalogueLanguage::English)
                                .arg(QString::fromStdString(error.what()).simplified()));
        return Misused;
    }
    parser.finish();
    return std::nullopt;
}

} // namespace kalvenor::app
