// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/commandline.h"

#include "app/commands/chartcommand.h"
#include "app/commands/check.h"
#include "app/commands/commands.h"
#include "app/commands/commandwords.h"
#include "app/commands/filteroptions.h"
#include "app/commands/introductionfile.h"
#include "app/commands/reportcommand.h"
#include "app/commands/templatecommands.h"
#include "app/start/hostlanguage.h"
#include "app/start/startedprogram.h"
#include "app/window/windowprogram.h"
#include "language/texts/errormessage.h"
#include "platform/basic/path.h"
#include "platform/desktop/terminal.h"
#include <algorithm>
#include <array>
#include <memory>
#include <QApplication>
#include <QCoreApplication>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

QString pathOf(const std::string &word)
{
    return absoluteNative(toText(word));
}

basic::WindowsPath programFolder(const Words &words)
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

/// The host's language; where there is no host, the system's.
language::CatalogueLanguage languageFor(const Words &words)
{
    desktop::TerminalDesktop terminal;
    host::Host host(programFolder(words), terminal);
    speakAsHost(host);
    return language::catalogueLanguage(host);
}

/// Says what went wrong and gives the exit code.
int tell(const basic::Error &error, const Words &words)
{
    const auto language = languageFor(words);
    QString message = language::errorMessage(language, error);
    if (words.verbose)
        message += u'\n' + error.technical();
    switch (error.kind()) {
    case basic::ErrorKind::WrongUsage:
        desktop::writeError(wording(language::Text::SeeCommandHelp, language).arg(message));
        return Misused;
    case basic::ErrorKind::Cancelled:
        desktop::writeError(message);
        return Failed;
    default:
        desktop::TerminalDesktop().runtimeError(wording(language::Text::RuntimeError, language).arg(error.number()),
                                                message);
        return Failed;
    }
}

/// The list's query, narrowed where words of FILTER were given.
QString listQuery(selection::PersonList list, const Words &words)
{
    const auto given = [&words](const char *option) {
        return words.given(option);
    };
    if (std::ranges::none_of(std::array{"--name", "--sex", "--dates", "--from", "--to"}, given))
        return selection::plainListQuery(list);
    FilterOptions options{
        .name = toText(words.name), .sex = {}, .dates = {}, .from = toText(words.from), .to = toText(words.to)};
    if (given("--sex"))
        options.sex = toText(words.sex);
    for (const std::string &date : words.dates)
        options.dates << toText(date);
    const basic::DateOrder order = basic::systemDateOrder();
    const selection::Filter filter = filterOf(options, list, order, languageFor(words));
    return selection::filtern(filter, order).queries[static_cast<std::size_t>(list)];
}

int runListWords(const Words &words)
{
    const auto list = words.list == "marked" ? selection::PersonList::Marked : selection::PersonList::Unmarked;
    const QString query = listQuery(list, words);
    if (!words.showQuery)
        return runList(programFolder(words), {query, formatOf(words), words.limit});
    desktop::writeOutput((query + u'\n').toUtf8());
    desktop::flushOutput();
    return Done;
}

int runMarkWords(const Words &words, bool mark)
{
    using basic::Fault;
    const bool named = !words.counters.empty();
    if (words.all == named)
        throw basic::Error(Fault::WhomToMark);
    const auto from = mark ? selection::PersonList::Unmarked : selection::PersonList::Marked;
    const QString query = listQuery(from, words);
    if (named && query != selection::plainListQuery(from))
        throw basic::Error(Fault::FilterWithCounter);
    std::vector<qint32> counters;
    for (const std::string &word : words.counters) {
        const auto counter = counterOf(word);
        if (!counter)
            throw basic::Error(Fault::NoWholeNumber, {}, {u"--counter"_s, toText(word)});
        counters.push_back(*counter);
    }
    return runMark(programFolder(words),
                   {mark, named ? std::nullopt : std::optional(query), counters, {words.children, words.parents}});
}

StatistikWords statistikWords(const Words &words)
{
    const auto given = [&words](const char *option) {
        return words.given(option);
    };
    StatistikWords said;
    if (given("--title"))
        said.titel = toText(words.title);
    if (given("--intro")) {
        said.introductionFile = pathOf(words.intro);
        said.rtf =
            words.command == Command::Report ? readIntroduction(said.introductionFile) : readRtf(said.introductionFile);
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

QString pathOrNone(const std::string &word)
{
    return word.empty() ? QString() : pathOf(word);
}

int dispatch(const Words &words)
{
    const basic::WindowsPath folder = programFolder(words);
    switch (words.command) {
    case Command::Demo:
        return runDemo({pathOf(words.folder), words.persons, words.seed});
    case Command::Check:
        return runCheck(folder);
    case Command::List:
        return runListWords(words);
    case Command::Mark:
    case Command::Unmark:
        return runMarkWords(words, words.command == Command::Mark);
    case Command::Ages:
        return runAges(folder, {sexOf(words), formatOf(words)});
    case Command::Chart:
        return runChart(folder, {statistikWords(words), formatOf(words), pathOrNone(words.output),
                                 pictureSize(toText(words.size))});
    case Command::TemplateSave:
        return runTemplateSave(folder, pathOf(words.file), statistikWords(words));
    case Command::TemplateOpen:
        return runTemplateOpen(folder, pathOf(words.file), words.here);
    case Command::TemplateReset:
        return runTemplateReset(folder, pathOrNone(words.file));
    case Command::Report:
        return runReport(folder,
                         {statistikWords(words), pathOrNone(words.openedFirst), pathOf(words.output), words.archive});
    case Command::Window:
        break;
    }
    return Misused;
}

/// Qt's own remarks about the session (no runtime folder, …) say nothing about what a command does.
void onlyFaults(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        desktop::writeError(text);
}

/// Fonts, pages and charts need an application that knows fonts, which a command runs without a desktop; all else
/// starts faster without.
std::unique_ptr<QCoreApplication> makeApplication(const Words &words, int &argc, char **argv)
{
    const bool isReport = words.command == Command::Report;
    if (!isReport && !(words.command == Command::Chart && !words.output.empty()))
        return std::make_unique<QCoreApplication>(argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!isReport)
        return std::make_unique<QGuiApplication>(argc, argv);
    return std::make_unique<QApplication>(argc, argv);
}

} // namespace

int runCommandLine(int argc, char **argv)
{
    Words words;
    if (const auto code = readWords(argc, argv, words))
        return *code;

    qInstallMessageHandler(onlyFaults);
    if (words.command == Command::Window)
        return runWindow(argc, argv, pathOrNone(words.program), pathOrNone(words.templateFile));
    const auto application = makeApplication(words, argc, argv);
    desktop::catchInterrupt();
    try {
        return dispatch(words);
    } catch (const basic::Error &error) {
        return tell(error, words);
    } catch (const std::bad_alloc &) {
        return tell(basic::Error(basic::Fault::OutOfMemory), words);
    }
}

} // namespace kalvenor::app
