// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/commandline.h"

#include "app/commands/chartcommand.h"
#include "app/commands/check.h"
#include "app/commands/commands.h"
#include "app/commands/filteroptions.h"
#include "app/commands/introductionfile.h"
#include "app/commands/reportcommand.h"
#include "app/commands/templatecommands.h"
#include "app/start/hostlanguage.h"
#include "app/window/windowprogram.h"
#include "language/texts/errormessage.h"
#include "platform/basic/path.h"
#include "platform/desktop/terminal.h"
#include <CLI/CLI.hpp>
#include <limits>
#include <map>
#include <memory>
#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;
constexpr int Misused = 2;

/// The words of the command line as CLI11 leaves them.
struct Words {
    std::string program;
    std::string templateFile;
    std::string sex = "mw";
    std::string format = "text";
    std::string list = "unmarked";
    std::string folder;
    std::vector<std::string> counters;
    std::string name, from, to;
    std::vector<std::string> dates;
    std::string title, intro, openedFirst, by, output, size = "900x540", file;
    int type = 0;
    bool legend = false, noLegend = false, archive = false, here = false;
    bool all = false;
    bool children = false;
    bool parents = false;
    bool showQuery = false;
    int persons = 2000;
    quint32 seed = 1;
    qint64 limit = -1;
};

QString toText(const std::string &word)
{
    return QString::fromLocal8Bit(word.data(), static_cast<qsizetype>(word.size()));
}

QString pathOf(const std::string &word)
{
    return absoluteNative(toText(word));
}

QString programFolder(const Words &words)
{
    return basic::windowsPath(words.program.empty() ? QCoreApplication::applicationDirPath() : pathOf(words.program));
}

Format formatOf(const Words &words)
{
    return words.format == "tsv" ? Format::Tsv : words.format == "json" ? Format::Json : Format::Text;
}

statistics::GeschlechtAlter sexOf(const Words &words)
{
    const bool men = words.sex.find('m') != std::string::npos;
    const bool women = words.sex.find('w') != std::string::npos;
    return {men, women, men, women};
}

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

/// The introduction that a template keeps.
QByteArray readRtf(const QString &nativeFile)
{
    QByteArray rtf = readIntroduction(nativeFile);
    if (!rtf.startsWith("{\\rtf"))
        throw basic::Error(basic::Fault::IntroductionNotRtf, {.file = nativeFile});
    return rtf;
}

/// Decimal digits only: a leading zero or 0x must not mean another person.
std::optional<qint32> counterOf(const std::string &word)
{
    const QString text = toText(word);
    bool isNumber = false;
    const qint32 counter = text.toInt(&isNumber, 10);
    return isNumber && text == QString::number(counter) ? std::optional(counter) : std::nullopt;
}

constexpr const char *WhomToList = "Whom to list: m men, w women, mw both";

/// The commands and their options. Everything lives as long as the parser.
class Parser {
public:
    Parser();
    CLI::App app{"Age statistics for a family database; without a command, in a window", "kalvenor"};
    Words words;
    CLI::App *demo, *check, *list, *mark, *unmark, *ages, *chart, *report, *save, *open, *reset;

    bool draws() const { return report->parsed() || (chart->parsed() && !words.output.empty()); }

private:
    void addProgram(CLI::App *to);
    CLI::App *command(const char *name, const char *what);
    void addSex(CLI::App *to, const char *what);
    void addFormat(CLI::App *to);
    void addFilter(CLI::App *to);
    CLI::App *addMarkCommand(const char *name, const char *what);
    void addBy(CLI::App *to, const char *what);
    void addType(CLI::App *to, const char *what);
    void addChart();
    void addReport();
    void addTemplates();
};

void Parser::addProgram(CLI::App *to)
{
    to->add_option("--program", words.program, "The program's folder; its parent is the host folder")
        ->check(NotEmpty)
        ->type_name("DIR");
}

CLI::App *Parser::command(const char *name, const char *what)
{
    CLI::App *sub = app.add_subcommand(name, what);
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

CLI::App *Parser::addMarkCommand(const char *name, const char *what)
{
    CLI::App *sub = command(name, what);
    CLI::Option *all = sub->add_flag("--all", words.all, "All persons of the list, or those that the filter leaves");
    CLI::Option *counter = sub->add_option("--counter", words.counters, "These persons, by their Counter")
                               ->delimiter(',')
                               ->type_name("N[,N…]")
                               ->excludes(all);
    sub->add_flag("--children", words.children, "With all descendants")->needs(counter);
    sub->add_flag("--parents", words.parents, "With all ancestors")->needs(counter);
    addFilter(sub);
    return sub;
}

Parser::Parser()
{
    app.set_version_flag("--version", KALVENOR_VERSION);
    app.require_subcommand(0, 1);
    addProgram(&app);
    app.add_option("TEMPLATE", words.templateFile, "Opens the window with this template")
        ->check(isTemplate)
        ->type_name("F.kvl");

    demo = app.add_subcommand("demo", "Makes a demonstration host installation");
    demo->add_option("DIR", words.folder, "Where; DIR/QV becomes the host folder")
        ->required()
        ->check(NotEmpty)
        ->type_name("");
    demo->add_option("--persons", words.persons, "How many persons")
        ->check(CLI::Range(1, 2'000'000).description(""))
        ->type_name("N");
    demo->add_option("--seed", words.seed, "Another seed makes other families")->type_name("S");

    check = command("check", "Says what of the installation is there, readable and writable");
    list = command("list", "Lists the unmarked or the marked persons");
    list->add_option("--list", words.list, "Which list")
        ->check(CLI::IsMember({"unmarked", "marked"}).description(""))
        ->type_name("unmarked|marked");
    list->add_option("--limit", words.limit, "No more than the first N persons")
        ->check(CLI::Range(qint64{0}, std::numeric_limits<qint64>::max()).description(""))
        ->type_name("N");
    addFormat(list);
    addFilter(list);
    list->add_flag("--show-query", words.showQuery, "Prints the list's query instead");
    mark = addMarkCommand("mark", "Marks persons and prints how many rows changed");
    unmark = addMarkCommand("unmark", "Takes marks away and prints how many rows changed");
    ages = command("ages", "Writes the age list of the marked persons");
    addSex(ages, WhomToList);
    addFormat(ages);
    addChart();
    addReport();
    addTemplates();
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
    chart = command("chart", "Writes the average ages of the marked persons per century, with a picture where one is "
                             "wanted");
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
    report = command("report", "Writes the report of the marked persons");
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
    save = templates->add_subcommand("save", "Saves the marked persons and the options of the statistic");
    open = templates->add_subcommand("open", "Marks exactly the persons of a template, in its database");
    reset = templates->add_subcommand("reset", "Clears title and introduction and resets the options of a template, or "
                                               "prints what they would be");
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

/// In the host's language; where there is no host, in the system's.
void tell(const basic::Error &error, const Words &words)
{
    desktop::TerminalDesktop terminal;
    host::Host host(programFolder(words), terminal);
    speakAsHost(host);
    const QString message = language::errorMessage(language::catalogueLanguage(host), error);
    if (error.kind() == basic::ErrorKind::Cancelled)
        desktop::writeError(message);
    else
        terminal.runtimeError(error.number(), message);
}

int wrongUsage(const QString &line)
{
    desktop::writeError(line);
    return Misused;
}

QString withHelp(const QString &complaint)
{
    return complaint + u" (kalvenor --help lists commands and options)"_s;
}

/// The list's query, narrowed where words of FILTER were given.
QString listQuery(selection::PersonList list, const CLI::App &command, const Words &words)
{
    const auto given = [&command](const char *option) {
        return command.count(option) > 0;
    };
    if (!given("--name") && !given("--sex") && !given("--dates") && !given("--from") && !given("--to"))
        return selection::plainListQuery(list);
    FilterOptions options{
        .name = toText(words.name), .sex = {}, .dates = {}, .from = toText(words.from), .to = toText(words.to)};
    if (given("--sex"))
        options.sex = toText(words.sex);
    for (const std::string &date : words.dates)
        options.dates << toText(date);
    const basic::DateOrder order = basic::systemDateOrder();
    return selection::filtern(filterOf(options, list, order), order).queries[static_cast<std::size_t>(list)];
}

int runListWords(const Words &words, const CLI::App &command)
{
    const auto list = words.list == "marked" ? selection::PersonList::Marked : selection::PersonList::Unmarked;
    const QString query = listQuery(list, command, words);
    if (!words.showQuery)
        return runList(programFolder(words), {query, formatOf(words), words.limit});
    desktop::writeOutput((query + u'\n').toUtf8());
    desktop::flushOutput();
    return Done;
}

int runMarkWords(const Words &words, bool mark, const CLI::App &command)
{
    const bool named = !words.counters.empty();
    if (words.all == named)
        return wrongUsage(u"say whom: --all, or --counter N[,N…]"_s);
    const auto from = mark ? selection::PersonList::Unmarked : selection::PersonList::Marked;
    const QString query = listQuery(from, command, words);
    if (named && query != selection::plainListQuery(from))
        return wrongUsage(u"a filter goes with --all, not with --counter"_s);
    std::vector<qint32> counters;
    for (const std::string &word : words.counters) {
        const auto counter = counterOf(word);
        if (!counter)
            return wrongUsage(u"--counter: \"%1\" is no whole number"_s.arg(toText(word)));
        counters.push_back(*counter);
    }
    return runMark(programFolder(words),
                   {mark, named ? std::nullopt : std::optional(query), counters, {words.children, words.parents}});
}

StatistikWords statistikWords(const CLI::App &command, const Words &words)
{
    const auto given = [&command](const char *option) {
        const CLI::Option *known = command.get_option_no_throw(option);
        return known != nullptr && known->count() > 0;
    };
    StatistikWords said;
    if (given("--title"))
        said.titel = toText(words.title);
    if (given("--intro")) {
        said.introductionFile = pathOf(words.intro);
        said.rtf =
            command.get_name() == "report" ? readIntroduction(said.introductionFile) : readRtf(said.introductionFile);
    }
    if (given("--type"))
        said.grafiktyp = statistics::grafiktypAus(words.type);
    if (given("--by"))
        said.nachGeburtsjahr = words.by == "birth";
    if (given("--sex"))
        said.geschlechtalter = sexOf(words);
    if (given("--legend") || given("--no-legend"))
        said.legende = words.legend;
    return said;
}

int dispatch(const Parser &parser)
{
    const Words &words = parser.words;
    if (parser.demo->parsed())
        return runDemo({pathOf(words.folder), words.persons, words.seed});
    if (parser.check->parsed())
        return runCheck(programFolder(words));
    if (parser.list->parsed())
        return runListWords(words, *parser.list);
    if (parser.mark->parsed())
        return runMarkWords(words, true, *parser.mark);
    if (parser.unmark->parsed())
        return runMarkWords(words, false, *parser.unmark);
    if (parser.ages->parsed())
        return runAges(programFolder(words), {sexOf(words), formatOf(words)});
    if (parser.chart->parsed())
        return runChart(programFolder(words),
                        {statistikWords(*parser.chart, words), formatOf(words),
                         words.output.empty() ? QString() : pathOf(words.output), pictureSize(toText(words.size))});
    if (parser.save->parsed())
        return runTemplateSave(programFolder(words), pathOf(words.file), statistikWords(*parser.save, words));
    if (parser.open->parsed())
        return runTemplateOpen(programFolder(words), pathOf(words.file), words.here);
    if (parser.reset->parsed())
        return runTemplateReset(programFolder(words), words.file.empty() ? QString() : pathOf(words.file));
    return runReport(programFolder(words), {statistikWords(*parser.report, words),
                                            words.openedFirst.empty() ? QString() : pathOf(words.openedFirst),
                                            pathOf(words.output), words.archive});
}

/// Qt's own remarks about the session (no runtime folder, …) say nothing about what a command does.
void onlyFaults(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        desktop::writeError(text);
}

/// Fonts, pages and charts need an application that knows fonts, which a command runs without a desktop; all else
/// starts faster without.
std::unique_ptr<QCoreApplication> makeApplication(const Parser &parser, int &argc, char **argv)
{
    if (!parser.draws())
        return std::make_unique<QCoreApplication>(argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!parser.report->parsed())
        return std::make_unique<QGuiApplication>(argc, argv);
    return std::make_unique<QApplication>(argc, argv);
}

} // namespace

int runCommandLine(int argc, char **argv)
{
    Parser parser;
    try {
        parser.app.parse(argc, argv);
    } catch (const CLI::Success &asked) {
        return parser.app.exit(asked);
    } catch (const CLI::ParseError &error) {
        // CLI11 may break a complaint over lines; here it is one line that helps.
        return wrongUsage(withHelp(QString::fromStdString(error.what()).simplified()));
    }

    qInstallMessageHandler(onlyFaults);
    if (parser.app.get_subcommands().empty())
        return runWindow(argc, argv, parser.words.program.empty() ? QString() : pathOf(parser.words.program),
                         parser.words.templateFile.empty() ? QString() : pathOf(parser.words.templateFile));
    const auto application = makeApplication(parser, argc, argv);
    desktop::catchInterrupt();
    try {
        return dispatch(parser);
    } catch (const WrongUsage &error) {
        return wrongUsage(withHelp(QString::fromUtf8(error.what())));
    } catch (const basic::Error &error) {
        tell(error, parser.words);
    } catch (const std::bad_alloc &) {
        tell(basic::Error(basic::Fault::OutOfMemory), parser.words);
    }
    return Failed;
}

} // namespace kalvenor::app
