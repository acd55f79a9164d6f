// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/store/vorgabendatei.h"

#include "platform/basic/error.h"
#include "support/errors.h"
#include "support/fakedesktop.h"
#include "support/files.h"
#include <gtest/gtest.h>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::settings;

namespace {

/// The print settings over a file of their own.
struct Settings {
    explicit Settings(const QByteArray &content = {})
    {
        if (!content.isNull())
            write(content);
    }
    void write(const QByteArray &content) const { test::writeFile(path, content); }
    QByteArray bytes() const { return test::contentOf(path); }
    void load() { initladen(host, vorgaben, page); }
    bool save() const { return initspeichern(host, vorgaben, page); }

    QTemporaryDir folder;
    QString path = folder.filePath(u"Kalvenor.ini"_s);
    test::FakeDesktop desktop;
    host::Host host{basic::windowsPath(folder.path()), desktop};
    Druckvorgaben vorgaben;
    print::PageSetup page;
};

const QByteArray Seeded = "[Spalten]\r\n1=400\r\n2=1000\r\n4=3000\r\n[Grafik]\r\nFontfaktor=3\r\n";

TEST(Druckvorgaben, FirstRunSeedsColumnsAndFontFactorOnly)
{
    const struct {
        QByteArray before, after;
    } rows[] = {
        {{}, Seeded},
        {"[spalten]\r\n1=1.0 user\r\n2=5\r\n",
         "[spalten]\r\n1=400\r\n2=1000\r\n4=3000\r\n[Grafik]\r\nFontfaktor=3\r\n"},
        {"[Spalten]\r\n1=400\r\n", "[Spalten]\r\n1=400\r\n"},
        {"[Spalten]\r\n1=\r\n", "[Spalten]\r\n1=\r\n"},
    };
    for (const auto &row : rows) {
        Settings settings(row.before);
        settings.load();
        EXPECT_EQ(settings.bytes(), row.after);
        EXPECT_EQ(settings.vorgaben, defaultVorgaben());
    }
}

TEST(Druckvorgaben, FirstSaveWritesEveryKeyInOrder)
{
    Settings settings{QByteArray()};
    settings.page.landscape = true; // the file's default, upright, wins over it
    settings.load();
    ASSERT_TRUE(settings.save());
    const QByteArray end = "/#False#/#False#/0/16777215/";
    const QByteArray expected =
        "[Spalten]/400/1000/3000/[Grafik]/3/1/[Titel]/Arial/15/#True#/#True#" + end +
        "[TitelKriterien]/Arial/12/#True#/#True" + end + "1/[Kriterien]/Arial/10/#False#/#False" + end +
        "[TitelAltersliste]/Arial/14/#True#/#True" + end + "1/1/[Altersliste]/Arial/10/#True#/#False#" + end +
        "50/[Header]/Arial/8/#False#/#False" + end + "1/[Footer]/Arial/8/#False#/#False" + end +
        "1/[Druckrand]/1440/1440/1080/1080/[Format]/0/";
    QByteArray keys, values;
    for (const QByteArray &line : settings.bytes().replace("\r\n", "\n").split('\n')) {
        const qsizetype sign = line.indexOf('=');
        values += line.mid(sign + 1) + (line.isEmpty() ? "" : "/");
        keys += sign < 0 ? QByteArray() : line.left(sign) + ' ';
    }
    EXPECT_EQ(values, expected);
    EXPECT_TRUE(keys.startsWith("1 2 4 Fontfaktor Bildprint Fontname Fontsize Fontbold Fontunderline Fontstrikethru "
                                "Fontitalic Fontcolor Backcolor Fontname "));
    EXPECT_TRUE(keys.endsWith("Backcolor Print Links Oben Rechts Unten Ausrichtung "));
}

TEST(Druckvorgaben, ReadsWhatAHandWroteIntoTheFile)
{
    Settings settings("; mine\n[TITEL]\nfontNAME = \"Times New Roman\" \nFontsize=\nFontcolor=&H80000008\n"
                      "[Grafik]\nBildprint=0\n[Header]\nPrint=yes\n[Footer]\nPrint=2.5 x\n"
                      "[TitelKriterien]\nPrint=99999999\n[TitelAltersliste]\nPrint=-5\nNeueseite=1e300\n"
                      "[Altersliste]\nAbstand=12,5\n[Druckrand]\nLinks=567.4\nOben=1e300\nRechts=-20\nUnten=wide\n"
                      "[Format]\nAusrichtung=1\n[Spalten]\n1=500\n4=99999\n2=-7\n");
    settings.load();
    const FontTexts &title = settings.vorgaben.font(Titel);
    EXPECT_EQ(title.Fontname, "Times New Roman");
    EXPECT_EQ(title.Fontsize, "");
    EXPECT_EQ(title.Fontcolor, "&H80000008");
    EXPECT_EQ(title.Fontunderline, "#True#");
    EXPECT_EQ(settings.vorgaben.Bildprint, 0);
    EXPECT_EQ(settings.vorgaben.print(Header), 0);
    EXPECT_EQ(settings.vorgaben.print(Footer), 2); // half to even
    EXPECT_FALSE(settings.vorgaben.isPrinted(Footer));
    EXPECT_EQ(settings.vorgaben.print(TitelKriterien), 1); // out of range: the default
    EXPECT_EQ(settings.vorgaben.print(TitelAltersliste), -5);
    EXPECT_EQ(settings.vorgaben.print(NeueSeite), 1);
    EXPECT_EQ(settings.vorgaben.Abstand, 12);
    EXPECT_EQ(settings.page.left, 567);
    EXPECT_EQ(settings.page.top, 1440);
    EXPECT_EQ(settings.page.right, -20);
    EXPECT_EQ(settings.page.bottom, 0);
    EXPECT_TRUE(settings.page.landscape);
    EXPECT_EQ(ReportMeasures::read(settings.host).spaltenbreiten, (std::array<print::Twips, 3>{500, 1000, 3000}));

    // What was read is written back, and once more changes nothing.
    ASSERT_TRUE(settings.save());
    const QByteArray once = settings.bytes();
    EXPECT_TRUE(once.startsWith("; mine\n[TITEL]\nfontNAME = \"Times New Roman\" \nFontsize=\n"));
    const Druckvorgaben before = settings.vorgaben;
    settings.load();
    EXPECT_EQ(settings.vorgaben, before);
    ASSERT_TRUE(settings.save());
    EXPECT_EQ(settings.bytes(), once);
}

TEST(Druckvorgaben, FontTextsBecomeAStyleThatAPageCanTake)
{
    const QColor black(Qt::black), none;
    const struct {
        const char *size, *text, *ground;
        double points;
        QColor color, background;
    } rows[] = {
        {"8.25", "255", "16777215", 8.25, QColor(255, 0, 0), none}, // red stands in the low byte
        {"144", "16711680", "65280", 144, QColor(0, 0, 255), QColor(0, 255, 0)},
        {"0", "0", "0", 15, black, black},
        {"-3", "-1", "-1", 15, none, none},
        {"1e300", "16777216", "1e300", 15, none, none},
        {"", "", "", 15, none, none},
        {"big", "red", "white", 15, none, none},
    };
    Druckvorgaben vorgaben = defaultVorgaben();
    FontTexts &font = vorgaben.font(Titel);
    for (const auto &row : rows) {
        font.Fontname = u" "_s;
        font.Fontsize = QString::fromLatin1(row.size);
        font.Fontcolor = QString::fromLatin1(row.text);
        font.Backcolor = QString::fromLatin1(row.ground);
        const print::TextStyle style = pageStyle(vorgaben, Titel);
        EXPECT_EQ(style, (print::TextStyle{
                             .pointSize = row.points, .bold = true, .color = row.color, .background = row.background}))
            << row.size;
        EXPECT_TRUE(sampleStyle(font, Titel).underline); // which never reaches the page
        EXPECT_NO_THROW(print::PrintDocument().addStyle(style));
    }
    font.Fontstrikethru = u"wahr"_s;
    font.Fontbold = u"#True"_s;
    EXPECT_TRUE(pageStyle(vorgaben, Titel).strikeOut);
    EXPECT_FALSE(pageStyle(vorgaben, Titel).bold);
    EXPECT_EQ(settingsColorText(settingsColor(u"1193046"_s)), "1193046");
}

TEST(Druckvorgaben, ElementsEndAtTwenty)
{
    Druckvorgaben vorgaben;
    EXPECT_NO_THROW(vorgaben.font(20));
    for (const int index : {0, 21, -1})
        EXPECT_EQ(test::kindOf([&] { vorgaben.print(index); }), basic::ErrorKind::Subscript) << index;
}

TEST(Druckvorgaben, ReplacesMarginsThatLeaveNoRoom)
{
    const struct {
        int left, top, right, bottom;
        bool landscape, usable;
    } rows[] = {
        {0, 0, 0, 0, false, true},
        {4464, 6314, 4465, 6314, false, true},
        {4464, 0, 4466, 0, false, false},
        {4464, 0, 4466, 0, true, true},
        {0, 6000, 0, 6000, true, false},
        {-1, 0, 0, 0, false, false},
        {INT_MAX, 0, INT_MAX, 0, true, false},
    };
    for (const auto &row : rows) {
        print::PageSetup page{
            .landscape = row.landscape, .left = row.left, .top = row.top, .right = row.right, .bottom = row.bottom};
        bool replaced = false;
        const print::PageSetup usable = usablePage(page, &replaced);
        EXPECT_EQ(replaced, !row.usable) << row.left << ' ' << row.top;
        EXPECT_EQ(usable.left, row.usable ? row.left : 1440);
        EXPECT_EQ(usable.landscape, row.landscape);
        EXPECT_TRUE(leavesRoom(usable));
    }
}

TEST(Druckvorgaben, FiguresOfTheChartAndTheSpacingStayInTheirBounds)
{
    const struct {
        const char *text;
        double factor;
        int percent;
        print::Twips spacing;
    } rows[] = {{"", 3, 100, 0},   {"0", 3, 100, 0},     {"-3", 3, 100, 50},    {"2.5", 2.5, 100, 2},
                {"60", 3, 60, 60}, {"600", 3, 600, 600}, {"1e300", 3, 100, 50}, {"abc", 3, 100, 0}};
    for (const auto &row : rows) {
        const QByteArray value(row.text);
        Settings settings("[Grafik]\nFontfaktor=" + value + "\nBildgroesse=" + value +
                          "\n[Altersliste]\nAbstand=" + value);
        settings.load();
        EXPECT_EQ(settings.vorgaben.rowSpacing(), row.spacing) << row.text;
        Settings unseeded("[Grafik]\nFontfaktor=" + value + "\nBildgroesse=" + value);
        EXPECT_EQ(ReportMeasures::read(unseeded.host).fontfaktor, row.factor) << row.text;
        EXPECT_EQ(ReportMeasures::read(unseeded.host).bildprozent, row.percent) << row.text;
    }
}

} // namespace
