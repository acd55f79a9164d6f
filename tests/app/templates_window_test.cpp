// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/templates/vorlagespeichern.h"
#include "statistics/introduction/texteditor.h"
#include "support/files.h"
#include "support/openwindow.h"

using namespace kalvenor;
using namespace kalvenor::test;

namespace {

/// The window over seven persons, and files beside them.
struct Templates : OpenWindow, testing::Test {
    Templates() : OpenWindow(smallFamily()) {}
    statistics::StatisticsPanel &panel() { return window->statisticsPanel(); }
    void type(const QString &title)
    {
        panel().title().selectAll();
        QTest::keyClicks(&panel().title(), title);
    }
    bool isEnabled(const QString &action) { return control<QAction>(action).isEnabled(); }
    QString file(const char *name) const { return folder.filePath(name); }
    /// Everything that a statistic shows, in one text.
    QString statistic()
    {
        panel().computeAll();
        const auto options = panel().options();
        QString all = QString("%1|%2|%3|%4|%5|")
                          .arg(panel().title().text(), QString::fromLatin1(panel().introduction().rtf()))
                          .arg(options.grafiktyp)
                          .arg(options.legende)
                          .arg(options.nachGeburtsjahr);
        for (const qint16 box : options.geschlechtalter)
            all += QString::number(box);
        for (const auto &line : window->statisticsController().list())
            all += u'|' + line.text();
        return all + u'|' + window->statisticsController().figures().anzahl[2];
    }
    void changeEverything()
    {
        controller().moveAll(PersonList::Unmarked);
        panel().title().setText("Anderes");
        panel().introduction().setRtf("anders");
        panel().setOptions({.grafiktyp = 7, .legende = true, .geschlechtalter = {1, 0, 1, 1}});
    }
};

TEST_F(Templates, SavedChangedAndOpenedTheStatisticIsTheSame)
{
    EXPECT_FALSE(isEnabled("loeschen"));
    select(PersonList::Unmarked, {1, 2, 4});
    trigger("Markieren");
    panel().introduction().setRtf("{\\rtf1\\ansi Die \"Alten\"\\par\n und mehr}");
    panel().setOptions({.grafiktyp = 10, .legende = false, .geschlechtalter = {1, 1, 0, 1}, .nachGeburtsjahr = false});
    type("Die \"Alten\"");
    EXPECT_TRUE(isEnabled("loeschen"));
    EXPECT_TRUE(window->isWindowModified());
    const QString before = statistic();
    desktop.fileAnswers = {file("łü.kvl")};
    trigger("speichern");
    EXPECT_TRUE(isEnabled("loeschen"));
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_TRUE(window->windowTitle().startsWith("łü.kvl"));

    changeEverything();
    control<QLineEdit>("Presse").setText("Falk");
    controller().filter({.Presse = "Falk"});
    desktop.answers = {desktop::ResultNo};
    desktop.fileAnswers = {file("łü.kvl")};
    trigger("oeffnen");
    EXPECT_EQ(statistic(), before);
    EXPECT_EQ(shown(PersonList::Marked), (Counters{1, 2, 4}));
    EXPECT_EQ(control<QLineEdit>("Presse").text(), "") << "the lists are plain, so no filter may seem to be on";
    EXPECT_EQ(window->templates().recent(), QStringList{file("łü.kvl")});
    trigger("Rueckgaengig");
    EXPECT_EQ(marked().size(), 7U) << "opening is one step";
    trigger("Wiederherstellen");
    EXPECT_EQ(marked(), (Counters{1, 2, 4}));

    trigger("loeschen");
    EXPECT_FALSE(isEnabled("loeschen"));
    EXPECT_EQ(panel().title().text() + panel().introduction().rtf() + window->templates().current(), "");
    EXPECT_EQ(panel().options(), statistics::Statistik());
}

TEST_F(Templates, FailureLeavesMarksAndControls)
{
    select(PersonList::Unmarked, {3});
    trigger("Markieren");
    panel().title().setText("Bleibt");
    const QString before = statistic();
    writeFile(file("foreign.kvl"), "\x89PNG\r\n");
    writeFile(file("short.kvl"), "\"\\nowhere.mdb\"\r\n\"T\"\r\n");
    ASSERT_TRUE(window->templates().saveAs() == false); // cancelled
    desktop.fileAnswers = {file("elsewhere.kvl")};
    ASSERT_TRUE(window->templates().saveAs());
    writeFile(file("gone.kvl"), contentOf(file("elsewhere.kvl")).replace("familie.mdb", "weg.mdb"));
    desktop.answers = {desktop::ResultOk, desktop::ResultOk, desktop::ResultOk, desktop::ResultCancel};
    for (const char *name : {"foreign.kvl", "short.kvl", "missing.kvl", "gone.kvl"}) {
        const std::size_t messages = desktop.messages.size();
        EXPECT_FALSE(window->templates().openFile(file(name))) << name;
        EXPECT_EQ(desktop.messages.size(), messages + 1) << name;
        EXPECT_EQ(statistic(), before) << name;
        EXPECT_EQ(marked(), Counters{3}) << name;
        EXPECT_EQ(window->templates().current(), file("elsewhere.kvl"));
    }
    EXPECT_TRUE(window->templates().openFile(file("gone.kvl"))) << "with the database at hand";
}

TEST_F(Templates, NothingUnsavedIsLostWithoutAQuestion)
{
    const std::function<void()> actions[] = {
        [this] { trigger("oeffnen"); },
        [this] { trigger("loeschen"); },
        [this] { trigger("Familiewaehlen"); },
        [this] { window->close(); },
    };
    for (const auto &action : actions) {
        type("Neu");
        desktop.answers = {desktop::ResultCancel};
        desktop.messages.clear();
        action();
        EXPECT_EQ(desktop.messages.size(), 1U);
        EXPECT_TRUE(desktop.fileQuestions.empty());
        EXPECT_EQ(panel().title().text(), "Neu");
        EXPECT_TRUE(window->isVisible());
    }
    desktop.answers = {desktop::ResultYes};
    desktop.fileAnswers = {file("neu.kvl")};
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(selection::readVorlage(basic::NativePath(file("neu.kvl"))).statistik.titel, "Neu");
}

TEST_F(Templates, TheDefaultOneLeavesTheMarks)
{
    const QString standard = program.host.native(program.host.programFolder() + "\\Standart.kvl");
    writeFile(standard, "\"\\nowhere.mdb\"\r\n\"T\"\r\n\"I\"\r\n9\r\n0\r\n1\r\n0\r\n0\r\n1\r\n#FALSE#\r\n1\r\n2\r\n");
    select(PersonList::Unmarked, {3});
    trigger("Markieren");
    window->templates().openDefault();
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_EQ(marked(), Counters{3});
    EXPECT_EQ(shown(PersonList::Marked), Counters{3});
    EXPECT_EQ(panel().title().text(), "T");
    EXPECT_EQ(panel().options(),
              (statistics::Statistik{
                  .grafiktyp = 9, .legende = false, .geschlechtalter = {1, 0, 0, 1}, .nachGeburtsjahr = false}));
}

TEST_F(Templates, AnotherFamilyDatabaseOrTheFormerOne)
{
    const QString other = hostFolder() + "/Familie/andere.mdb";
    writeFamily(other, {{.counter = 8, .listname = "Gans, Ida", .marked = true}});
    select(PersonList::Unmarked, {1});
    trigger("Markieren");
    writeFile(file("text.mdb"), "not a database at all");
    writeFile(file("old.mdb"), QByteArray("\0\1\0\0Standard ACE DB\0\2", 21) + QByteArray(4096, '\0'));
    writeFamily(file("part.mdb"), {}, 0, "Baum");
    const std::pair<const char *, const char *> refused[] = {{"text.mdb", "keine Familiendatenbank"},
                                                             {"old.mdb", "ein Format, das nicht gelesen werden kann"},
                                                             {"part.mdb", "keine Familiendatenbank"},
                                                             {"gone.mdb", "nicht vorhanden"}};
    for (const auto &[name, why] : refused) {
        desktop.messages.clear();
        desktop.fileAnswers = {file(name)};
        trigger("Familiewaehlen");
        ASSERT_EQ(desktop.messages.size(), 1U) << name;
        EXPECT_TRUE(desktop.messages[0].text.contains(file(name)) && desktop.messages[0].text.contains(why))
            << desktop.messages[0].text.toStdString();
        EXPECT_EQ(shown(PersonList::Marked), Counters{1}) << name;
        EXPECT_TRUE(controller().canUndo());
    }
    const auto settings = program.host.inilesen(this->settings(), "QV-Files", "0", {});
    desktop.fileAnswers = {other};
    trigger("Familiewaehlen");
    EXPECT_EQ(shown(PersonList::Marked), Counters{8});
    EXPECT_FALSE(controller().canUndo());
    EXPECT_EQ(control<QLabel>("PanelDatenbank").text(), "andere.mdb");
    EXPECT_TRUE(control<QLabel>("PanelNurlesen").isHidden());
    EXPECT_EQ(program.host.inilesen(this->settings(), "QV-Files", "0", {}), settings);
    ASSERT_TRUE(QFile::setPermissions(other, QFile::ReadOwner));
    controller().reloadLists();
    EXPECT_TRUE(control<QLabel>("PanelNurlesen").isVisible());
}

} // namespace
