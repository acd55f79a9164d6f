// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/program.h"

#include "support/errors.h"
#include "support/fakemainform.h"
#include "support/startedprogram.h"
#include <gtest/gtest.h>
#include <QFile>

using namespace kalvenor;

namespace {

struct Start : testing::Test, test::Installation {
    void set(const char *section, const char *key, const QString &value) const
    {
        program.host.inischreiben(settings(), section, key, value);
    }
    test::FakeDesktop desktop;
    app::Program program{programFolder(), desktop};
    const host::Host &host = program.host;
};

} // namespace

TEST_F(Start, ReadsTheHostsSettingsAndShowsTheMainWindow)
{
    set("Ansicht", "Sprache", "English");
    set("Ansicht", "Kurzhilfe", " 0 nein");
    set("Ansicht", "AddInonTop", "1");
    test::FakeMainForm window;
    EXPECT_TRUE(program.Main([&] {
        EXPECT_TRUE(program.databases.Datentabelle->isOpen());
        EXPECT_TRUE(host.staysOnTop());
        return &window;
    }));
    EXPECT_EQ(host.Hostverzeichnis, basic::windowsPath(hostFolder()));
    EXPECT_EQ(host.Sprache, "English");
    EXPECT_EQ(host.Kurzhilfe, 0);
    EXPECT_EQ(host.Hauptform, &window);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(Start, DefaultsHoldWhereSettingsAreMissing)
{
    const QString path = host.inilesen(settings(), "QV-Files", "0", "");
    ASSERT_TRUE(QFile::remove(hostFolder() + "/programm.ini"));
    set("QV-Files", "0", path);
    EXPECT_TRUE(program.Main([]() -> host::Hauptform * { throw basic::Error(basic::Fault::NotDecoded); }));
    EXPECT_EQ(host.Sprache, "Deutsch");
    EXPECT_EQ(host.Kurzhilfe, 1);
    EXPECT_EQ(host.AddInonTop, "1");
    EXPECT_EQ(host.Hauptform, nullptr);
}

TEST_F(Start, EndsWithMessageWhereTheFamilyDatabaseIsMissing)
{
    set("Ansicht", "AddInonTop", "1");
    for (const QString path : {"", "\\nowhere\\Familie.mdb", "Q:\\Familie.mdb"}) {
        set("QV-Files", "0", path);
        desktop.messages.clear();
        EXPECT_FALSE(program.Main([&]() -> host::Hauptform * {
            ADD_FAILURE() << path.toStdString();
            return nullptr;
        }));
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0].text, program.language.text(language::Text::FamilyDatabaseMissing));
        EXPECT_NE(desktop.messages[0].text, "????");
        EXPECT_EQ(desktop.messages[0].style, 16);
        EXPECT_EQ(desktop.messages[0].title, "");
        EXPECT_TRUE(desktop.placements.empty()) << "the on-top switch is not read yet";
    }
}

TEST_F(Start, NamesTheSettingThatDoesNotFit)
{
    set("Ansicht", "Kurzhilfe", "40000");
    const auto error = test::thrownBy([&] { program.Main(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->fault(), basic::Fault::SettingOutOfRange);
    EXPECT_TRUE(error->place().file.endsWith("programm.ini"));
    EXPECT_EQ(error->arguments(), QStringList({"Kurzhilfe", "40000", "Ansicht"}));
}
