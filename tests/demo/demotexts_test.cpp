// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/demofixture.h"
#include "language/texts/catalogue.h"
#include <map>
#include <QRegularExpression>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {
namespace {

using Texts = std::map<int, std::pair<QString, QString>>;

class DemoTextsTest : public test::DemoTest {
protected:
    static Texts read(const QString &file)
    {
        const auto table = open(file)->table(u"Languages"_s);
        EXPECT_EQ(table->indexes().at(0).name, u"Counter"_s);
        Texts texts;
        for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
            const bool added = texts
                                   .insert({table->integer(row, table->columnOf(u"Counter")).value_or(-1),
                                            {table->text(row, table->columnOf(u"Deutsch")),
                                             table->text(row, table->columnOf(u"English"))}})
                                   .second;
            EXPECT_TRUE(added) << row;
        }
        return texts;
    }
};

TEST_F(DemoTextsTest, EveryIdentifierOfTheHostIsInBothLanguages)
{
    const Texts texts = read(u"ADD-IN-LANGUAGE.MDB"_s);
    for (const int id : {36,   100,  116,  120,  180,  181,  182,  183,  184,  185,  186,  187,  188,  189,  190,
                         191,  192,  193,  194,  911,  926,  930,  1201, 1204, 1205, 1206, 1207, 1208, 1209, 1215,
                         1216, 1217, 1218, 1219, 1220, 1221, 1222, 1223, 1224, 1225, 1226, 1227, 1228, 1229}) {
        ASSERT_TRUE(texts.contains(id)) << id;
    }
    EXPECT_EQ(texts, read(u"language.mdb"_s));
    // The program's own wording is there, too.
    EXPECT_EQ(texts.size(), language::catalogue().size());
    EXPECT_EQ(texts.at(20104), std::pair(u"Vorlage &speichern"_s, u"&Save template"_s));
    // Captions that forms carry at design time.
    const std::pair<int, const char16_t *> captions[] = {{180, u"&Drucken"},
                                                         {181, u"&Speichern"},
                                                         {182, u"&Druckvorlage"},
                                                         {183, u"&Fenster schließen"},
                                                         {184, u"&Hilfe"},
                                                         {1204, u"Liste auf neuer Seite beginnen"},
                                                         {1217, u"Liste aller Personen nach Alter sortiert"}};
    for (const auto &[id, caption] : captions)
        EXPECT_EQ(texts.at(id).first, QString::fromUtf16(caption));
    // The name of an exported file is made with this one.
    EXPECT_FALSE(texts.at(1205).first.contains(QRegularExpression(u"[\\\\/:*?\"<>| ]"_s)));
    EXPECT_EQ(texts.at(189).first.count(u'|'), 3);
    EXPECT_EQ(texts.at(189).second, u"Whole &Page|Page &Width|&Two Pages|Thumb&nail"_s);
}

} // namespace
} // namespace kalvenor::demo
