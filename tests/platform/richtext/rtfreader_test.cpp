// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfreader.h"

#include "platform/basic/error.h"
#include "platform/richtext/formats.h"
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace kalvenor::richtext;

namespace {

constexpr const char *Classic =
    R"({\rtf1\ansi\ansicpg1252\deff0\deftab720{\fonttbl{\f0\fswiss MS Sans Serif;}{\f1\froman\fcharset2 Symbol;}{\f2\fnil\fcharset204 Arial{\*\falt X};}}{\colortbl ;\red255\green0\blue0;\red0\green0\blue128;}\deflang1031)";

/// `body` in a document with the fonts and colours above.
QByteArray inClassic(const char *body)
{
    return QByteArray(Classic) + body + "}";
}

} // namespace

TEST(RtfReader, ReadsWhatControlsAndOfficeProgramsWrite)
{
    const struct {
        const char *body;
        const char *shown; ///< see described(); the font MS Sans Serif is left out
    } rows[] = {
        {R"(\pard\plain\f0\fs17 Text\par )", "[8.5]Text"},
        {R"(\pard a\b b\i c\b0 d\i0\ul e\uldb f\ulnone\strike g\strike0 h\par)", "a[b]b[b i]c[i]d[u]ef[s]gh"},
        {R"(a{\b\cf1 b{\i c}}\cf2\highlight1 d\plain e)", "a[b #ff0000]b[b i #ff0000]c[#000080 on #ff0000]de"},
        {R"(\pard\qc a\par\qr b\par\qj c\par\pard d\par)", "(centre)a|(right)b|(justified)c|d"},
        {R"(\pard\li300\fi-150 a\line b\par\par c)", "(20,-10)a/b|(20,-10)|(20,-10)c"},
        // bullets of a classic control, of Word (before \pard), numbers as text, levels
        {R"(\pard{\pntext\f1\'B7\tab}{\*\pn\pnlvlblt\pnf1\pnindent0{\pntxtb\'B7}}\fi-200\li200 a\par{\pntext\f1\'B7\tab}b\par\pard c)",
         "* a|* b|c"},
        {R"({\listtext\pard\plain\f1 \'b7\tab}\pard\fi-360\li720\ilvl0\ls1 a\par{\listtext o\tab}\pard\ilvl1\ls1\li1440 b\par)",
         "* a|** b"},
        {R"({\listtext 1.\tab}\pard\ls2 a\par\pard b)", "1.>a|b"},
        // characters
        {R"(\'fc\'80 \u8364?\u-10179?\u-8704?\uc2\u937 xy\uc0\u945 z\~\_\-\emdash\{\\\})",
         "ü€ €😀Ωαz\u00A0\u2011\u00AD—{\\}"},
        {R"({\f2\'cf\'f0\'e8}\f1 a\'b7\u-3913?\par)", "[Arial]При[]α••"},
        {R"(\uc1\u8217\rquote s\u8364{}x\u-10179?y)", "’s€x\uFFFDy"},
        // what stands for \uN elsewhere: characters, escaped ones, words for one; never a format, never behind a brace
        {R"(\u8364\b x\b0 {\u8364}y\u8364\'80z\uc3\u8364 ab\emdash c\uc2\u8364\{\~d)", "€[b]x[]€y€z€c€d"},
        {R"(\u65536?\u1114112?\u-1?\u99999999999?\u0?a)", "\U00010000a"},
        {"a\r\nb\\\nc\xfc", "ab|cü"},
        // what is not shown
        {R"(a{\*\unknown x{y}}{\pict 00ff}{\header h}\bin3 }}}{\field{\*\fldinst LINK}{\fldrslt b}}{\v no}c)", "abc"},
        {R"(\trowd\cellx1\intbl a\cell b\cell\row\intbl c\cell\cell\row\pard d)", "a>b|c|d"},
        {R"(a\line\lined )", "a/"},
        {R"(x\line{\pntext\f1\'B7\tab}a\line{\pntext\f1\'B7\tab}b)", "x|* a|* b"},
        {R"(\fs0 a\fs99999 b\fs1 c\cf99 d)", "a[800]b[1]cd"},
        {"", ""},
    };
    for (const auto &row : rows) {
        QTextDocument document;
        const RtfResult result = readRtf(inClassic(row.body), document);
        QString shown = test::described(document);
        shown.replace(u" MS Sans Serif"_s, QString())
            .replace(u"MS Sans Serif "_s, QString())
            .replace(u"[MS Sans Serif]"_s, QString());
        EXPECT_EQ(shown.toStdString(), QString::fromUtf8(row.shown).remove(u"[]"_s).toStdString()) << row.body;
        EXPECT_TRUE(result.isRtf);
        EXPECT_FALSE(result.damaged || result.tooLarge) << row.body;
    }
}

TEST(RtfReader, KnowsTheCodePagesOfTextsAndFonts)
{
    const struct {
        const char *rtf;
        const char *shown;
    } rows[] = {
        {R"({\rtf1\ansi \'80\'fc})", "€ü"},
        {R"({\rtf1\ansi\ansicpg1251 \'cf})", "П"},
        {R"({\rtf1\ansi\ansicpg9999 \'fc})", "ü"},
        {R"({\rtf1\mac \'8a\'a5})", "ä•"},
        {R"({\rtf1\pc \'81\'e3})", "üπ"},
        {R"({\rtf1\pca \'81\'e3})", "üÒ"},
        {R"({\rtf1{\fonttbl{\f0 A;}{\f1\fcharset238 B;}{\f2\fcharset161 C;}{\f3\fcharset77 D;}{\f4\cpg1250 E;}}\'e8\f1\'e8\f2\'e8\f3\'e8\f4\'e8})",
         "èčθËč"},
        {R"({\rtf1{\fonttbl{\f0\fcharset238 \'c8;}{\f1 Symbol;}{\f2\fcharset2 Wingdings;}}\f1 a\'b7\{\f2 a})", "α•{a"},
        {R"({\rtf1{\fonttbl{\f0\cpg65001 A;}}\'c3\'bc})", "ü"},
    };
    for (const auto &row : rows) {
        QTextDocument document;
        EXPECT_TRUE(readRtf(row.rtf, document).everythingShown()) << row.rtf;
        EXPECT_EQ(document.toPlainText().toStdString(), row.shown) << row.rtf;
    }
}

TEST(RtfReader, SaysWhatItLeavesOut)
{
    const struct {
        QByteArray text;
        bool rtf, damaged, pictures, tables, others;
    } rows[] = {
        {"{\\rtf1 a}", true, false, false, false, false},
        {"\xEF\xBB\xBF\r\n{\\rtf1 a}\0", true, false, false, false, false},
        {"{{\\colortbl;}\\rtf1 a}", true, false, false, false, false},
        {"{\\rtf1 a", true, true, false, false, false},
        {"{\\rtf1 a\\'zz}", true, true, false, false, false},
        {"{\\rtf1 a\\bin9 }", true, true, false, false, false},
        {"{\\rtf1 a} \r\n", true, false, false, false, false},
        {"{\\rtf1 a}} b}", true, true, false, false, false},
        {"{\\rtf1 a}b", true, true, false, false, false},
        {"{\\rtf1{\\field{\\*\\fldinst x}{\\fldrslt y}}{\\*\\bkmkstart z}{\\info w}}", true, false, false, false,
         false},
        {"{\\rtf1 a{\\*\\shppict{\\pict 00}}}", true, false, true, false, false},
        {"{\\rtf1\\trowd a\\cell\\row}", true, false, false, true, false},
        {"{\\rtf1{\\footnote x}}", true, false, false, false, true},
        {"a {\\rtf1", false, false, false, false, false},
        {"", false, false, false, false, false},
    };
    for (const auto &row : rows) {
        QTextDocument document;
        const RtfResult result = readRtf(row.text, document);
        EXPECT_TRUE(result.isRtf == row.rtf && result.damaged == row.damaged && result.pictures == row.pictures &&
                    result.tables == row.tables && result.others == row.others)
            << row.text.toStdString();
    }
}

TEST(RtfReader, TakesOtherTextsAsPlain)
{
    const struct {
        QByteArray text;
        const char *shown;
    } rows[] = {{"a\r\nb\\par", "a|b\\par"}, {"\xc3\xbc", "ü"}, {"\xfc", "ü"}, {QByteArray("\xff\xfe\xfc\0", 4), "ü"}};
    for (const auto &row : rows) {
        QTextDocument document;
        readRtf(row.text, document);
        EXPECT_EQ(document.toPlainText().replace(u'\n', u'|').toStdString(), row.shown);
    }
}

TEST(RtfReader, ReadsTheRestOfWhatIsDamaged)
{
    const QByteArray deep(498, '{'); // with the document's own group and one more: as deep as is kept
    const QByteArray up(498, '}');
    const struct {
        QByteArray body;
        const char *shown;
        bool damaged;
    } rows[] = {
        {"a\\bin3 }}}b\\bin0 c\\bin-5 d\\bin2}}e", "abcde", false},
        {"a\\bin99999999999 b", "a", true},
        {"a\\'4gb\\'zz\\'", "a4gbzz", true},
        {"a{\\*\\unknown\\par x{y\\par}}b{\\unknown c}{\\*}d", "abcd", false},
        {"a" + deep + "{b}" + up + "c", "abc", false},
        {"a" + deep + "{{b\\b{}}}" + up + "c", "ac", true},
        {"\\li99999999999\\fi-99999999999 a\\cf-1\\highlight-1\\f-1\\ilvl99\\uc-9\\u8364 b\\fs-3 c", "a€bc", false},
        {"{\\colortbl\\red999\\green-1;" + QByteArray(70'000, ';') + "}\\cf69999 a\\cf0 b", "ab", false},
        {"{\\fonttbl{\\f0 " + QByteArray(5'000, 'x') + ";}}a", "a", false},
    };
    for (const auto &row : rows) {
        QTextDocument document;
        EXPECT_EQ(readRtf("{\\rtf1 " + row.body + "}", document).damaged, row.damaged) << row.body.left(80).constData();
        EXPECT_EQ(document.toPlainText().toStdString(), row.shown) << row.body.left(80).constData();
    }
}

TEST(RtfReader, SaysWhereItStops)
{
    const RtfLimits limits{.characters = 40, .runs = 20, .paragraphs = 10};
    const struct {
        QByteArray text;
        bool tooLarge;
    } rows[] = {{"{\\rtf1 " + QByteArray(40, 'a') + "}", false},
                {"{\\rtf1 " + QByteArray(41, 'a') + "b}", true},
                {"{\\rtf1 " + QByteArray("\\b a\\b0 b").repeated(10) + "}", false},
                {"{\\rtf1 " + QByteArray("\\b a\\b0 b").repeated(11) + "}", true},
                {"{\\rtf1 " + QByteArray("\\par").repeated(10) + "}", false},
                {"{\\rtf1 " + QByteArray("\\par").repeated(11) + "}", true},
                {QByteArray(40, 'a'), false},
                {QByteArray(41, 'a'), true}};
    for (const auto &row : rows) {
        QTextDocument document;
        const RtfResult result = readRtf(row.text, document, limits);
        EXPECT_EQ(result.tooLarge, row.tooLarge) << row.text.constData();
        EXPECT_FALSE(result.damaged) << row.text.constData();
        QString message;
        try {
            readWholeRtf(row.text, document, u"/a/Vorwort.rtf"_s, limits);
        } catch (const kalvenor::basic::Error &error) {
            message = error.message();
        }
        EXPECT_EQ(message.contains("Vorwort.rtf") && message.contains("40"), row.tooLarge) << message.toStdString();
    }
}

TEST(RtfReader, ReadsALongTextToItsEnd)
{
    const QByteArray bullet = "{\\pntext\\'B7\\tab}x\\par ";
    for (const QByteArray &part : {QByteArray("\\b a\\b0 b"), bullet}) {
        QTextDocument document;
        EXPECT_TRUE(readRtf("{\\rtf1 " + part.repeated(3'000) + "ENDE}", document).everythingShown());
        EXPECT_TRUE(document.toPlainText().endsWith("ENDE"));
    }
}

TEST(RtfReader, KeepsInBytesWhatAStringHolds)
{
    EXPECT_EQ(rtfBytes(u"{\\rtf1 Ω?€\U0001F600}"_s), "{\\rtf1 \\u937??\x80\\u-10179?\\u-8704?}");
    EXPECT_EQ(rtfBytes(u"Ω"_s), "\xCE\xA9");
}

TEST(RtfReader, ReturnsFromEveryPrefixAndFromDeepNesting)
{
    const QByteArray whole =
        inClassic(R"(\pard\b a\u-10179?\'fc{\pntext\f1\'B7\tab}{\*\pn\pnlvlblt{\pntxtb\'B7}}x\cell\row\par\bin2 xx)");
    for (qsizetype length = 5; length < whole.size(); ++length) {
        QTextDocument document;
        EXPECT_TRUE(readRtf(whole.first(length), document).damaged) << length;
    }
    QTextDocument document;
    EXPECT_TRUE(readRtf("{\\rtf1 " + QByteArray(1'000'000, '{') + "x", document).damaged);
}
