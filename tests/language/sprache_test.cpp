// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/sprache.h"

#include "language/texts.h"
#include "support/startedprogram.h"
#include <gtest/gtest.h>

using namespace kalvenor;

TEST(Sprachtext, LooksUpByIdentifierAndLanguage)
{
    test::Texts open({{1, "Datei öffnen", "Open file"},
                      {2, "in #PROGNAME# und #APPNAME##PROGNAME# #progname#", "#"},
                      {3, {}, "Only English"},
                      {-4, "negativ", "negative"}});
    language::Sprachmodul &texts = open.module;
    EXPECT_EQ(language::Sprachmodul(open.host, open.engine).sprachtext(1), "????") << "nothing is open yet";
    const struct {
        QString language;
        qint16 id;
        QString text;
    } rows[] = {
        {"Deutsch", 1, "Datei öffnen"},
        {"deutsch", 1, "Datei öffnen"},
        {"English", 1, "Open file"},
        {"Suomi", 1, "????"},
        {"Deutsch", 99, "????"},
        {"Deutsch", 2, "in  und  #progname#"},
        {"English", 2, "#"},
        {"English", 3, "Only English"},
        {"Deutsch", -4, "negativ"},
    };
    for (const auto &row : rows) {
        open.host.Sprache = row.language;
        EXPECT_EQ(texts.sprachtext(row.id).toString(), row.text) << row.language.toStdString() << row.id;
    }
    open.host.Sprache = "Deutsch";
    EXPECT_TRUE(texts.sprachtext(3).isNull());
}

TEST(ShownText, ComesFromTheHostOrForOurOwnFromTheCatalogue)
{
    test::Texts texts({{5, {}, "%1 of %2"}, {20005, {}, "%1 out of %2"}});
    const struct {
        const char *language;
        qint16 id;
        const char *text;
    } cases[] = {
        {"English", 5, "%1 of %2"},      {"Deutsch", 5, ""},
        {"Deutsch", 6, "????"},          {"English", 20005, "%1 out of %2"},
        {"Deutsch", 20005, "%1 von %2"}, {"English", 20006, "Reload the list"},
        {"Suomi", 20005, "%1 of %2"},    {"deutsch", 20001, "Nicht markierte Personen"},
        {"English", 180, "????"},        {"Deutsch", 29999, "????"},
        {"Deutsch", 21412, "Unbenannt"},
    };
    for (const auto &row : cases) {
        texts.host.Sprache = row.language;
        EXPECT_EQ(texts.module.shownText(row.id).toString(), row.text) << row.language << row.id;
    }
}

TEST(Datenbankenschliessen, ClosesAllAndOpensTheHostsOwnTexts)
{
    test::StartedProgram started;
    app::Program &program = started.program;
    const auto family = program.databases.Familiendatenbank;
    const auto persons = program.databases.Datentabelle;

    program.language.datenbankenschliessen("bleibt");
    EXPECT_FALSE(family->isOpen());
    EXPECT_FALSE(persons->isOpen());
    EXPECT_TRUE(program.engine.databases().empty());
    EXPECT_EQ(program.language.text(language::Text::FamilyDatabaseMissing), "????") << "its database is closed as well";

    program.language.datenbankenschliessen("");
    ASSERT_EQ(program.engine.databases().size(), 1U);
    EXPECT_TRUE(program.engine.databases()[0]->file().endsWith("/language.mdb"));
}
