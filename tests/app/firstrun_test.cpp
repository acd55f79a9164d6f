// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/firstrun.h"

#include "app/start/lastfolder.h"
#include "support/files.h"
#include "support/startedprogram.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSettings>

using namespace kalvenor;
using namespace kalvenor::test;

namespace {

/// What each dialog in turn said, while this button was clicked in it.
struct Meeting {
    explicit Meeting(const QString &button = "Beenden")
    {
        desktop.dialogAnswer = [this, button](QDialog &dialog) {
            QString text = dialog.findChild<QLabel *>("Problem")->text();
            said << text.remove(QChar(0x200B));
            familyOffered = !dialog.findChild<QPushButton *>("Familiewaehlen")->isHidden();
            dialog.findChild<QPushButton *>(said.size() == 1 ? button : "Beenden")->click();
            later = dialog.findChild<QLabel *>("Problem")->text();
            return dialog.result() == QDialog::Accepted;
        };
    }
    std::unique_ptr<app::Program> start(const basic::WindowsPath &programFolder)
    {
        return app::startProgram(desktop, {programFolder}, [](app::Program &) { return nullptr; });
    }
    FakeDesktop desktop;
    QStringList said;
    QString later;
    bool familyOffered = false;
};

} // namespace

TEST(FirstRun, SaysWhichFileIsWrongAndOffersWhatHelps)
{
    const struct {
        const char *file; ///< of the host folder
        QByteArray bytes; ///< none: the file is taken away
        const char *said;
        bool familyHelps;
        const char *language = "Deutsch";
    } rows[] = {
        {"Familie/familie.mdb", {}, "familie.mdb ist nicht vorhanden", true},
        {"Familie/familie.mdb", "no database", "familie.mdb ist keine Familiendatenbank", true},
        {"programm.ini", {}, "Einstellungen des Hauptprogramms fehlen", true},
        {"programm.ini", "[Ansicht]\r\n", "programm.ini ist keine Familiendatenbank genannt", true},
        {"ADD-IN-LANGUAGE.MDB", {}, "Die Textdatenbank fehlt", false},
        {"ADD-IN-LANGUAGE.MDB", {}, "The text database is missing", false, "English"},
        {"orte.mdb", {}, "orte.mdb", false},
    };
    for (const auto &row : rows) {
        const Installation installation;
        Meeting meeting;
        ASSERT_TRUE(host::Host(installation.programFolder(), meeting.desktop)
                        .inischreiben(installation.settings(), "Ansicht", "Sprache", row.language));
        const QString file = installation.hostFolder() + u'/' + row.file;
        row.bytes.isNull() ? void(QFile::remove(file)) : writeFile(file, row.bytes);
        EXPECT_EQ(meeting.start(installation.programFolder()), nullptr);
        ASSERT_EQ(meeting.said.size(), 1) << row.file;
        EXPECT_TRUE(meeting.said[0].contains(row.said)) << meeting.said[0].toStdString();
        EXPECT_EQ(meeting.familyOffered, row.familyHelps) << row.file;
        EXPECT_EQ(meeting.desktop.messages.size() + meeting.desktop.errors.size(), 1U) << "told as start-up does";
    }
}

TEST(FirstRun, EachWayLeadsOn)
{
    const Installation installation({{.counter = 1, .listname = "A"}});
    const QString family = installation.family();
    const QTemporaryDir bare;
    const basic::WindowsPath away = basic::windowsPath(bare.filePath("bin/Kalvenor"));

    Meeting host("Hostwaehlen");
    host.desktop.fileAnswers = {installation.hostFolder()};
    auto program = host.start(away);
    ASSERT_NE(program, nullptr);
    EXPECT_EQ(program->host.programFolder(), installation.programFolder());
    EXPECT_TRUE(host.desktop.messages.empty() && host.desktop.errors.empty()) << "a welcome, no error";

    Meeting wrong("Hostwaehlen");
    wrong.desktop.fileAnswers = {bare.path()};
    EXPECT_EQ(wrong.start(away), nullptr);
    EXPECT_TRUE(wrong.later.contains("programm.ini")) << wrong.later.toStdString();

    Meeting demo("Beispieldaten");
    demo.desktop.fileAnswers = {bare.filePath("demo")};
    program = demo.start(away);
    ASSERT_NE(program, nullptr);
    EXPECT_GT(program->databases.Familiendatenbank->openTable("Daten")->recordCount(), 100);
    Meeting again("Beispieldaten"); // the folder is taken
    again.desktop.fileAnswers = {bare.filePath("demo")};
    EXPECT_EQ(again.start(away), nullptr);
    EXPECT_TRUE(again.later.contains("QV")) << again.later.toStdString();

    ASSERT_TRUE(QFile::rename(family, family + ".mdb"));
    Meeting chosen("Familiewaehlen");
    chosen.desktop.fileAnswers = {family + ".mdb"};
    program = chosen.start(installation.programFolder());
    ASSERT_NE(program, nullptr);
    EXPECT_EQ(program->databases.Familiendatenbank->file(), family + ".mdb");
    EXPECT_EQ(program->host.inilesen(installation.settings(), "QV-Files", "0", {}), basic::windowsPath(family).text());
}

TEST(FirstRun, TheFolderUsedLastCountsWhileItsHostIsThere)
{
    const QTemporaryDir user;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, user.path());
    const QString bin = user.filePath("bin");
    const Installation own;
    const QString ownFolder = own.hostFolder() + "/Kalvenor";
    EXPECT_EQ(app::startFolder(bin), bin);
    app::rememberFolder(ownFolder, bin);
    EXPECT_EQ(app::startFolder(bin), ownFolder);
    const Installation another;
    app::rememberFolder(another.hostFolder() + "/Kalvenor", bin);
    app::rememberFolder(ownFolder, bin);
    EXPECT_EQ(app::recentFolders(), (QStringList{ownFolder, another.hostFolder() + "/Kalvenor"}));
    Meeting welcome("Zuletzt_1");
    const auto program = welcome.start(basic::windowsPath(bin + "/Kalvenor"));
    ASSERT_NE(program, nullptr);
    EXPECT_EQ(program->host.programFolder(), another.programFolder());
    EXPECT_EQ(app::startFolder(another.hostFolder() + "/Kalvenor"), another.hostFolder() + "/Kalvenor");
    ASSERT_TRUE(QDir(own.hostFolder()).removeRecursively());
    EXPECT_EQ(app::startFolder(bin), bin);
    EXPECT_EQ(app::recentFolders().size(), 1);
}
