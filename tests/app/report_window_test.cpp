// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/druckvorschau.h"
#include "settings/preview/pageview.h"
#include "support/files.h"
#include "support/openwindow.h"
#include <QDialog>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::test;

namespace {

/// The report of four persons in its preview.
struct Report : testing::Test, OpenWindow {
    Report() : OpenWindow(smallFamily())
    {
        select(PersonList::Unmarked, {1, 2, 3, 4});
        click<QToolButton>("RM");
        trigger("Seitenansicht");
    }
    settings::Druckvorschau &preview() { return *window->report().preview(); }
    std::shared_ptr<const print::PageLayout> pages() { return preview().pageView().pages(); }
    void command(const char *key) { preview().findChild<QAction *>(QLatin1String(key))->trigger(); }
    QString setting(const char *section, const char *key)
    {
        return program.host.inilesen(program.host.ownSettingsFile(), section, key, {});
    }
    /// Does it as soon as the pages are being composed.
    template <typename Act>
    void whileComposing(Act act)
    {
        QObject::connect(&controller().work(), &desktop::Work::began, &preview(), [act](const QString &text) {
            if (text.startsWith(u"Die Seiten werden"_s))
                act();
        });
    }
};

} // namespace

TEST_F(Report, IsSavedFromThePreviewInEveryFormat)
{
    EXPECT_TRUE(preview().isVisible());
    EXPECT_GE(pages()->pages().size(), 1u);
    const auto before = pages();
    int computed = 0;
    const statistics::StatisticsController &statistics = window->statisticsController();
    QObject::connect(&statistics, &statistics::StatisticsController::listCleared, &preview(), [&] { ++computed; });
    QObject::connect(&statistics, &statistics::StatisticsController::figuresChanged, &preview(), [&] { ++computed; });
    const struct {
        const char *name, *written, *beginning;
    } rows[] = {
        {"a.rtf", "a.rtf", "{\\rtf1"}, {"b.pdf", "b.pdf", "%PDF-"}, {"c.html", "c-Statistik.html", "<!DOCTYPE"}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        desktop.fileAnswers = {folder.filePath(row.name)};
        command("save");
        EXPECT_EQ(preview().statusBar()->currentMessage(), "Gespeichert: " + folder.filePath(row.written))
            << desktop.messages.back().text.toStdString();
        EXPECT_TRUE(contentOf(folder.filePath(row.written)).startsWith(row.beginning));
    }
    EXPECT_EQ(pages(), before) << "saving shows no other pages";
    EXPECT_EQ(computed, 0) << "nor computes what is known";
    EXPECT_EQ(desktop.fileQuestions.back().folder, hostFolder() + "/Ausgabe");
    trigger("Seitenansicht");
    EXPECT_NE(pages(), before);
    EXPECT_EQ(computed, 2);
    EXPECT_EQ(desktop.messages.size(), 1u) << "the hint comes once";
    command("MHH");
    EXPECT_TRUE(QTest::qWaitFor([] {
        const auto windows = QApplication::topLevelWidgets();
        return std::any_of(windows.begin(), windows.end(),
                           [](QWidget *one) { return one->objectName() == u"Hilfefenster" && one->isVisible(); });
    }));
}

TEST_F(Report, IsComposedAgainWithNewSettings)
{
    const auto before = pages();
    ASSERT_EQ(before->pages().front().pictures.size(), 1u);
    const QRectF chart = before->pages().front().pictures.front().area;
    EXPECT_LT(chart.width(), 2 * chart.height()) << "no strip, though its tab was never shown";
    for (const char *key : {"INI", "INITVorgaben", "save", "drucker"})
        command(key); // each is cancelled
    EXPECT_EQ(pages(), before);
    EXPECT_EQ(desktop.messages.size(), 1u) << "only the hint";
    EXPECT_EQ(setting("Format", "Ausrichtung"), "");

    desktop.dialogAnswer = [](QDialog &dialog) {
        dialog.findChild<QAbstractButton *>("Ausrichtung_1")->click();
        return true;
    };
    command("INI");
    EXPECT_NE(pages(), before);
    EXPECT_GT(pages()->paperSize().width(), pages()->paperSize().height());
    EXPECT_EQ(setting("Format", "Ausrichtung"), "1");

    desktop.dialogAnswer = [](QDialog &dialog) {
        dialog.findChild<QAbstractButton *>("Bildprint")->click();
        dialog.findChild<QAbstractButton *>("Ende_0")->click();
        return dialog.result() == QDialog::Accepted;
    };
    command("INITVorgaben");
    EXPECT_TRUE(pages()->pages().front().pictures.empty());
    EXPECT_GT(pages()->paperSize().width(), pages()->paperSize().height()) << "the page setup was kept";
}

TEST_F(Report, ClosingAWindowCancelsTheComposition)
{
    const auto before = pages();
    bool closeMain = false;
    whileComposing([&] { closeMain ? window->close() : preview().close(); });
    command("INI"); // nothing is composed
    trigger("Seitenansicht");
    EXPECT_EQ(pages(), before);
    EXPECT_TRUE(QTest::qWaitFor([&] { return preview().isHidden(); }));
    EXPECT_TRUE(window->isVisible());
    closeMain = true;
    trigger("Seitenansicht");
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->isHidden(); }));
    EXPECT_EQ(desktop.messages.size(), 1u) << "only the hint";
    EXPECT_TRUE(desktop.errors.empty());
}

TEST_F(Report, IsNotShownAnyMoreOnceAnotherDatabaseIsOpen)
{
    const QString file = folder.filePath("a.kvl");
    desktop.fileAnswers = {file};
    ASSERT_TRUE(window->templates().saveAs());
    ASSERT_TRUE(window->templates().openFile(file));
    EXPECT_TRUE(preview().isVisible()) << "the database is the same";

    ASSERT_TRUE(QFile::copy(family(), hostFolder() + "/Familie/familiX.mdb"));
    writeFile(file, contentOf(file).replace("familie.mdb", "familiX.mdb"));
    ASSERT_TRUE(window->templates().openFile(file));
    EXPECT_TRUE(program.databases.Familiendatenbank->file().endsWith("familiX.mdb"));
    EXPECT_TRUE(preview().isHidden());
    EXPECT_TRUE(window->isVisible());
}
