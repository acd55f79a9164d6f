// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/program.h"

#include "support/fakehauptform.h"
#include "support/startedprogram.h"
#include <gtest/gtest.h>
#include <QFile>

using namespace kalvenor;

TEST(Main, ReadsTheHostsSettingsAndShowsTheMainWindow)
{
    const test::Installation installation;
    test::FakeDesktop desktop;
    app::Program program(installation.programFolder(), desktop);
    const host::Host &host = program.host;
    host.inischreiben(installation.settings(), "Ansicht", "Sprache", "English");
    host.inischreiben(installation.settings(), "Ansicht", "Kurzhilfe", " 0 nein");
    host.inischreiben(installation.settings(), "Ansicht", "AddInonTop", "1");

    test::FakeHauptform window;
    EXPECT_TRUE(program.Main([&] {
        EXPECT_TRUE(program.databases.Datentabelle->isOpen());
        EXPECT_TRUE(host.staysOnTop());
        return &window;
    }));
    EXPECT_EQ(host.Hostverzeichnis, basic::windowsPath(installation.hostFolder()));
    EXPECT_EQ(host.Sprache, "English");
    EXPECT_EQ(host.Kurzhilfe, 0);
    EXPECT_EQ(host.Hauptform, &window);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST(Main, DefaultsHoldWhereSettingsAreMissing)
{
    const test::Installation installation;
    test::FakeDesktop desktop;
    app::Program program(installation.programFolder(), desktop);
    const QString path = program.host.inilesen(installation.settings(), "QV-Files", "0", "");
    ASSERT_TRUE(QFile::remove(installation.hostFolder() + "/programm.ini"));
    program.host.inischreiben(installation.settings(), "QV-Files", "0", path);

    EXPECT_TRUE(program.Main(
        []() -> host::Hauptform * { throw basic::Error(basic::ErrorKind::Damaged, "window", "cannot be made"); }));
    EXPECT_EQ(program.host.Sprache, "Deutsch");
    EXPECT_EQ(program.host.Kurzhilfe, 1);
    EXPECT_EQ(program.host.AddInonTop, "1");
    EXPECT_EQ(program.host.Hauptform, nullptr);
}

TEST(Main, EndsWithMessageWhereTheFamilyDatabaseIsMissing)
{
    for (const QString path : {"", "\\nowhere\\Familie.mdb", "Q:\\Familie.mdb"}) {
        const test::Installation installation;
        test::FakeDesktop desktop;
        app::Program program(installation.programFolder(), desktop);
        program.host.inischreiben(installation.settings(), "QV-Files", "0", path);
        program.host.inischreiben(installation.settings(), "Ansicht", "AddInonTop", "1");
        bool shown = false;
        EXPECT_FALSE(program.Main([&] {
            shown = true;
            return nullptr;
        })) << path.toStdString();
        EXPECT_FALSE(shown);
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0].text, program.language.text(100));
        EXPECT_NE(desktop.messages[0].text, "????");
        EXPECT_EQ(desktop.messages[0].style, 16);
        EXPECT_EQ(desktop.messages[0].title, "");
        EXPECT_TRUE(desktop.placements.empty()) << "the on-top switch is not read yet";
    }
}

TEST(Main, NamesTheSettingThatDoesNotFit)
{
    const test::Installation installation;
    test::FakeDesktop desktop;
    app::Program program(installation.programFolder(), desktop);
    program.host.inischreiben(installation.settings(), "Ansicht", "Kurzhilfe", "40000");
    try {
        program.Main();
        FAIL();
    } catch (const basic::Error &error) {
        EXPECT_EQ(error.kind(), basic::ErrorKind::Overflow);
        EXPECT_TRUE(error.message().contains("programm.ini") && error.message().contains("Kurzhilfe=40000"))
            << error.what();
    }
}

TEST(Main, LeavesErrorsOfTheLanguageDatabaseToTheCaller)
{
    const test::Installation installation;
    ASSERT_TRUE(QFile::remove(installation.hostFolder() + "/ADD-IN-LANGUAGE.MDB"));
    test::FakeDesktop desktop;
    app::Program program(installation.programFolder(), desktop);
    EXPECT_THROW(program.Main(), basic::Error);
    EXPECT_TRUE(desktop.messages.empty());
}
