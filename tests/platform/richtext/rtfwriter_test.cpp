// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfwriter.h"

#include "platform/richtext/formats.h"
#include "platform/richtext/rtfcharacters.h"
#include "platform/richtext/rtftables.h"
#include "platform/richtext/rtfwords.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kalvenor::richtext;

namespace {

constexpr const char *HtmlSource =
    "<p align=center><b>Tit\"el_\\fs9</b> <span style='font-size:8.5pt;font-family:My_Font'>klein</span></p><p></p>"
    "<ul><li>eins<li><i>zwei</i><ul><li>tief</ul></ul>"
    "<p style='color:#ff0000;background:#00ff00'>{\xE2\x82\xAC\xCE\xA9\xF0\x9F\x98\x80\xC2\xA0\xC2\xAD}<br>neu</p>";

} // namespace

TEST(RtfWriter, WritesTheClassicForm)
{
    QTextDocument document;
    document.setDefaultFont(QFont(u"Arial"_s, 10));
    EXPECT_EQ(writeRtf(document), "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031{\\fonttbl{\\f0\\fnil\\fcharset0 "
                                  "Arial;}}\r\n\\viewkind4\\uc1\\pard\\f0\\fs20\\par\r\n}\r\n");
    document.setHtml(QString::fromUtf8(HtmlSource));
    const QByteArray rtf = writeRtf(document);
    for (const char *part :
         {"\\qc\\b\\f0\\fs20 Tit\\'22el_\\'5cfs9\\b0  ", "\\fnil\\fcharset0 My\\'5fFont;", "\\fs17 klein",
          "{\\*\\pn\\pnlvlblt\\pnf2", "\\i zwei\\par", "\\li1200", "\\{\\'80\\u937?\\u-10179?\\u-8704?\\~\\-\\}"})
        EXPECT_TRUE(rtf.contains(part)) << part << "\n" << rtf.toStdString();
    EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](char c) { return c > 0; }));
}

TEST(RtfWriter, IsReadAgainAsItWas)
{
    QTextDocument document;
    document.setHtml(QString::fromUtf8(HtmlSource));
    const QByteArray rtf = writeRtf(document);
    QTextDocument again;
    EXPECT_TRUE(readRtf(rtf, again).everythingShown());
    EXPECT_EQ(again.toPlainText(), document.toPlainText());
    EXPECT_EQ(writeRtf(again).toStdString(), rtf.toStdString());
    EXPECT_EQ(again.findBlockByNumber(3).textList()->format().indent(), 2);
}

TEST(RtfWriter, KeepsEveryCharacter)
{
    QString all;
    for (char16_t unit = 0x20; unit < 0xFFFF; ++unit) {
        if (!QChar::isSurrogate(unit))
            all += QChar(unit);
    }
    all = shownCharacters(all);
    QByteArray rtf = "{\\rtf1 ";
    for (const QChar c : all)
        appendRtf(rtf, c.unicode());
    QTextDocument document;
    EXPECT_TRUE(readRtf(rtf + '}', document).everythingShown());
    EXPECT_EQ(document.firstBlock().text(), all);
    QTextDocument again;
    readRtf(writeRtf(document), again);
    EXPECT_EQ(again.firstBlock().text(), all);
}

TEST(RtfTables, NumberFontsAndColours)
{
    RtfFonts fonts;
    EXPECT_EQ(fonts.place(u"Arial"_s), 0);
    EXPECT_EQ(fonts.symbols(), 1);
    EXPECT_EQ(fonts.place(u"Symbol"_s, "froman"), 2) << "chosen by somebody, not for bullets";
    EXPECT_EQ(fonts.place(u" {A\\rial;}\u0007"_s), 0);
    EXPECT_EQ(fonts.place(u"{;}"_s), -1);
    EXPECT_EQ(fonts.table(),
              R"({\fonttbl{\f0\fnil\fcharset0 Arial;}{\f1\fnil\fcharset2 Symbol;}{\f2\froman\fcharset0 Symbol;}})");
    RtfColors colors;
    EXPECT_EQ(colors.place(qRgb(1, 2, 3)), 1);
    EXPECT_EQ(colors.place(qRgb(4, 5, 6)), 2);
    EXPECT_EQ(colors.place(qRgb(1, 2, 3)), 1);
    EXPECT_EQ(colors.entries(), R"(\red1\green2\blue3;\red4\green5\blue6;)");
}

TEST(RtfWriter, IsReadByAnOfficeProgram)
{
    const QString soffice = QStandardPaths::findExecutable(u"soffice"_s);
    if (soffice.isEmpty())
        GTEST_SKIP() << "soffice is missing (apt-get install libreoffice-writer-nogui)";
    QTextDocument document;
    document.setHtml(QString::fromUtf8(HtmlSource));
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a.rtf"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(writeRtf(document));
    file.close();
    QProcess office;
    office.start(soffice, {u"-env:UserInstallation=file://"_s + folder.filePath(u"profile"_s), u"--headless"_s,
                           u"--convert-to"_s, u"html"_s, u"--outdir"_s, folder.path(), file.fileName()});
    ASSERT_TRUE(office.waitForFinished(120'000));
    QFile made(folder.filePath(u"a.html"_s));
    ASSERT_TRUE(made.open(QIODevice::ReadOnly)) << office.readAllStandardError().toStdString();
    QTextDocument shown;
    shown.setHtml(QString::fromUtf8(made.readAll()));
    const QRegularExpression blanks(u"\\s"_s);
    EXPECT_EQ(shown.toPlainText().remove(blanks).toStdString(), document.toPlainText().remove(blanks).toStdString());
    EXPECT_TRUE(test::described(shown).contains(u"* "_s));
}
