// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/forms/form.h"

#include "language/texts.h"
#include <gtest/gtest.h>

using namespace kalvenor;
using language::Form;
using language::FormPart;

namespace {

const std::vector<test::TextRow> Rows = {
    {12, "Zwölf", "Twelve"},       {180, "&Drucken", "&Print"}, {300, {}, "Three hundred"}, {301, "", ""},
    {20001, "Eigener", "Our own"}, {20002, {}, "Own two"},      {-5, "minus", "minus"},
};

Form translated(FormPart control, qint16 shortHelp = 1, const QString &formName = "Auswahl")
{
    static test::Texts texts(Rows);
    texts.host.Kurzhilfe = shortHelp;
    Form form{.name = formName, .tag = "12", .title = "12Titel", .controls = {std::move(control)}};
    formuebersetzen(form, texts.module, texts.host);
    return form;
}

} // namespace

TEST(Formuebersetzen, ReadsTheCaptionsIdentifierByTheRuleOfItsType)
{
    const struct {
        const char *type;
        const char *tag;
        const char *caption;
        const char *expected;
    } cases[] = {
        // No test of the number, and a text that is no number leaves the caption.
        {"Label", "12", "12Name", "Zwölf"},
        {"Label", " 12 ", "12Name", "Zwölf"},
        {"Frame", "0", "0Name", "????"},
        {"Label", "-5", "Name", "minus"},
        {"Label", "", "Name", "Name"},
        {"Frame", "12a", "Name", "Name"},
        {"Label", "40000", "Name", "Name"},
        {"Label", "300", "300Name", "300Name"}, // null cannot be assigned
        {"Label", "301", "301Name", ""},
        // The caption carries the number.
        {"Menu", "", "180 &Drucken", "&Drucken"},
        {"Menu", "", "180&Datei", "&Drucken"},
        {"Menu", "", " 1 8 0 x", "&Drucken"},
        {"Menu", "", "-5 x", "minus"},
        {"Menu", "", "-", "-"},
        {"Menu", "12", "&Datei", "&Datei"},
        {"Menu", "", "99 &Neu", "????"},
        {"Menu", "", "99999 &Neu", "99999 &Neu"},
        // Anything else: the tag's leading number, if positive.
        {"CheckBox", "12", "12Name", "Zwölf"},
        {"CheckBox", "12a", "Name", "Zwölf"},
        {"CheckBox", "", "Name", "Name"},
        {"CheckBox", "0", "0Name", "0Name"},
        {"CheckBox", "-5", "Name", "Name"},
        {"CommandButton", "70000", "Name", "Name"},
        {"label", "-5", "Name", "Name"}, // type names count letter by letter
        // Nothing at all.
        {"Timer", "12", "12Name", "12Name"},
        {"ImageList", "12", "12Name", "12Name"},
        {"CommonDialog", "12", "12Name", "12Name"},
        {"inetFile", "12", "12Name", "12Name"},
        // Our own range.
        {"Label", "20001", "20001Name", "Eigener"},
        {"Label", "20002", "20002Name", "Markierte Personen"}, // null
        {"Label", "20003", "20003Name", "Liste neu laden"},    // no row
        {"Menu", "", "20003 3 &Namen", "20003 3 &Namen"},      // reads as 200033
        {"Menu", "", "20104 &Namen", "Vorlage &speichern"},
        {"CheckBox", "32767", "Name", "????"},
        {"CheckBox", "19999", "19999Name", "????"},
    };
    for (const auto &row : cases) {
        const Form form = translated({.typeName = row.type, .tag = row.tag, .caption = row.caption});
        EXPECT_EQ(form.controls[0].caption, row.expected) << row.type << ' ' << row.tag << ' ' << row.caption;
    }
}

TEST(Formuebersetzen, TranslatesOrEmptiesTheTooltipOfAControl)
{
    const struct {
        const char *type;
        const char *form;
        qint16 shortHelp;
        const char *tooltip;
        const char *expected;
    } cases[] = {
        {"Label", "Auswahl", 1, "12", "Zwölf"},      {"Frame", "Auswahl", 1, "12 x", "Zwölf"},
        {"CheckBox", "Auswahl", 1, "0", "0"},        {"CheckBox", "Auswahl", 1, "", ""},
        {"CheckBox", "Auswahl", 1, "-5", "-5"},      {"CheckBox", "Auswahl", 1, "Hinweis", "Hinweis"},
        {"CheckBox", "Auswahl", 1, "99", "????"},    {"CheckBox", "Auswahl", 1, "20003", "Liste neu laden"},
        {"CheckBox", "Auswahl", 0, "Hinweis", ""},   {"Label", "Auswahl", 2, "12", ""},
        {"ListView", "Auswahl", -1, "12", ""},       {"ListView", "Auswahl", 1, "12", "Zwölf"},
        {"CheckBox", "Container", 0, "12", "Zwölf"}, {"CheckBox", "container", 0, "12", ""},
        {"CheckBox", "Conta5iner", 0, "12", ""},     {"Menu", "Auswahl", 0, "12", "12"},
        {"Timer", "Auswahl", 0, "12", "12"},         {"TabStrip", "Auswahl", 0, "12", "12"},
        {"Toolbar", "Auswahl", 0, "12", "12"},       {"StatusBar", "Auswahl", 1, "12", "12"},
    };
    for (const auto &row : cases) {
        const Form form = translated({.typeName = row.type, .tooltip = row.tooltip}, row.shortHelp, row.form);
        EXPECT_EQ(form.controls[0].tooltip, row.expected) << row.type << row.form << row.shortHelp << row.tooltip;
    }
}

TEST(Formuebersetzen, TreatsItemsByTheRuleOfTheirControl)
{
    const struct {
        const char *type;
        const char *form;
        qint16 shortHelp;
        const char *tooltip;
        const char *caption;
        const char *expected;
    } cases[] = {
        {"TabStrip", "Auswahl", 1, "12", "&Drucken", "Zwölf"},
        {"TabStrip", "Auswahl", 1, "0", "&Drucken", "????"}, // no test of the number here
        {"TabStrip", "Auswahl", 1, "-5", "&Drucken", "minus"},
        {"TabStrip", "Auswahl", 1, "", "&Drucken", ""},
        {"TabStrip", "Auswahl", 1, "12 x", "&Drucken", "12 x"},
        {"TabStrip", "Auswahl", 1, "300", "&Drucken", "300"},
        {"TabStrip", "Auswahl", 1, "20003", "&Drucken", "Liste neu laden"},
        {"TabStrip", "Auswahl", 0, "Hinweis", "&Drucken", ""},
        {"TabStrip", "Container", 0, "12", "&Drucken", "Zwölf"},
        {"Toolbar", "Auswahl", 1, "12", "&Drucken", "Zwölf"},
        {"Toolbar", "Auswahl", 0, "12", "&Drucken", ""},
        {"Toolbar", "Container", 0, "12", "&Drucken", ""},
        {"Toolbar", "Conta5iner", 0, "12", "&Drucken", "Zwölf"},
        {"StatusBar", "Auswahl", 1, "12", "180Text", "Zwölf"},
        {"StatusBar", "Auswahl", 0, "12", "180Text", ""},
        {"StatusBar", "Container", 0, "12", "180Text", "Zwölf"},
        {"ListView", "Auswahl", 0, "12", "&Drucken", "12"},
        {"CheckBox", "Auswahl", 0, "12", "180Text", "12"},
    };
    for (const auto &row : cases) {
        const FormPart good{.tag = "180", .caption = "180Text", .tooltip = row.tooltip};
        const FormPart untagged{.caption = "Text"};
        const Form form = translated({.typeName = row.type, .items = {untagged, good}}, row.shortHelp, row.form);
        const FormPart &item = form.controls[0].items[1];
        EXPECT_EQ(item.caption, row.caption) << row.type;
        EXPECT_EQ(item.tooltip, row.expected) << row.type << row.form << row.shortHelp << row.tooltip;
        EXPECT_EQ(form.controls[0].items[0].caption, "Text") << "an unreadable item does not stop the others";
    }
    const FormPart entry{.tag = "180", .caption = "180x", .tooltip = "12"};
    const Form form = translated({.typeName = "Toolbar", .items = {{.tag = "x", .caption = "x", .items = {entry}}}}, 0);
    EXPECT_EQ(form.controls[0].items[0].items[0].caption, "&Drucken");
    EXPECT_EQ(form.controls[0].items[0].items[0].tooltip, "12") << "a button's menu has no tooltips";
}

TEST(Formuebersetzen, SetsTitleAndHourglass)
{
    const struct {
        const char *tag;
        const char *title;
    } cases[] = {{"12", "Zwölf"}, {"", "12Titel"}, {"0", "????"}, {"zwölf", "12Titel"}};
    for (const auto &row : cases) {
        test::Texts texts(Rows);
        Form form{.tag = row.tag, .title = "12Titel"};
        formuebersetzen(form, texts.module, texts.host);
        EXPECT_EQ(form.title, row.title) << row.tag;
        EXPECT_EQ(form.pointer, desktop::Pointer::Hourglass);
    }
}
