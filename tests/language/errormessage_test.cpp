// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/errormessage.h"

#include "language/texts.h"
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using basic::Error;
using basic::Fault;
using language::errorMessage;

TEST(ErrorMessage, IsMadeOfPlaceSentenceAndRemarksInTheLanguageOfTheHost)
{
    const Error cut(Fault::TemplateCut, {.file = u"a.kvl"_s, .line = 3}, {Fault::WordTitle});
    const struct {
        Error error;
        const char *german;
        const char *english;
    } cases[] = {
        {Error(Fault::OutOfMemory), "Der Arbeitsspeicher reicht dafür nicht aus.",
         "There is not enough memory for this."},
        {cut,
         "a.kvl, Zeile 3: Die Datei endet mitten in dieser Zeile (Titel); sie wurde abgeschnitten und kann nicht "
         "geöffnet werden. Nehmen Sie eine andere Kopie der Vorlage oder speichern Sie sie neu.",
         "a.kvl, line 3: The file ends in the middle of this line (title); it was cut off and cannot be opened. Use "
         "another copy of the template or save it again."},
        {Error(Fault::NumberOutOfRange, {.file = u"b"_s, .table = u"T"_s, .page = 7}, {70000.5, -1, 1}),
         "b, Tabelle T, Seite 7: Die Zahl 70000.5 liegt nicht zwischen -1 und 1.",
         "b, table T, page 7: The number 70000.5 is not between -1 and 1."},
        // What an argument holds is never taken for a place of the sentence.
        {Error(Fault::NoNumber, {}, {u"%1 %2"_s}), "„%1 %2“ ist keine Zahl.", "“%1 %2” is not a number."},
        {Error(Fault::NotRenamed, {.item = u"x"_s}).with(Fault::DriveUnknown).with(Error(Fault::Stopped)),
         "x: Die Datei kann nicht umbenannt werden. Für das Laufwerk ist kein Ordner bekannt; nennen Sie ihn in "
         "Kalvenor.ini, Abschnitt [Laufwerke]. Abgebrochen.",
         "x: The file cannot be renamed. No folder is known for its drive letter; name it in Kalvenor.ini, section "
         "[Laufwerke]. Stopped."},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(errorMessage(language::CatalogueLanguage::German, row.error), row.german);
        EXPECT_EQ(errorMessage(language::CatalogueLanguage::English, row.error), row.english);
    }
    // The host's own wording wins.
    test::Texts texts({{static_cast<int>(Fault::Stopped), "Halt.", {}}}, "Deutsch");
    EXPECT_EQ(errorMessage(texts.module, Error(Fault::Stopped)), "Halt.");
    EXPECT_EQ(errorMessage(texts.module, Error(Fault::OutOfMemory)), cases[0].german);
}

TEST(Error, IsData)
{
    const Error error = Error(Fault::TemplateCut, {}, {Fault::WordTitle, 5}).at({.file = u"f"_s, .line = 2});
    EXPECT_EQ(error.kind(), basic::ErrorKind::Damaged);
    EXPECT_EQ(error.arguments(), QStringList({"WordTitle", "5"}));
    EXPECT_STREQ(error.what(), "f, line 2: TemplateCut (WordTitle, 5)");
    EXPECT_STREQ(error.with(Fault::DriveUnknown).what(), "f, line 2: TemplateCut (WordTitle, 5); DriveUnknown");
    EXPECT_EQ(error.with(Fault::DriveUnknown).fault(), Fault::TemplateCut);
}
