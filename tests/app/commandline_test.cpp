// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program as a person or a script runs it.
#include "support/files.h"
#include "support/fixtures.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kalvenor;

namespace {

struct Outcome {
    int exitCode;
    QString out;
    QString err;
};

Outcome run(const QStringList &arguments,
            const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(KALVENOR_PROGRAM, arguments);
    process.waitForFinished(120'000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

/// One demonstration host for all cases of this file; each case leaves every person unmarked.
class CommandLine : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        folder = new QTemporaryDir;
        const Outcome made = run({"demo", folder->path(), "--persons", "400", "--seed", "5"});
        ASSERT_EQ(made.exitCode, 0) << made.err.toStdString();
    }
    static void TearDownTestSuite() { delete folder; }

    static Outcome onDemo(QStringList arguments)
    {
        arguments.insert(1, "--program");
        arguments.insert(2, folder->filePath("QV/Kalvenor"));
        return run(arguments);
    }
    static QByteArray familyBytes() { return test::contentOf(folder->filePath("QV/Daten/Familie.mdb")); }
    static qsizetype lineCount(const QString &text) { return text.count('\n'); }
    static void expectRefused(const Outcome &outcome, const QString &said, int exitCode = 1)
    {
        EXPECT_EQ(outcome.exitCode, exitCode) << said.toStdString();
        EXPECT_EQ(lineCount(outcome.err), 1) << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.contains(said)) << said.toStdString() << " in " << outcome.err.toStdString();
        EXPECT_TRUE(outcome.out.isEmpty()) << outcome.out.toStdString();
    }
    static QTemporaryDir *folder;
};

QTemporaryDir *CommandLine::folder = nullptr;

} // namespace

TEST_F(CommandLine, RefusesWrongUsageInOneLineThatHelps)
{
    const struct {
        QStringList arguments;
        QString named;
    } rows[] = {
        {{"list", "--list", "all"}, "--list"},
        {{"list", "--colour"}, "--colour"},
        {{"mark"}, "--counter"},
        {{"mark", "--counter", "1,zwei"}, "zwei"},
        {{"mark", "--counter", "010"}, "010"},
        {{"mark", "--counter", ""}, "--counter"},
        {{"list", "--program", ""}, "--program"},
        {{"demo", ""}, "DIR"},
        {{"mark", "--all", "--children"}, "--children"},
        {{"mark", "--counter", "1", "--name", "x"}, "--all"},
        {{"list", "--from", "01-01-1900"}, "--dates"},
        {{"list", "--dates", "birth", "--from", "31-02-1900"}, "31-02-1900"},
        {{"list", "--dates", "baptism"}, "--dates"},
        {{"chart", "--type", "10"}, "--type"},
        {{"chart", "--output", "x.gif"}, ".png"},
        {{"chart", "--size", "900x"}, "900x"},
        {{"chart", "--size", "20001x9"}, "20001x9"},
        {{"report"}, "--output"},
        {{"report", "--output", "x.doc"}, ".pdf"},
        {{"demo"}, "DIR"},
        {{"template"}, "subcommand"},
        {{"template", "save"}, "FILE"},
        {{"demo", "x", "--persons", "0"}, "--persons"},
        {{"statistics"}, "statistics"},
    };
    for (const auto &row : rows)
        expectRefused(run(row.arguments), row.named, 2);
    EXPECT_EQ(run({"--help"}).exitCode, 0);
    EXPECT_EQ(run({"check", "--program", folder->filePath("nirgends/Kalvenor")}).exitCode, 1);
}

TEST_F(CommandLine, MarksAndListsPersons)
{
    const QByteArray before = familyBytes();
    const Outcome unmarked = onDemo({"list", "--format", "tsv"});
    ASSERT_EQ(unmarked.exitCode, 0) << unmarked.err.toStdString();
    ASSERT_EQ(lineCount(unmarked.out), 400);
    const QString first = unmarked.out.section('\t', 0, 0);
    const QString tenth = unmarked.out.section('\n', 9, 9).section('\t', 0, 0);

    EXPECT_EQ(onDemo({"mark", "--counter", first + "," + tenth}).out, "2 rows changed\n");
    EXPECT_EQ(onDemo({"mark", "--counter", first}).out, "0 rows changed\n");
    EXPECT_EQ(onDemo({"list", "--list", "marked", "--format", "tsv"}).out,
              unmarked.out.section('\n', 0, 0) + '\n' + unmarked.out.section('\n', 9, 9) + '\n');
    EXPECT_EQ(lineCount(onDemo({"list", "--limit", "7"}).out), 7);

    expectRefused(onDemo({"mark", "--counter", first + ",99999999"}),
                  "Eine Person mit dem Counter 99999999 gibt es nicht; ");

    EXPECT_EQ(onDemo({"mark", "--all"}).out, "398 rows changed\n");
    EXPECT_EQ(onDemo({"list", "--format", "json"}).out, "[]\n");
    EXPECT_EQ(onDemo({"unmark", "--all"}).out, "400 rows changed\n");
    EXPECT_TRUE(familyBytes() == before) << "unmarking does not restore the file";
}

TEST_F(CommandLine, FiltersLists)
{
    EXPECT_EQ(onDemo({"list", "--show-query", "--list", "marked", "--name", "Müller", "--sex", "w", "--dates",
                      "birth,change", "--from", "1900-01-31", "--to", "31-01-1950"})
                  .out,
              "SELECT * FROM Daten WHERE Listname LIKE '*Müller*' AND Geschlecht = 'W'   AND Geburtsdatum >= 32 AND "
              "Geburtsdatum <= 18294  AND geaendert >= 32AND geaendert <= 18294 AND Markierung = -1 ORDER BY "
              "Listname;\n");

    const auto count = [](const QStringList &words) {
        return lineCount(onDemo(QStringList{"list"} + words).out);
    };
    const auto women = count({"--sex", "w"});
    EXPECT_GT(women, 100);
    EXPECT_EQ(count({"--name", "", "--dates", "birth"}), 400);
    EXPECT_EQ(onDemo({"mark", "--all", "--sex", "w"}).out, QString("%1 rows changed\n").arg(women));
    EXPECT_EQ(onDemo({"unmark", "--all", "--sex", "m"}).out, "0 rows changed\n");
    EXPECT_EQ(onDemo({"unmark", "--all", "--name", "*"}).out, QString("%1 rows changed\n").arg(women));

    EXPECT_EQ(onDemo({"list", "--name", "O'Brien"}).exitCode, 1);
}

TEST_F(CommandLine, SaysHowDatesAreRead)
{
    const struct {
        const char *locale;
        const char *from;
        const char *day; ///< in the query; "" where it is refused
        const char *said;
    } rows[] = {
        {"de_DE.UTF-8", "01-02-1950", ">= 18295", ""},
        {"de_DE.UTF-8", "02-13-1950", ">= 18307",
         "13. Februar 1950 gelesen, weil ein Datum auf diesem System dd-mm-yyyy"},
        {"en_US.UTF-8", "01-02-1950", ">= 18265", "2 January 1950, because dates on this system are mm-dd-yyyy"},
        {"en_US.UTF-8", "13-02-1950", ">= 18307", ""},
        {"en_US.UTF-8", "1950-02-01", ">= 18295", ""},
        {"en_US.UTF-8", "31-02-1950", "", "write mm-dd-yyyy or yyyy-mm-dd"},
        {"de_DE.UTF-8", "0099-01-01", "", "vor dem Jahr 100"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.locale) + ' ' + row.from);
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", row.locale);
        const Outcome outcome = run({"list", "--dates", "birth", "--from", row.from, "--show-query"}, environment);
        EXPECT_EQ(outcome.exitCode, *row.day == '\0' ? 2 : 0);
        EXPECT_TRUE(outcome.out.contains(row.day)) << outcome.out.toStdString();
        EXPECT_TRUE(*row.said == '\0' ? outcome.err.isEmpty() : outcome.err.contains(row.said))
            << outcome.err.toStdString();
    }
}

TEST_F(CommandLine, MarksTheDirectLine)
{
    const auto hasParents = [](const QString &person) {
        const QStringList words{"--counter", person.section('\t', 0, 0), "--parents"};
        const QString marked = onDemo(QStringList{"mark"} + words).out;
        EXPECT_EQ(onDemo(QStringList{"unmark"} + words).out, marked);
        return marked.section(' ', 0, 0).toInt() > 2;
    };
    const QStringList persons = onDemo({"list", "--format", "tsv"}).out.split('\n', Qt::SkipEmptyParts);
    EXPECT_TRUE(std::any_of(persons.begin(), persons.end(), hasParents));
}

TEST_F(CommandLine, WritesAgesAndReport)
{
    ASSERT_EQ(onDemo({"mark", "--all"}).exitCode, 0);
    const Outcome all = onDemo({"ages"});
    const Outcome men = onDemo({"ages", "--sex", "m", "--format", "tsv"});
    const Outcome women = onDemo({"ages", "--sex", "w", "--format", "tsv"});
    EXPECT_GT(lineCount(men.out), 50);
    EXPECT_GT(lineCount(women.out), 50);
    EXPECT_EQ(lineCount(all.out), lineCount(men.out) + lineCount(women.out));
    const QRegularExpression shape("^[ 0-9]{3}\\.[0-9]  \\S");
    for (const QString &line : all.out.chopped(1).split('\n'))
        EXPECT_TRUE(shape.match(line).hasMatch()) << line.toStdString();

    const QString pdf = folder->filePath("Bericht.pdf");
    const Outcome report = onDemo({"report", "--title", "Lebensalter der Müllers", "--output", pdf});
    EXPECT_EQ(report.exitCode, 0) << report.err.toStdString();
    EXPECT_TRUE(test::contentOf(pdf).startsWith("%PDF-"));
    ASSERT_EQ(onDemo({"unmark", "--all"}).exitCode, 0);
}

TEST_F(CommandLine, WritesTheChartsFiguresAndPicture)
{
    EXPECT_EQ(
        onDemo({"chart", "--sex", "m", "--format", "json"}).out,
        "{\"columns\":[\"M\"],\"rows\":[],\"counts\":{\"men\":\"0\",\"women\":\"0\",\"all\":\"0\"},\"averages\":{"
        "\"men\":\"-\",\"women\":\"-\",\"all\":\"-\"},\"range\":null,\"without_date\":\" 0 ohne * / + Datum\"}\n");
    ASSERT_EQ(onDemo({"mark", "--all"}).exitCode, 0);
    const auto json = QJsonDocument::fromJson(onDemo({"chart", "--format", "json"}).out.toUtf8()).object();
    const auto rows = json["rows"].toArray();
    ASSERT_GE(rows.size(), 2);
    const QString tsv = onDemo({"chart", "--format", "tsv"}).out;
    EXPECT_EQ(tsv.section('\n', 0, 0), "century\tM\tW\tAlle");
    EXPECT_EQ(lineCount(tsv), rows.size() + 1);
    const auto first = rows[0].toObject();
    QStringList cells{first["label"].toString()};
    for (const auto &value : first["values"].toArray())
        cells << value.toString();
    EXPECT_EQ(tsv.section('\n', 1, 1), cells.join('\t'));
    EXPECT_EQ(QString::number(lineCount(onDemo({"ages"}).out)),
              QString::number(json["counts"]["men"].toString().toInt() + json["counts"]["women"].toString().toInt()));
    const QString text = onDemo({"chart"}).out;
    EXPECT_TRUE(text.contains("400 persons marked") && text.contains(json["range"].toString())) << text.toStdString();
    EXPECT_NE(onDemo({"chart", "--by", "death", "--format", "tsv"}).out, tsv);

    for (const char *name : {"Grafik.png", "Grafik.jpg"}) {
        const QString file = folder->filePath(name);
        const Outcome drawn =
            onDemo({"chart", "--format", "tsv", "--output", file, "--size", "320x240", "--type", "3"});
        EXPECT_EQ(drawn.exitCode, 0) << drawn.err.toStdString();
        EXPECT_EQ(drawn.out, tsv);
        EXPECT_EQ(QImageReader(file).size(), QSize(320, 240)) << name;
    }
    ASSERT_EQ(onDemo({"unmark", "--all"}).exitCode, 0);
}

TEST_F(CommandLine, SaysWhereDamageMadeTheResultShort)
{
    EXPECT_TRUE(onDemo({"list"}).err.isEmpty());
    const QString family = folder->filePath("QV/Daten/Familie.mdb");
    const QByteArray sound = familyBytes();
    test::damageFamily(family);
    const Outcome outcome = onDemo({"list"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_LT(lineCount(outcome.out), 400);
    EXPECT_EQ(lineCount(outcome.err), 1) << outcome.err.toStdString();
    EXPECT_TRUE(outcome.err.contains("Familie.mdb") && outcome.err.contains("fehlt im Ergebnis"));
    EXPECT_EQ(onDemo({"check"}).exitCode, 1);
    test::writeFile(family, sound);
}

TEST_F(CommandLine, WritesNoMarkIntoAFileThatWasCut)
{
    for (const QString &name : {QString("Daten/Familie.mdb"), QString("orte.mdb")}) {
        QFile file(folder->filePath("QV/" + name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const QByteArray sound = file.readAll();
        for (const int percent : {30, 60, 95}) {
            SCOPED_TRACE(name.toStdString() + std::to_string(percent));
            ASSERT_TRUE(file.resize(sound.size() / 100 * percent));
            const Outcome list = onDemo({"list", "--limit", "1"});
            EXPECT_TRUE(list.err.contains(name.section('/', -1)) && list.err.contains("unvollständig"))
                << list.err.toStdString();
            const QByteArray before = familyBytes();
            const Outcome mark = onDemo({"mark", "--all"});
            EXPECT_EQ(mark.exitCode, name == "orte.mdb" ? list.exitCode : 1) << mark.err.toStdString();
            EXPECT_TRUE(name == "orte.mdb" || familyBytes() == before);
            ASSERT_TRUE(file.resize(0) && file.seek(0) && file.write(sound) == sound.size() && file.flush());
        }
    }
    EXPECT_EQ(onDemo({"unmark", "--all"}).exitCode, 0);
}

TEST_F(CommandLine, EndsWithMessageWhereTheFamilyDatabaseIsMissing)
{
    const QString family = folder->filePath("QV/Daten/Familie.mdb");
    const QString settings = folder->filePath("QV/programm.ini");
    ASSERT_TRUE(QFile::rename(family, family + ".weg"));
    ASSERT_TRUE(QFile::rename(settings, settings + ".weg"));
    const struct {
        QByteArray path;
        QString named;
    } rows[] = {{family.toUtf8(), "Gesucht wurde " + family + "."},
                {"Q:\\f.mdb", "Für das Laufwerk Q: ist kein Ordner bekannt"},
                {"", "In " + settings + " [QV-Files] ist keine Familiendatenbank"}};
    for (const auto &row : rows) {
        test::writeFile(settings, "[QV-Files]\r\n0=" + row.path + "\r\n");
        const Outcome outcome = onDemo({"ages"});
        EXPECT_EQ(outcome.exitCode, 1);
        EXPECT_TRUE(outcome.out.isEmpty());
        const QStringList lines = outcome.err.split('\n');
        ASSERT_EQ(lines.size(), 3) << outcome.err.toStdString();
        EXPECT_TRUE(lines[0].contains("wurde nicht gefunden")) << outcome.err.toStdString();
        EXPECT_TRUE(lines[1].contains(row.named)) << outcome.err.toStdString();
        EXPECT_TRUE(lines[1].contains("kalvenor check")) << outcome.err.toStdString();
    }
    ASSERT_TRUE(QFile::remove(settings));
    ASSERT_TRUE(QFile::rename(settings + ".weg", settings));
    ASSERT_TRUE(QFile::rename(family + ".weg", family));
}

TEST_F(CommandLine, TellsErrorsInTheHostsLanguageAndTheirTechnicalWordingWhereAsked)
{
    const QString file = folder->filePath("nirgends/x.pdf");
    const QString sentence = "kalvenor: Laufzeitfehler 57: " + file + ": Die PDF-Datei kann nicht geschrieben werden: ";
    const struct {
        QStringList arguments;
        int exitCode;
        QString told;
        QString technical;
    } rows[] = {
        {{"report", "--output", file}, 1, sentence, {}},
        {{"report", "--output", file, "--verbose"},
         1,
         sentence,
         file +
             ": PlaceNotWritable (PDF, No such file or directory) [run-time error 57, platform/print/outputfile.cpp:"},
        {{"list", "--dates", "birth", "--from", "morgen"}, 2, "kalvenor: --from: „morgen“ ist kein Datum; ", {}},
    };
    for (const auto &row : rows) {
        const Outcome outcome = onDemo(row.arguments);
        EXPECT_EQ(outcome.exitCode, row.exitCode);
        EXPECT_TRUE(outcome.err.section('\n', 0, 0).contains(row.told)) << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.section('\n', 1).startsWith(row.technical)) << outcome.err.toStdString();
        EXPECT_EQ(lineCount(outcome.err), row.technical.isEmpty() ? 1 : 2) << outcome.err.toStdString();
    }
}

TEST_F(CommandLine, WorksInFoldersOfAnyName)
{
    const QString place = folder->filePath(u"Łukasz ü 😀"_s);
    const QString program = place + "/QV/Kalvenor";
    const QString file = place + "/a.kvl";
    ASSERT_EQ(run({"demo", place, "--persons", "10"}).exitCode, 0);
    const QList<QStringList> commands{{"check", "--program", program},
                                      {"mark", "--program", program, "--all"},
                                      {"report", "--program", program, "--output", place + "/r.html"},
                                      {"template", "save", "--program", program, file},
                                      {"unmark", "--program", program, "--all"},
                                      {"template", "open", "--program", program, file}};
    for (const QStringList &command : commands) {
        const Outcome outcome = run(command);
        EXPECT_EQ(outcome.exitCode, 0) << command.join(' ').toStdString() << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.isEmpty()) << outcome.err.toStdString();
    }
    EXPECT_EQ(lineCount(run({"list", "--program", program, "--list", "marked"}).out), 10);
}

TEST_F(CommandLine, SaysInOneLineWhyNoWindowCanBeOpened)
{
    auto bare = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        bare.remove(name);
    auto unusable = bare;
    unusable.insert("DISPLAY", ":no-such-display");
    auto offscreen = bare;
    offscreen.insert("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir empty;
    const struct {
        QProcessEnvironment environment;
        QString named;
    } rows[] = {{bare, "--help"}, {unusable, "No window can be opened"}, {offscreen, "ADD-IN-LANGUAGE.MDB"}};
    for (const auto &row : rows)
        expectRefused(run({"--program", empty.path() + "/QV/Kalvenor"}, row.environment), row.named);
}

TEST_F(CommandLine, TemplatesKeepThePersonsAndTheOptions)
{
    const QString file = folder->filePath("a.kvl");
    const auto command = [&](const char *what, const QStringList &more = {}) {
        return run(QStringList{"template", what, "--program", folder->filePath("QV/Kalvenor"), file} + more);
    };
    ASSERT_EQ(onDemo({"mark", "--counter", "5,6,7"}).exitCode, 0);
    EXPECT_EQ(command("save", {"--title", "Ä", "--type", "14", "--sex", "w", "--by", "death", "--no-legend"}).out,
              file + ": 3 persons\n");
    EXPECT_EQ(onDemo({"unmark", "--all"}).exitCode, 0);

    const Outcome opened = command("open");
    EXPECT_EQ(opened.exitCode, 0) << opened.err.toStdString();
    for (const char *line : {"title:         Ä", "chart type:    14", "legend:        no", "sex, list:     w",
                             "by:            death", "found:         3", "not found:     0"})
        EXPECT_TRUE(opened.out.split('\n').contains(QString::fromUtf8(line))) << opened.out.toStdString();
    EXPECT_EQ(lineCount(onDemo({"list", "--list", "marked"}).out), 3);

    EXPECT_TRUE(command("reset").out.contains("by:            birth"));
    EXPECT_TRUE(
        test::contentOf(file).endsWith("\r\n\"\"\r\n\"\"\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n#TRUE#\r\n5\r\n6\r\n7\r\n"));
    EXPECT_EQ(onDemo({"unmark", "--all"}).exitCode, 0);
    const QByteArray before = familyBytes();
    for (const char *rtf : {"", "no rtf"}) {
        const QString intro = folder->filePath("intro.rtf");
        test::writeFile(intro, rtf);
        expectRefused(command("save", {"--intro", intro}), "intro.rtf");
    }
    const QString family = folder->filePath("QV/Daten/Familie.mdb"), link = folder->filePath("link.kvl");
    ASSERT_TRUE(QFile::link(family, link));
    for (const QString &target : {family, link})
        expectRefused(run({"template", "save", "--program", folder->filePath("QV/Kalvenor"), target}), "Familie.mdb",
                      target == family ? 2 : 1);
    ASSERT_TRUE(QFile::remove(link));
    EXPECT_EQ(familyBytes(), before);
}

#ifndef Q_OS_WIN
TEST_F(CommandLine, AFileBeyondTheUsersLimitIsTold)
{
    const QString file = folder->filePath("limited.kvl");
    QProcess process;
    process.start("sh", {"-c", "ulimit -f 0; exec \"$@\"", "sh", KALVENOR_PROGRAM, "template", "save", "--program",
                         folder->filePath("QV/Kalvenor"), file});
    ASSERT_TRUE(process.waitForFinished(120'000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_TRUE(process.readAllStandardError().contains("limited.kvl"));
    EXPECT_TRUE(QDir(folder->path()).entryList({"limited*"}).isEmpty());
}
#endif
