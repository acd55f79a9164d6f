// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/export/rtfanpassen.h"

#include "platform/basic/error.h"
#include "platform/richtext/rtfreader.h"
#include <gtest/gtest.h>
#include <limits>
#include <QTextBlock>
#include <QTextDocument>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::report;

namespace {

constexpr const char *Head = R"({\rtf1\ansi\ansicpg1252\deff0\deflang1031{\fonttbl{\f0\fnil\fcharset0 Arial;}})";
constexpr const char *Black =
    R"({{\colortbl\red0\green0\blue0;\red255\green0\blue0;\red0\green0\blue128;}\rtf1\ansi\ansicpg1252\deff0\deflang1031{\fonttbl{\f0\fnil\fcharset0 Arial;}})";

} // namespace

TEST(Rtfanpassen, RewritesBluntly)
{
    const QString line = u"\r\n"_s;
    const struct {
        const char *in; ///< behind the head
        double scale;
        const char *out; ///< behind head and colour table; without line ends
    } rows[] = {
        {R"(\fs20 a_b\par c})", 1, R"(\viewkind4\uc1\lined\f0\fs20 a b\linec\line})"},
        {R"(\fs20 a\fs17\b b\par})", 2, R"(\viewkind4\uc1\lined\f0\fs40 a\b\fs34 b\line})"},
        {R"(\fs17 a\par})", 1.5, R"(\viewkind4\uc1\lined\f0\fs25.5 a\line})"},
        {R"(\fs20 a\par})", 0, R"(\viewkind4\uc1\lined\f0\fs0 a\line})"},
        {R"(\fs20\qc \\fs9 \\par\_x\par\pard y})", 1,
         R"(\viewkind4\uc1\lined\qc\f0\fs20\'5cfs9 \'5cpar\u8209?x\line\lined y\line})"},
        {R"(\fs0 a})", 2, R"(\viewkind4\uc1\lined\f0\fs48 a\line})"},
    };
    for (const auto &row : rows) {
        QString rtf = QLatin1String(Head) + QLatin1String(row.in);
        rtfanpassen(7, rtf, row.scale);
        EXPECT_EQ(rtf.remove(line).toStdString(), std::string(Black) + row.out);
    }
}

TEST(Rtfanpassen, KeepsColoursAndBlankTexts)
{
    QString colored = QLatin1String(Head) + uR"({\colortbl ;\red1\green2\blue3;}\cf1 a})"_s;
    rtfanpassen(0, colored);
    EXPECT_TRUE(colored.startsWith(u"{\\rtf1"_s));
    EXPECT_EQ(colored.count(u"colortbl"_s), 1);

    for (const char *blank : {"", "   ", "{\\rtf1\\fs20   \\par}", "{\\rtf1}"}) {
        QString rtf = QLatin1String(blank);
        rtfanpassen(0, rtf, 2);
        EXPECT_EQ(rtf, QLatin1String(blank));
    }
    QString text = u"a"_s;
    EXPECT_THROW(rtfanpassen(0, text, std::numeric_limits<double>::infinity()), basic::Error);
    EXPECT_EQ(text, "a");
}

TEST(Rtfanpassen, ResultIsStillReadAsWritten)
{
    QString rtf = QLatin1String(Head) +
                  uR"(\fs20\b Titel\b0\par {\pntext\'B7\tab}\li200 eins\par{\pntext\'B7\tab}zwei \u8364?\par})"_s;
    rtfanpassen(0, rtf);
    QTextDocument document;
    EXPECT_TRUE(richtext::readRtf(richtext::rtfBytes(rtf), document).everythingShown());
    EXPECT_EQ(document.toPlainText().toStdString(), "Titel\neins\nzwei €\n");
    EXPECT_NE(document.findBlockByNumber(2).textList(), nullptr);
    const QTextCharFormat first = document.firstBlock().begin().fragment().charFormat();
    EXPECT_EQ(first.background().style(), Qt::NoBrush) << "black in the table is no ground of the text";

    QString plain = u"Ω_ü"_s;
    rtfanpassen(0, plain);
    richtext::readRtf(richtext::rtfBytes(plain), document);
    EXPECT_EQ(document.toPlainText(), u"Ω ü\n"_s);
}
