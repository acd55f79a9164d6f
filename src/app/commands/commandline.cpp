// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/commandline.h"

#include "app/commands/chartcommand.h"
#include "app/commands/check.h"
#include "app/commands/commands.h"
#include "app/commands/filteroptions.h"
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
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;
constexpr int WrongUsage = 2;

/// The words of the command line as CLI11 leaves them.
struct Words {
    std::string program;
    std::string templateFile;
    std::string sex = "mw";
    std::string format = "text";
    std::string list = "unmarked";
    std::string folder;
    std::vector<std::string> counters;
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

QString absoluteNative(const std::string &word)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(toText(word)));
}

QString programFolder(const Words &words)
{
    return basic::windowsPath(words.program.empty() ? QCoreApplication::applicationDirPath()
                                                    : absoluteNative(words.program));
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

/// Decimal digits only: a leading zero or 0x must not mean another person.
std::optional<qint32> counterOf(const std::string &word)
{
    const QString text = toText(word);
    bool isNumber = false;
    const qint32 counter = text.toInt(&isNumber, 10);
    return isNumber && text == QString::number(counter) ? std::optional(counter) : std::nullopt;
}

/// The commands and their options. Everything lives as long as the parser.
class Parser {
public:
    Parser();
    CLI::App app{"Age statistics for a family database; without a command, in a window", "kalvenor"};
    Words words;
    CLI::App *demo, *check, *list, *mark, *unmark, *ages;
    FilterOptions listFilter, markFilter, unmarkFilter;
    ChartCommand chart;
    ReportCommand report;
    TemplateCommands templates;

private:
    void addProgram(CLI::App *to);
    CLI::App *command(const char *name, const char *what);
    void addSex(CLI::App *to);
    void addFormat(CLI::App *to);
    CLI::App *addMarkCommand(const char *name, const char *what, FilterOptions &filter);
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

void Parser::addSex(CLI::App *to)
{
    to->add_option("--sex", words.sex, "Whom to list: m men, w women, mw both")
        ->check(CLI::IsMember({"m", "w", "mw"}).description(""))
        ->type_name("m|w|mw");
}

void Parser::addFormat(CLI::App *to)
{
    to->add_option("--format", words.format, "How the result is written")
        ->check(CLI::IsMember({"text", "tsv", "json"}).description(""))
        ->type_name("text|tsv|json");
}

CLI::App *Parser::addMarkCommand(const char *name, const char *what, FilterOptions &filter)
{
    CLI::App *sub = command(name, what);
    CLI::Option *all = sub->add_flag("--all", words.all, "All persons of the list, or those that the filter leaves");
    CLI::Option *counter = sub->add_option("--counter", words.counters, "These persons, by their Counter")
                               ->delimiter(',')
                               ->type_name("N[,N…]")
                               ->excludes(all);
    sub->add_flag("--children", words.children, "With all descendants")->needs(counter);
    sub->add_flag("--parents", words.parents, "With all ancestors")->needs(counter);
    filter.addTo(*sub);
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
    listFilter.addTo(*list);
    list->add_flag("--show-query", words.showQuery, "Prints the list's query instead");
    mark = addMarkCommand("mark", "Marks persons and prints how many rows changed", markFilter);
    unmark = addMarkCommand("unmark", "Takes marks away and prints how many rows changed", unmarkFilter);
    ages = command("ages", "Writes the age list of the marked persons");
    addSex(ages);
    addFormat(ages);
    chart.addTo(app, [this](CLI::App *to) {
        addProgram(to);
        addSex(to);
        addFormat(to);
    });
    report.addTo(app, [this](CLI::App *to) {
        addProgram(to);
        addSex(to);
    });
    templates.addTo(app, [this](CLI::App *to) { addProgram(to); });
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
    return WrongUsage;
}

int wrongUsage(const CLI::ParseError &error)
{
    // CLI11 may break a complaint over lines; here it is one line that helps.
    const QString complaint = QString::fromStdString(error.what()).simplified();
    return wrongUsage(complaint + u" (kalvenor --help lists commands and options)"_s);
}

/// The list's query, narrowed where words of FILTER were given.
QString listQuery(selection::PersonList list, const FilterOptions &options)
{
    const basic::DateOrder order = basic::systemDateOrder();
    const auto filter = options.filter(list, order);
    return filter ? selection::filtern(*filter, order).queries[static_cast<std::size_t>(list)]
                  : selection::plainListQuery(list);
}

int runListWords(const Words &words, const FilterOptions &filter)
{
    const auto list = words.list == "marked" ? selection::PersonList::Marked : selection::PersonList::Unmarked;
    const QString query = listQuery(list, filter);
    if (!words.showQuery)
        return runList(programFolder(words), {query, formatOf(words), words.limit});
    desktop::writeOutput((query + u'\n').toUtf8());
    desktop::flushOutput();
    return Done;
}

int runMarkWords(const Words &words, bool mark, const FilterOptions &filter)
{
    const bool named = !words.counters.empty();
    if (words.all == named)
        return wrongUsage(u"say whom: --all, or --counter N[,N…]"_s);
    const auto from = mark ? selection::PersonList::Unmarked : selection::PersonList::Marked;
    const QString query = listQuery(from, filter);
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

int dispatch(const Parser &parser)
{
    const Words &words = parser.words;
    if (parser.demo->parsed())
        return runDemo({absoluteNative(words.folder), words.persons, words.seed});
    if (parser.check->parsed())
        return runCheck(programFolder(words));
    if (parser.list->parsed())
        return runListWords(words, parser.listFilter);
    if (parser.mark->parsed())
        return runMarkWords(words, true, parser.markFilter);
    if (parser.unmark->parsed())
        return runMarkWords(words, false, parser.unmarkFilter);
    if (parser.ages->parsed())
        return runAges(programFolder(words), {sexOf(words), formatOf(words)});
    if (parser.chart.parsed())
        return parser.chart.run(programFolder(words), sexOf(words), formatOf(words));
    if (parser.templates.parsed())
        return parser.templates.run(programFolder(words));
    return parser.report.run(programFolder(words), sexOf(words));
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
    if (!parser.report.parsed() && !parser.chart.draws())
        return std::make_unique<QCoreApplication>(argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!parser.report.parsed())
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
        return wrongUsage(error);
    }

    qInstallMessageHandler(onlyFaults);
    if (parser.app.get_subcommands().empty())
        return runWindow(argc, argv, parser.words.program.empty() ? QString() : absoluteNative(parser.words.program),
                         parser.words.templateFile.empty() ? QString() : absoluteNative(parser.words.templateFile));
    const auto application = makeApplication(parser, argc, argv);
    desktop::catchInterrupt();
    try {
        return dispatch(parser);
    } catch (const CLI::ParseError &error) {
        return wrongUsage(error);
    } catch (const basic::Error &error) {
        tell(error, parser.words);
    } catch (const std::bad_alloc &) {
        tell(basic::Error(basic::Fault::OutOfMemory), parser.words);
    }
    return Failed;
}

} // namespace kalvenor::app
