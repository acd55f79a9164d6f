// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/composition/bericht.h"

#include "app/start/program.h"
#include "demo/host/demohost.h"
#include "platform/basic/codepage.h"
#include "platform/basic/error.h"
#include "platform/print/htmlwriter.h"
#include "platform/print/pdfwriter.h"
#include "platform/richtext/rtfreader.h"
#include "report/export/htmlexport.h"
#include "support/errors.h"
#include "support/fakedesktop.h"
#include "support/faultystorage.h"
#include "support/files.h"
#include "support/fixtures.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextDocument>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::report;
using language::Text;

namespace {

const std::vector<test::TestPerson> Family = {
    {.counter = 1, .listname = "Adler, Hans", .marked = true, .birth = -36000, .death = -10000},
    {.counter = 2, .listname = "Bär<i>, Eva", .marked = true, .sex = "W", .birth = -35000, .death = 5000},
    {.counter = 3, .listname = "Claus, Ernst", .marked = true, .birth = -25000},
    {.counter = 4, .listname = "Dorn, Ida", .marked = true, .sex = "W", .birth = 100, .death = 99},
    {.counter = 5, .listname = "Eck, Kim", .marked = true, .sex = "", .birth = -20000, .death = 0},
    {.counter = 6, .listname = "Falk, Rosa", .sex = "W", .birth = -14000, .death = 0}};

/// A started program with a small family, and what one run shows.
struct BerichtTest : testing::Test {
    BerichtTest()
    {
        test::writeFamily(demo.familyDatabase, Family);
        program.Main();
        statistics::alterslistenausgabe(program.databases, {1, 1, 1, 1}, list);
        figures = statistics::grafikermitteln(program.databases, {});
        pages = QDir(demo.hostFolder + u"/Ausdrucke"_s);
        for (const QString &file : pages.entryList(QDir::Files))
            pages.remove(file);
    }
    void settings(const QString &text) const { write(demo.programFolder + u"/Kalvenor.ini"_s, text); }
    static void write(const QString &path, const QString &text) { test::writeFile(path, basic::encodeAnsi(text)); }
    static QByteArray read(const QString &path) { return test::contentOf(path); }
    print::PrintDocument compose()
    {
        bericht.initladen();
        return bericht.compose(content);
    }
    /// Runs into that file; the written one.
    QString run(print::ExportFormat format, const QString &nativeFile)
    {
        return basic::nativePath(bericht.auswahldrucken(content, {format, basic::windowsPath(nativeFile)}));
    }
    QString text(Text id) { return program.language.text(id); }
    QString closing() { return text(Text::ReportFooter) + u"  05.03.2024 07:08"_s; }
    /// A letter a block: title T, picture P, heading of the criteria K and of the list L, line k, row r, spacer -,
    /// page break N, table t, with headings H, closing F.
    QString shape(const print::PrintDocument &document)
    {
        const QHash<QString, QChar> known{{content.statistik.titel, u'T'},
                                          {{}, u'-'},
                                          {text(Text::CriteriaHeading), u'K'},
                                          {text(Text::AgeListHeading), u'L'},
                                          {closing(), u'F'}};
        QString letters;
        for (const print::Block &block : document.blocks()) {
            constexpr char kinds[] = "ktrNIP"; // in the order of Block
            letters += QLatin1Char(kinds[block.index()]);
            if (const auto *paragraph = std::get_if<print::Paragraph>(&block))
                letters.back() = known.value(paragraph->text, u'k');
            else if (const auto *table = std::get_if<print::TableStart>(&block); table && !table->heading.empty())
                letters.back() = u'H';
        }
        return letters;
    }

    QTemporaryDir folder;
    demo::DemoHost demo = demo::makeDemoHost({.folder = folder.path(), .persons = 1});
    test::FakeDesktop desktop;
    app::Program program{basic::windowsPath(demo.programFolder), desktop};
    print::PrintControl print;
    Bericht bericht{program, print};
    statistics::Altersliste list;
    statistics::Grafikzahlen figures;
    ReportContent content{.statistik = {.titel = "Titel | 1", .rtf = "Einleitung"},
                          .list = list,
                          .figures = figures,
                          .look = {},
                          .criteria = {},
                          .now = QDateTime(QDate(2024, 3, 5), QTime(7, 8))};
    QDir pages; ///< of the host program
};

} // namespace

TEST_F(BerichtTest, SwitchesDecideWhatStandsThere)
{
    const QString footer = text(Text::ReportFooter) + u"||05.03.2024 07:08"_s;
    const QString header = u"Titel / 1||- %d -"_s;
    const struct {
        const char *settings, *shape;
        bool header, footer;
    } rows[] = {
        {"", "TI-PKkkkkkNLHrrF", true, true},
        {"[Grafik]\r\nBildprint=0", "TI-KkkkkkNLHrrF", true, true},
        {"[TitelKriterien]\r\nPrint=0\r\n[Header]\r\nPrint=0", "TI-PkkkkkNLHrrF", false, true},
        {"[TitelAltersliste]\r\nPrint=0\r\n[Footer]\r\nPrint=2", "TI-PKkkkkkNtrrF", true, false},
        {"[TitelAltersliste]\r\nNeueseite=0", "TI-PKkkkkk-LHrrF", true, true},
        {"[TitelAltersliste]\r\nNeueseite=2\r\nPrint=", "TI-PKkkkkktrrF", true, true},
    };
    for (const auto &row : rows) {
        settings(row.settings);
        const print::PrintDocument document = compose();
        EXPECT_EQ(shape(document).toStdString(), row.shape) << row.settings;
        EXPECT_EQ(document.header.text, row.header ? header : QString()) << row.settings;
        EXPECT_EQ(document.footer.text, row.footer ? footer : QString()) << row.settings;
    }
    settings({});
    content.statistik.titel.clear();
    content.statistik.rtf = "{\\rtf1\\fs20   \\par}";
    const print::PrintDocument bare = compose();
    EXPECT_EQ(shape(bare).toStdString(), "PKkkkkkNLHrrF");
    EXPECT_EQ(bare.header.text, "");
}

TEST_F(BerichtTest, AChartTakesItsShareOfThePageAtMost)
{
    const auto height = [&](QSize shape) {
        content.chartShape = shape;
        const print::PrintDocument document = compose();
        for (const print::Block &block : document.blocks()) {
            if (const auto *picture = std::get_if<print::Picture>(&block))
                return picture->height;
        }
        return 0;
    };
    settings({});
    const print::PageSetup page = compose().page;
    EXPECT_NEAR(height({400, 100}), (page.paperWidth - page.left - page.right) / 4, 9);
    EXPECT_NEAR(height({100, 400}), (page.paperHeight - page.top - page.bottom) * 3 / 5, 9);
}

TEST_F(BerichtTest, TheClosingLineDoesNotStandAlone)
{
    settings("[Grafik]\r\nBildprint=0");
    std::size_t pagesBefore = 0;
    for (int turns = 0; turns < 2; list.push_back(list.front())) {
        const print::PageLayout layout(compose());
        const auto &texts = layout.pages().back().texts;
        EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [&](const auto &placed) {
            return placed.text == list.front().listname;
        })) << list.size();
        turns += layout.pages().size() > pagesBefore ? 1 : 0;
        pagesBefore = layout.pages().size();
    }
}

TEST_F(BerichtTest, IntroductionsKeepTheirCharacters)
{
    for (const QByteArray &rtf : {QByteArray("{\\rtf1\\ansi\\ansicpg1252 5 \x80 \x84\xe4\x93}"),
                                  QByteArray("5 \xe2\x82\xac \xe2\x80\x9e\xc3\xa4\xe2\x80\x9c")}) {
        content.statistik.rtf = rtf;
        QString text;
        const print::PrintDocument document = compose();
        for (const print::Block &block : document.blocks()) {
            if (const auto *paragraph = std::get_if<print::RichParagraph>(&block)) {
                for (const print::TextRun &run : paragraph->runs)
                    text += run.text;
            }
        }
        EXPECT_EQ(text.trimmed().toStdString(), "5 € „ä“") << rtf.toStdString();
    }
}

TEST_F(BerichtTest, FontsComeFromTheSettingsButUnderlineNever)
{
    settings("[Titel]\r\nFontunderline=#TRUE#\r\n[Kriterien]\r\nFontunderline=WAHR\r\nFontstrikethru=True\r\n"
             "[Altersliste]\r\nFontcolor=255\r\nFontsize=12.5");
    const print::PrintDocument document = compose();
    QSet<double> sizes;
    int struckOut = 0;
    for (const print::TextStyle &style : document.styles()) {
        EXPECT_FALSE(style.underline);
        struckOut += style.strikeOut;
        sizes << style.pointSize;
        EXPECT_EQ(style.pointSize == 12.5, style.color == QColor(Qt::red));
    }
    EXPECT_EQ(struckOut, 1);
    EXPECT_TRUE(sizes.contains({15, 12, 14, 8, 12.5}));
}

TEST_F(BerichtTest, CriteriaSayWhatIsActive)
{
    const auto lines = [&](const Auswahlkriterien &criteria, std::size_t listed, bool byBirth = true) {
        return kriterien(criteria, {.nachGeburtsjahr = byBirth}, figures, listed, program.language)
            .join(u'\n')
            .toStdString();
    };
    const std::string excluded = "1 ohne Geburts- oder Sterbedatum, 1 nicht nach der Geburt gestorben";
    const std::string numbers = "Anzahl der Personen (Männer | Frauen | alle): 1 | 1 | 3\n"
                                "Durchschnittsalter (Männer | Frauen | alle): 71.2 | 109.5 | 78.5\n"
                                "Niedrigstes | höchstes Alter: 71.2 |  109.5\nNicht berücksichtigt: " +
                                excluded;
    EXPECT_EQ(lines({}, 3), "Grafik: nach Geburtsjahr\n" + numbers);
    EXPECT_EQ(lines({}, 2, false), "Grafik: nach Sterbejahr\n" + numbers +
                                       ", 1 nicht in der Altersliste (Geschlecht unbekannt oder nicht gewählt)");
    Auswahlkriterien all{.filter = {.Presse = "*Müll*", .Geschlechtfilter = {0, 1}, .Datumfilter = {1, 0, 1}},
                         .filtered = true,
                         .relatives = {.parents = true}};
    all.filter.Presse_Datum = {"01.02.1800", "__.__.____"};
    all.filter.Filterliste = selection::PersonList::Marked;
    const std::string rest =
        "Geschlecht: Frauen\nGeburtsdatum: ab 1. Februar 1800\nLetzte Änderung: ab 1. Februar 1800\n"
        "Gefilterte Liste: markierte Personen\nVerwandte: Eltern und Vorfahren\n"
        "Grafik: nach Geburtsjahr\n" +
        numbers;
    EXPECT_EQ(lines(all, 3), "Name: *Müll*\n" + rest);
    all.filter.Presse = u"**"_s; // as filtering leaves an empty pattern
    EXPECT_EQ(lines(all, 3), rest);
}

TEST_F(BerichtTest, HintComesOnceAndFailuresRestoreThePointer)
{
    EXPECT_THROW(run(print::ExportFormat::Html, folder.filePath("ohne")), basic::Error);
    EXPECT_THROW(bericht.auswahldrucken(content, {}, [](qint64, qint64) { return false; }), basic::Error);
    EXPECT_TRUE(desktop.messages.empty());
    for (int i = 0; i < 2; ++i)
        run(print::ExportFormat::Pages, {});
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].text, text(Text::PrintSettingsHint));
    EXPECT_EQ(desktop.pointers.back(), desktop::Pointer::Default);
    EXPECT_TRUE(print.hasDocument());
}

TEST_F(BerichtTest, HtmlHasItsNamesTagsAndLinks)
{
    using basic::WindowsPath;
    EXPECT_EQ(exportName(WindowsPath("C:\\a.b\\Liste.v1.htm"), "X", "T", ".html").text(), "C:\\a.b\\Liste.v1-XT.html");
    EXPECT_EQ(exportName(WindowsPath("C:\\a\\r.rtf"), "/..", "\\..\\.\\X\n", ".jpg").text(), "C:\\a\\r-X.jpg")
        << "no other folder";
    EXPECT_EQ(chartTag(WindowsPath("C:\\a\\b.JPG")), R"(<img src="./b.JPG" Border=0 Alt="">)");
    EXPECT_EQ(personLink("1-D.html", "p.JPG", "Text"), R"(<a href=./1-D.html><img src="./p.JPG" Border=0 Alt="Text">)");

    write(pages.filePath("1-D.html"), "page");
    QImage(8, 8, QImage::Format_RGB32).save(pages.filePath("1-D.bmp"));
    const QByteArray hostPicture = read(pages.filePath("1-D.bmp"));
    write(pages.filePath("other.htmlx"), "copy");
    const QString page = run(print::ExportFormat::Html, pages.filePath("Liste.html"));
    EXPECT_EQ(page, pages.filePath("Liste-Altersstatistik.html"));
    EXPECT_EQ(
        pages.entryList(QDir::Files, QDir::Name),
        (QStringList{"1-D.JPG", "1-D.bmp", "1-D.html", "Liste-Altersstatistik.JPG", "Liste-Altersstatistik.html"}));
    EXPECT_EQ(read(pages.filePath("1-D.bmp")), hostPicture);
    const QString html = QString::fromUtf8(read(page));
    EXPECT_TRUE(html.contains(chartTag(WindowsPath("Liste-Altersstatistik.JPG"))));
    EXPECT_TRUE(
        html.contains("<td>" + personLink("1-D.html", "1-D.JPG", text(Text::ToPersonsPage)) + "Hans Adler</td>"));
    EXPECT_TRUE(html.contains("<td>Bär<i>, Eva</td><td>Eva Bär<i></td>")) << "brackets of names come back, too";
    EXPECT_FALSE(html.contains("&lt;") || html.contains("&gt;"));
    EXPECT_FALSE(html.contains("data:image")) << "the chart is the file beside the page, not in it as well";
}

TEST_F(BerichtTest, HoldsTheSameTextsInEachFormat)
{
    const auto missing = [&](const QString &in) {
        qsizetype at = 0;
        for (const QString &words : {u"Einleitung"_s, text(Text::CriteriaHeading), text(Text::CriteriaPersons),
                                     text(Text::AgeListHeading), u"71.2"_s, u"Adler, Hans"_s, closing()}) {
            at = in.indexOf(words.simplified(), at);
            if (at < 0)
                return words;
        }
        return QString();
    };
    QTextDocument rtf;
    richtext::readRtf(read(run(print::ExportFormat::Rtf, folder.filePath("b.rtf"))), rtf);
    EXPECT_EQ(missing(rtf.toPlainText().simplified()), QString());
    EXPECT_TRUE(pages.exists("b-Altersstatistik.JPG"));
    QString html = QString::fromUtf8(read(run(print::ExportFormat::Html, folder.filePath("b.html"))));
    EXPECT_EQ(missing(html.remove(QRegularExpression("<[^>]*>")).simplified()), QString());
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        GTEST_SKIP() << "pdftotext is missing (apt-get install poppler-utils)";
    run(print::ExportFormat::Pages, {});
    print::writePdf(*print.layout(), {}, folder.filePath("b.pdf"));
    QProcess reader;
    reader.start("pdftotext", {"-layout", folder.filePath("b.pdf"), "-"});
    ASSERT_TRUE(reader.waitForFinished());
    EXPECT_EQ(missing(QString::fromUtf8(reader.readAllStandardOutput()).simplified()), QString());
}

TEST_F(BerichtTest, FailedRunsLeaveNothingAndKeepTheOld)
{
    const QString old = folder.filePath("alt-Altersstatistik.html");
    write(old, "old");
    const QStringList before = QDir(folder.path()).entryList(QDir::Files);
    const auto fail = [&](print::ExportFormat format, const QString &file, const basic::Progress &progress = {}) {
        const print::ExportTarget target{format, basic::windowsPath(folder.filePath(file))};
        EXPECT_THROW(bericht.auswahldrucken(content, target, progress), basic::Error);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), before) << file.toStdString();
        EXPECT_EQ(pages.entryList(QDir::Files), QStringList()) << file.toStdString();
    };
    fail(print::ExportFormat::Html, "a*.html");
    for (const print::ExportFormat format : {print::ExportFormat::Html, print::ExportFormat::Rtf}) {
        fail(format, "missing/a.html");
        fail(format, "alt.html", [](qint64, qint64) { return false; });
    }
    content.statistik.rtf = QByteArray(richtext::RtfLimits().characters + 1, 'a'); // it would lack its end
    fail(print::ExportFormat::Html, "alt.html");
    EXPECT_EQ(read(old), "old");
}

TEST_F(BerichtTest, NothingGoesThroughALinkThatNobodyNamed)
{
    const QByteArray family = read(demo.familyDatabase);
    const auto link = [&](const QString &name) {
        ASSERT_TRUE(QFile::link(demo.familyDatabase, name));
    };
    link(pages.filePath("r-Altersstatistik.JPG")); // the host's copy of the chart
    link(folder.filePath("h-Altersstatistik.JPG"));
    link(folder.filePath("d.rtf"));
    bericht.hintShown();
    run(print::ExportFormat::Rtf, folder.filePath("r.rtf"));
    EXPECT_TRUE(read(folder.filePath("r.rtf")).startsWith("{\\rtf")) << "does without the copy";
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_TRUE(desktop.messages[0].text.contains("r-Altersstatistik.JPG")) << desktop.messages[0].text.toStdString();
    EXPECT_THROW(run(print::ExportFormat::Html, folder.filePath("h.html")), basic::Error);
    EXPECT_THROW(run(print::ExportFormat::Rtf, folder.filePath("d.rtf")), basic::Error);
    EXPECT_FALSE(QFile::exists(folder.filePath("h-Altersstatistik.html")));
    EXPECT_EQ(read(demo.familyDatabase), family);
}

TEST_F(BerichtTest, SavingComposesOnlyWhatIsNotShown)
{
    const auto saved = [&](print::ExportFormat format, const char *name) {
        return read(run(format, folder.filePath(QLatin1String(name))));
    };
    const QByteArray rtf = saved(print::ExportFormat::Rtf, "a.rtf");
    const QByteArray html = saved(print::ExportFormat::Html, "a.html");
    using Composed = Bericht::Compositions;
    EXPECT_EQ(bericht.composed, (Composed{2, 2})) << "unnumbered results are never reused";
    content.results = 1;
    bericht.auswahldrucken(content);
    EXPECT_EQ(bericht.composed, (Composed{3, 3}));
    EXPECT_TRUE(saved(print::ExportFormat::Rtf, "a.rtf") == rtf);
    EXPECT_EQ(bericht.composed, (Composed{3, 3}));
    EXPECT_TRUE(saved(print::ExportFormat::Html, "a.html") == html);
    EXPECT_EQ(bericht.composed, (Composed{3, 4})) << "its list has a cell more";
    EXPECT_TRUE(saved(print::ExportFormat::Rtf, "a.rtf") == rtf);
    EXPECT_EQ(bericht.composed, (Composed{3, 4}));

    // Each of these makes another document.
    const std::function<void()> changes[] = {[&] { content.results = 2; }, [&] { content.statistik.titel = u"T"_s; },
                                             [&] { content.look.legend = false; },
                                             [&] { content.criteria.filtered = true; },
                                             [&] {
                                                 settings("[Spalten]\r\n1=900");
                                             }};
    Composed composed = bericht.composed;
    for (const auto &change : changes) {
        change();
        saved(print::ExportFormat::Rtf, "a.rtf");
        EXPECT_EQ(bericht.composed, (Composed{++composed.heads, ++composed.ageLists}));
    }
}

TEST_F(BerichtTest, AFailureAtAnyCallLeavesTheOldReportOrTheNewOne)
{
    using namespace test;
    FaultyStorage storage;
    storage.strikeOnlyChanges(); // settings and texts that cannot be read have their defaults
    bericht.hintShown();
    QDir reports(folder.filePath("reports"));
    ASSERT_TRUE(reports.mkpath("."));
    const QString chosen = reports.filePath("r.html");
    const struct {
        print::ExportFormat format;
        const char *name;
    } rows[] = {{print::ExportFormat::Html, "r-Altersstatistik.html"},
                {print::ExportFormat::Rtf, "r.html"},
                {print::ExportFormat::Pages, "r.html"}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const QString file = reports.filePath(row.name);
        const auto make = [&] {
            run(row.format, chosen);
            if (row.format == print::ExportFormat::Pages)
                print::writePdf(*print.layout(), {}, chosen);
        };
        make();
        const QByteArray whole = read(file);
        const QStringList files = reports.entryList(QDir::Files);
        bool failed = false;
        const auto work = [&] {
            failed = thrownBy(make).has_value();
        };
        const auto check = [&](Call struck) {
            const QByteArray now = read(file);
            const bool isNew = now.startsWith(whole.left(5)) && now.endsWith(whole.right(5)) && now.size() > 3;
            EXPECT_TRUE(isNew || (failed && now == "old"));
            EXPECT_TRUE(struck != Call::None || !failed);
            for (const QString &left : reports.entryList(QDir::Files))
                EXPECT_TRUE(files.contains(left)) << left.toStdString() << " stays";
        };
        atEachCall(
            storage, Fault::Fails, [&] { write(file, "old"); }, work, check);
        for (const QString &each : files)
            reports.remove(each);
    }
}
