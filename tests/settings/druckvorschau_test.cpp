// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/druckvorschau.h"

#include "host/windowplace.h"
#include "platform/print/pdfwriter.h"
#include "settings/preview/pageview.h"
#include "settings/preview/printing.h"
#include "settings/preview/savequestion.h"
#include "settings/previewfixture.h"
#include "support/fakemainform.h"
#include "support/files.h"
#include <functional>
#include <gtest/gtest.h>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::settings;

namespace {

struct Preview : testing::Test, test::Texts {
    explicit Preview(const QString &language = u"Deutsch"_s) : Texts(test::catalogueRows(), language)
    {
        main.window = &mainWindow;
        host.Hauptform = &main;
        host.AddInonTop = u"1"_s;
        host.Hostverzeichnis = basic::windowsPath(folder.path());
        control.setDocument(test::pagesOf(12));
        window = std::make_unique<Druckvorschau>(host, module, control, work);
        window->show();
        window->activateWindow();
    }
    template <typename T>
    T &child(const char *name)
    {
        T *found = window->findChild<T *>(QLatin1String(name));
        if (found == nullptr)
            throw std::runtime_error(name);
        return *found;
    }
    QString path(const char *name) const { return folder.filePath(QLatin1String(name)); }
    QString said() const { return window->statusBar()->currentMessage(); }
    void save(const QStringList &answers)
    {
        desktop.fileAnswers.assign(answers.begin(), answers.end());
        window->toolbarbuttonclick(u"save"_s);
    }
    /// Answers the print dialog.
    void onPrintDialog(const std::function<void(QPrinter &)> &fill)
    {
        desktop.dialogAnswer = [fill](QDialog &dialog) {
            fill(*dynamic_cast<QPrintDialog &>(dialog).printer());
            return true;
        };
    }
    static int pagesOfPdf(const QString &file)
    {
        return static_cast<int>(test::contentOf(file).count("/Type /Page\n"));
    }

    QWidget mainWindow;
    test::FakeMainForm main;
    print::PrintControl control;
    desktop::Work work{desktop};
    std::unique_ptr<Druckvorschau> window;
};

} // namespace

TEST_F(Preview, KeepsItsSizeAndZoomAndFitsTheScreen)
{
    const auto reopen = [this] {
        window->close();
        window = std::make_unique<Druckvorschau>(host, module, control, work);
        window->show();
    };
    QDir(folder.path()).mkdir(u"Kalvenor"_s); // where the settings are
    const auto &tools = child<QToolBar>("Toolbar");
    window->resize(1600, 400);
    EXPECT_EQ(tools.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    window->resize(500, 400);
    EXPECT_EQ(tools.toolButtonStyle(), Qt::ToolButtonIconOnly);
    for (const Fit fit : {Fit::PageWidth, Fit::None, Fit::Thumbnails}) {
        if (fit == Fit::None)
            window->pageView().setZoom(75);
        else
            window->pageView().setFit(fit);
        reopen();
        EXPECT_EQ(window->pageView().fit(), fit);
        EXPECT_TRUE(fit != Fit::None || window->pageView().zoom() == 75);
        EXPECT_EQ(window->size(), QSize(500, 400));
    }
    const QRect screen(100, 50, 1024, 700);
    for (const QRect wanted : {QRect(0, 0, 1040, 820), QRect(3000, 3000, 300, 200), QRect(-500, -500, 300, 200),
                               QRect(1000, 600, 500, 600)}) {
        const QRect place = host::fittedPlace(wanted, screen);
        EXPECT_TRUE(screen.contains(QRect(place.topLeft(), place.size() + QSize(12, 38)))) << wanted.x();
        EXPECT_TRUE(place.width() == 300 || wanted.width() > 300);
    }
}

TEST_F(Preview, ShowsTextsAndPages)
{
    EXPECT_EQ(child<QMenu>("MD").title(), "&Drucken");
    EXPECT_EQ(window->controlTexts().device, "auf %s an %s");
    EXPECT_EQ(child<QDialog>("Druckanzeige").windowTitle(), "Drucken...");
    EXPECT_EQ(child<QComboBox>("Zoom").itemText(1), "Seitenbreite");
    auto &page = child<QSpinBox>("Seite");
    EXPECT_EQ(page.text(), "Seite 1 von 12");
    page.setValue(5);
    EXPECT_EQ(window->pageView().currentPage(), 4);
    child<QAction>("Letzte").trigger();
    EXPECT_EQ(page.text(), "Seite 12 von 12");
    EXPECT_FALSE(child<QAction>("Naechste").isEnabled());
    child<QAction>("Originalgroesse").trigger();
    EXPECT_EQ(child<QComboBox>("Zoom").currentText(), "100 %");
    control.setDocument(test::pagesOf(3));
    EXPECT_EQ(page.text(), "Seite 3 von 3") << "a new document is shown at once";
}

TEST_F(Preview, TakesItselfOffTheTopForDialogs)
{
    desktop.placements.clear();
    window->toolbarbuttonclick("INITVorgaben");
    ASSERT_EQ(desktop.placements.size(), 4u) << "the main window, which would cover it, and itself";
    EXPECT_EQ(desktop.placements[1].place, desktop::StackPlace::NotTopMost);
    EXPECT_EQ(desktop.placements[2].place, desktop::StackPlace::TopMost);
    desktop.placements.clear();
    EXPECT_FALSE(mainWindow.isVisible());
    child<QAction>("MDE").trigger();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(mainWindow.isVisible());
    ASSERT_EQ(desktop.placements.size(), 2u);
    EXPECT_EQ(desktop.placements[0].place, desktop::StackPlace::NotTopMost);
    EXPECT_EQ(desktop.placements[1].place, desktop::StackPlace::TopMost);
}

TEST_F(Preview, SavesByTheEndingOfTheName)
{
    const struct {
        const char *name;
        print::ExportFormat format;
        int questions;
    } rows[] = {
        {"a.RTF", print::ExportFormat::Rtf, 1},   {"b.rtf", print::ExportFormat::Rtf, 1},
        {"c.html", print::ExportFormat::Html, 1}, {"d.htm", print::ExportFormat::Pages, 1},
        {"e.txt", print::ExportFormat::Pages, 2}, {"f.pdf", print::ExportFormat::Pages, 1},
    };
    print::ExportFormat seen = print::ExportFormat::Pages;
    QString file;
    main.compose = [&](const print::ExportTarget &target) {
        seen = target.format;
        const basic::WindowsPath written(QString(target.file.text()).replace(".html", "-Alter.html"));
        file = host.native(written);
        return written;
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        seen = print::ExportFormat::Pages;
        desktop.fileQuestions.clear();
        main.calls.clear();
        save({path(row.name)});
        EXPECT_EQ(seen, row.format);
        EXPECT_EQ(main.calls.size(), row.format == print::ExportFormat::Pages ? 0 : 1);
        EXPECT_EQ(desktop.fileQuestions.size(), static_cast<std::size_t>(row.questions));
        EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
        if (seen != print::ExportFormat::Pages) {
            EXPECT_EQ(said(), "Gespeichert: " + file);
        }
    }
    EXPECT_EQ(pagesOfPdf(path("f.pdf")), 12);
    EXPECT_TRUE(child<QPushButton>("Oeffnen").isVisible());
    EXPECT_FALSE(QFile::exists(path("d.htm")));
    EXPECT_EQ(desktop.fileQuestions[0].filters, "RTF-Texte (*.rtf);;PDF-Files (*.pdf);;HTML (*.html)");
    EXPECT_EQ(desktop.fileQuestions[0].suffix, "pdf");
    EXPECT_EQ(desktop.fileQuestions[0].title, "Statistik speichern unter");

    save({});
    EXPECT_EQ(said(), "") << "cancelled";
    main.compose = {};
    save({path("b.rtf")});
    EXPECT_EQ(said(), "Nicht gespeichert: " + path("b.rtf"));
    save({path("missing/folder.pdf")});
    EXPECT_EQ(desktop.messages.size(), 1u);
    EXPECT_TRUE(desktop.errors.empty());
}

TEST_F(Preview, SetsThePageUp)
{
    print::PageSetup &page = control.page;
    page.left = 1001; // no whole number of tenths of a millimetre
    const print::PageSetup before = page;
    desktop.dialogAnswer = [](QDialog &dialog) {
        dialog.findChild<QAbstractButton *>("Ausrichtung_1")->click();
        auto *paper = dialog.findChild<QComboBox *>("Papier");
        EXPECT_EQ(paper->currentText(), "A4");
        paper->setCurrentIndex(paper->findText("A5"));
        return true;
    };
    window->toolbarbuttonclick("INI");
    EXPECT_EQ(main.calls, (QStringList{"initspeichern", "initladen", "auswahldrucken"}));
    EXPECT_TRUE(page.landscape);
    EXPECT_NEAR(page.paperHeight, 11906, 30);
    EXPECT_EQ(page.left, before.left);
    EXPECT_EQ(page.bottom, before.bottom);
}

TEST_F(Preview, PrintsWhatItShows)
{
    control.setDocument([] {
        print::PrintDocument document = test::pagesOf(12);
        document.title = "Adler/Eck: 1900";
        return document;
    }());
    onPrintDialog([&](QPrinter &printer) {
        if (QPrinterInfo::availablePrinterNames().isEmpty()) {
            EXPECT_EQ(printer.outputFileName(), path("Adler-Eck- 1900.pdf")) << "a file where there is no printer";
        }
        printer.setOutputFileName(path("all.pdf"));
    });
    window->toolbarbuttonclick("drucker");
    EXPECT_EQ(pagesOfPdf(path("all.pdf")), window->pageView().pageCount());
    EXPECT_EQ(said(), "Gespeichert: " + path("all.pdf"));
    onPrintDialog([&](QPrinter &printer) {
        printer.setOutputFileName(path("some.pdf"));
        printer.setPrintRange(QPrinter::PageRange);
        printer.setPageRanges(QPageRanges::fromString("2-3,11-20"));
    });
    window->toolbarbuttonclick("drucker");
    EXPECT_EQ(pagesOfPdf(path("some.pdf")), 4);

    onPrintDialog([&](QPrinter &printer) { printer.setOutputFileName(path("missing/folder.pdf")); });
    window->toolbarbuttonclick("drucker");
    ASSERT_EQ(desktop.messages.size(), 1u);
    EXPECT_TRUE(desktop.messages[0].text.contains("folder.pdf"));
    desktop.dialogAnswer = {};
    window->toolbarbuttonclick("drucker");
    EXPECT_EQ(said(), "") << "cancelled";
    EXPECT_FALSE(work.isRunning());
}

TEST_F(Preview, PrintsOnAPrinter)
{
    const QDir spool(qEnvironmentVariable("KALVENOR_SPOOL"));
    if (!qEnvironmentVariableIsSet("KALVENOR_SPOOL"))
        GTEST_SKIP() << "wants a print server: part of Printer.Preview (apt-get install cups-daemon cups-client)";
    onPrintDialog([](QPrinter &printer) { printer.setPrinterName("Ablage"); });
    window->toolbarbuttonclick("drucker");
    EXPECT_EQ(said(), "Gedruckt: 12 Seiten");
    const QStringList jobs = spool.entryList({"d*"}, QDir::Files);
    ASSERT_EQ(jobs.size(), 1);
    EXPECT_EQ(pagesOfPdf(spool.filePath(jobs[0])), window->pageView().pageCount());
}

TEST_F(Preview, StopsPrintingWhenAsked)
{
    control.setDocument(test::pagesOf(300));
    onPrintDialog([&](QPrinter &printer) {
        printer.setOutputFileName(path("long.pdf"));
        printer.setCopyCount(999); // no machine prints so much before it is asked
    });
    bool shown = false;
    QObject::connect(&work, &desktop::Work::advanced, window.get(), [&] {
        auto &dialog = child<QDialog>("Druckanzeige");
        shown = dialog.isVisible() && child<QLabel>("Fortgang").text().startsWith("Drucke Seite ");
        window->toolbarbuttonclick("drucker"); // not twice at once
        QTest::mouseClick(&child<QPushButton>("Druckabbrechen"), Qt::LeftButton);
    });
    window->toolbarbuttonclick("drucker");
    EXPECT_TRUE(shown);
    EXPECT_EQ(said(), "Der Druck wurde abgebrochen.");
    EXPECT_FALSE(child<QDialog>("Druckanzeige").isVisible());
    EXPECT_FALSE(QFile::exists(path("long.pdf"))) << "no half file is left";
}

TEST_F(Preview, FindsTextWhileTheUserTypes)
{
    child<QAction>("Finden").trigger();
    auto &entry = child<QLineEdit>("Suchtext");
    const auto count = [&] {
        return child<QLabel>("Fundstellen").text();
    };
    QTest::keyClicks(&entry, "blatt");
    EXPECT_TRUE(QTest::qWaitFor([&] { return count() == "1 / 12 Fundstellen"; })) << count().toStdString();
    QTest::keyClick(&entry, Qt::Key_Return);
    EXPECT_EQ(window->pageView().currentPage(), 1);
    child<QAction>("Rueckwaertssuchen").trigger();
    child<QAction>("Rueckwaertssuchen").trigger();
    EXPECT_EQ(window->pageView().currentPage(), 11) << "round the beginning";
    control.setDocument(test::pagesOf(2));
    EXPECT_TRUE(QTest::qWaitFor([&] { return count() == "2 / 2 Fundstellen"; })) << "in the new pages";
    QTest::keyClicks(&entry, "x");
    EXPECT_TRUE(QTest::qWaitFor([&] { return count() == "Nicht gefunden: blattx"; }));
    QTest::keyClick(&entry, Qt::Key_Escape);
    EXPECT_FALSE(entry.isVisible());
}

namespace {

/// A printer that may print copies by itself.
class CopyingPrinter : public QPrinter, QPrintEngine {
public:
    explicit CopyingPrinter(bool copies) : m_copies(copies) { setEngines(this, paintEngine()); }

    void setProperty(PrintEnginePropertyKey, const QVariant &) override {}
    QVariant property(PrintEnginePropertyKey key) const override
    {
        return key == PPK_SupportsMultipleCopies ? QVariant(m_copies) : key == PPK_CopyCount ? QVariant(3) : QVariant();
    }
    bool newPage() override { return true; }
    bool abort() override { return true; }
    int metric(QPaintDevice::PaintDeviceMetric) const override { return 1; }
    QPrinter::PrinterState printerState() const override { return QPrinter::Idle; }

private:
    bool m_copies;
};

} // namespace

TEST(Printing, LeavesCopiesToAPrinterThatMakesThem)
{
    EXPECT_EQ(printChoice(CopyingPrinter(true), 0).copies, 1);
    EXPECT_EQ(printChoice(CopyingPrinter(false), 0).copies, 3);
}

TEST(Printing, PutsPagesInOrder)
{
    const struct {
        const char *what;
        PrintChoice choice;
        std::vector<int> pages;
    } rows[] = {
        {"all", {}, {0, 1, 2, 3}},
        {"range", {.ranges = QPageRanges::fromString("2,4-9")}, {1, 3}},
        {"outside", {.ranges = QPageRanges::fromString("7-9")}, {}},
        {"last first", {.lastFirst = true}, {3, 2, 1, 0}},
        {"collated", {.ranges = QPageRanges::fromString("1-2"), .copies = 2}, {0, 1, 0, 1}},
        {"not collated", {.ranges = QPageRanges::fromString("1-2"), .copies = 2, .collated = false}, {0, 0, 1, 1}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(pagesToPrint(4, row.choice), row.pages) << row.what;
}
