// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/initform.h"

#include "language/texts.h"
#include "settings/dialog/colorbutton.h"
#include "settings/dialog/fontsample.h"
#include "settings/dialog/lengthbox.h"
#include "settings/dialog/seiteneinrichtung.h"
#include "support/files.h"
#include <gtest/gtest.h>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTabWidget>
#include <QTest>
#include <stdexcept>

using namespace kalvenor;
using namespace kalvenor::settings;

namespace {

struct InitformTest : testing::Test, test::Texts {
    InitformTest() : Texts(test::catalogueRows()) { QDir(folder.path()).mkdir("Kalvenor"); }

    void write(const QByteArray &content) const { test::writeFile(path(), content); }
    QByteArray bytes() const { return test::contentOf(path()); }
    QString path() const { return folder.filePath("Kalvenor/Kalvenor.ini"); }
    QString setting(const char *section, const char *key) const
    {
        return host.inilesen(host.ownSettingsFile(), section, key, "-");
    }
    void open()
    {
        form = std::make_unique<Initform>(host, module, vorgaben, page);
        form->show();
    }
    template <typename Control>
    Control &control(const char *name)
    {
        auto *found = form->findChild<Control *>(name);
        if (found == nullptr)
            throw std::runtime_error(std::string("no control named ") + name);
        return *found;
    }
    void click(const char *name) { control<QPushButton>(name).click(); }
    /// In the colour dialog that the button opens, which is confirmed or given up.
    void pick(const char *button, const QColor &color, bool confirmed = true)
    {
        desktop.dialogAnswer = [&](QDialog &dialog) {
            dynamic_cast<QColorDialog &>(dialog).setCurrentColor(color);
            return confirmed;
        };
        control<ColorButton>(button).click();
    }
    bool isOpen() const { return form->isVisible(); }

    Druckvorgaben vorgaben;
    print::PageSetup page;
    std::unique_ptr<Initform> form;
};

const QByteArray ByHand =
    "[Titel]\r\nFontsize=13.5\r\nFontunderline=#True\r\nFontcolor=red\r\n[Footer]\r\nPrint=7\r\n"
    "[Druckrand]\r\nLinks=1001\r\nOben=1003\r\n[Altersliste]\r\nAbstand=51.5\r\n"
    "[Spalten]\r\n1=401\r\n2=wide\r\n4=99999\r\n[Grafik]\r\nFontfaktor=2.123\r\nBildgroesse=66\r\n";

TEST_F(InitformTest, ConfirmingWithoutAChangeKeepsEveryText)
{
    write(ByHand);
    open();
    for (int row = 0; row < 7; ++row)
        control<QListWidget>("Element").setCurrentRow(row);
    click("Ende_0");
    EXPECT_FALSE(isOpen());
    const QByteArray after = bytes();
    for (const QByteArray &line : QByteArray(ByHand).replace("\r\n", "\n").split('\n'))
        EXPECT_TRUE(after.contains(line)) << line.constData();
    EXPECT_EQ(setting("Footer", "Print"), "7");
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(InitformTest, ConfirmingWritesWhatWasChanged)
{
    open();
    control<QListWidget>("Element").setCurrentRow(2); // Kriterien
    control<QFontComboBox>("Fontname").lineEdit()->setText("Courier New");
    control<NumberBox>("Fontsize").setValue(8.25);
    control<QCheckBox>("Fontunderline").click();
    pick("Fontcolor", Qt::blue);
    pick("Backcolor", QColor(255, 255, 0xE0));
    pick("Backcolor", Qt::red, false);
    EXPECT_EQ(control<FontSample>("Muster").style(), (print::TextStyle{.family = "Courier New",
                                                                       .pointSize = 8.25,
                                                                       .underline = true,
                                                                       .color = Qt::blue,
                                                                       .background = QColor(255, 255, 0xE0)}));

    control<LengthBox>("Links").setValue(12.7);
    control<QRadioButton>("Ausrichtung_1").click();
    control<QCheckBox>("NeueSeite").click();
    control<QCheckBox>("Bildprint").click();
    control<LengthBox>("Spalten_4").setValue(0);
    control<NumberBox>("Fontfaktor").setValue(2.5);
    auto &percent = control<QComboBox>("Bildgroesse");
    percent.setCurrentIndex(percent.findText("600 %"));
    const print::PageSetup before = page;
    EXPECT_EQ(page.left, before.left); // not before it is confirmed
    click("Ende_0");
    EXPECT_FALSE(isOpen());

    const struct {
        const char *section, *key, *value;
    } rows[] = {{"Kriterien", "Fontname", "Courier New"},
                {"Kriterien", "Fontsize", "8.25"},
                {"Kriterien", "Fontbold", "#False#"},
                {"Kriterien", "Fontunderline", "#True#"},
                {"Kriterien", "Fontcolor", "16711680"},
                {"Kriterien", "Backcolor", "14745599"},
                {"Titel", "Fontname", "Arial"},
                {"Druckrand", "Links", "720"},
                {"Druckrand", "Oben", "1440"},
                {"Format", "Ausrichtung", "1"},
                {"TitelAltersliste", "Neueseite", "0"},
                {"Grafik", "Bildprint", "0"},
                {"Spalten", "1", "400"},
                {"Spalten", "4", "0"},
                {"Grafik", "Fontfaktor", "2.5"},
                {"Grafik", "Bildgroesse", "600"}};
    for (const auto &row : rows)
        EXPECT_EQ(setting(row.section, row.key), row.value) << row.section << ' ' << row.key;
    EXPECT_EQ(page.left, 720);
    EXPECT_TRUE(page.landscape);
    EXPECT_EQ(vorgaben.print(NeueSeite), 0);
    EXPECT_EQ(vorgaben.font(Kriterien).Fontname, "Courier New");
}

TEST_F(InitformTest, LeavingItOtherwiseChangesNothing)
{
    write(ByHand);
    for (const bool byKey : {false, true}) {
        open();
        const Druckvorgaben before = vorgaben;
        click("Vorgaben");
        EXPECT_EQ(control<NumberBox>("Fontsize").value(), 15);
        EXPECT_EQ(control<LengthBox>("Links").wholeTwips(), 1440);
        EXPECT_EQ(control<LengthBox>("Spalten_1").wholeTwips(), 400);
        EXPECT_EQ(control<NumberBox>("Fontfaktor").value(), 3);
        byKey ? QTest::keyClick(form.get(), Qt::Key_Escape) : click("Ende_1");
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(bytes(), ByHand);
        EXPECT_EQ(vorgaben, before);
        EXPECT_EQ(page.left, 1001);
    }
}

TEST_F(InitformTest, StaysOpenWhereMarginsLeaveNoRoomOrTheFileCannotBeWritten)
{
    open();
    control<LengthBox>("Rechts").setValue(180);
    click("Ende_0");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].text, "Die Ränder lassen keinen Platz für den Text.");
    EXPECT_EQ(control<QTabWidget>("Tabs").currentIndex(), 1);
    EXPECT_TRUE(isOpen());

    control<LengthBox>("Rechts").setValue(18);
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(QDir().mkdir(path())); // a folder in the file's place, which stops root as well
    click("Ende_0");
    ASSERT_EQ(desktop.messages.size(), 2U);
    EXPECT_TRUE(desktop.messages[1].text.contains("Kalvenor.ini"));
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(page.right, 1080);

    ASSERT_TRUE(QDir().rmdir(path()));
    click("Ende_0");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(setting("Druckrand", "Rechts"), "1020");
}

} // namespace

namespace {

/// The access keys that show at the same time, each once; what has none and could have one fails.
QString accessKeysOf(const QWidget &shown)
{
    QString keys;
    const auto add = [&](const QString &text) {
        const qsizetype mark = text.indexOf('&');
        EXPECT_GE(mark, 0) << text.toStdString();
        keys += text[mark + 1].toLower();
    };
    for (const auto *button : shown.findChildren<QAbstractButton *>()) {
        const bool endsDialog = QStringList{"Ende_0", "Ende_1", "OK", "Abbrechen"}.contains(button->objectName());
        if (button->isVisible() && button->property("tag").isValid() && !endsDialog)
            add(button->text());
    }
    for (const auto *label : shown.findChildren<QLabel *>()) {
        if (label->isVisible() && label->buddy() != nullptr)
            add(label->text());
    }
    for (const auto *tabs : shown.findChildren<QTabWidget *>()) {
        for (int i = 0; i < tabs->count(); ++i)
            add(tabs->tabText(i));
    }
    return keys;
}

} // namespace

TEST_F(InitformTest, EveryControlHasAnAccessKeyOfItsOwn)
{
    for (const char *language : {"Deutsch", "English"}) {
        host.Sprache = language;
        open();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        auto &tabs = control<QTabWidget>("Tabs");
        control<QPushButton>("Ende_0").setFocus();
        for (int turn = 0; turn < tabs.count(); ++turn) {
            EXPECT_EQ(tabs.currentIndex(), turn);
            const QString keys = accessKeysOf(*form);
            EXPECT_EQ(QSet<QChar>(keys.begin(), keys.end()).size(), keys.size()) << keys.toStdString();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        }
        Seiteneinrichtung setup(host, module, page);
        setup.show();
        const QString keys = accessKeysOf(setup);
        EXPECT_EQ(QSet<QChar>(keys.begin(), keys.end()).size(), keys.size()) << keys.toStdString();
    }
    EXPECT_EQ(control<ColorButton>("Backcolor").accessibleName(), "Background");
}
