// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pagelayout.h"
#include "platform/print/richtextblocks.h"

#include "platform/basic/error.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

/// A page 6000 wide and 4000 high, without margins; a character of its fixed font is 120 wide.
struct Sheet : PrintDocument {
    Sheet()
    {
        page = {.left = 0, .top = 0, .right = 0, .bottom = 0};
        page.paperWidth = 6000;
        page.paperHeight = 4000;
        plain = addStyle({.family = u"Courier New"_s});
        bold = addStyle({.family = u"Courier New"_s, .bold = true});
        big = addStyle({.family = u"Courier New"_s, .pointSize = 20});
        ground = addStyle({.family = u"Courier New"_s, .background = Qt::yellow});
    }
    StyleId plain, bold, big, ground;
};

QImage image(int width, int height)
{
    QImage made(width, height, QImage::Format_ARGB32);
    made.fill(Qt::red);
    return made;
}

/// "text@x" of each piece, lines apart by " / ".
QString pieces(const Page &page)
{
    QStringList lines;
    float baseline = -1;
    for (const PlacedText &text : page.texts) {
        const QString piece = u"%1@%2"_s.arg(text.text).arg(qRound(text.x / 10) * 10);
        if (text.baseline == baseline)
            lines.back() += u' ' + piece;
        else
            lines << piece;
        baseline = text.baseline;
    }
    return lines.join(u" / ");
}

TEST(RichLayout, SetsRunsOnLines)
{
    const Sheet s;
    const QString words10 = u"abcd efgh "_s; // 1200 wide
    const struct {
        RichParagraph paragraph;
        QString pieces;
    } cases[] = {
        {{.runs = {}}, u""_s},
        {{.runs = {{u"ab"_s, s.plain}, {u"cd"_s, s.bold}, {u" ef"_s, s.plain}}}, u"ab@0 cd@240  ef@480"_s},
        {{.runs = {{words10.repeated(4), s.plain}, {u"ijklmnop-qr tail"_s, s.bold}}}, // 48 + 3 characters for 50
         u"abcd efgh abcd efgh abcd efgh abcd efgh @0 ijklmnop-@4800 / qr tail@0"_s},
        {{.runs = {{u"x"_s, s.plain}}, .alignment = Alignment::Right}, u"x@5880"_s},
        {{.runs = {{u"xx"_s, s.plain}}, .alignment = Alignment::Centre}, u"xx@2880"_s},
        {{.runs = {{u"a\tb\tc"_s, s.plain}}}, u"a@0 b@720 c@1440"_s},
        {{.runs = {{u"a\nb\r\nc"_s, s.plain}}, .leftIndent = 600, .hanging = 240}, u"a@360 / b@600 / c@600"_s},
        {{.runs = {{u"a\nb"_s, s.plain}}, .leftIndent = 600, .hanging = -240}, u"a@840 / b@600"_s},
        {{.runs = {{u"a\nb"_s, s.plain}}, .leftIndent = 600, .hanging = 300, .bullet = {u"-"_s, s.plain}},
         u"-@300 a@600 / b@600"_s},
        {{.runs = {{u"a"_s, s.plain}}, .leftIndent = 600, .hanging = 300, .bullet = {u"viii."_s, s.plain}},
         u"viii.@300 a@1020"_s},
        {{.runs = {{u"a"_s, s.plain}}, .leftIndent = 90000}, u"a@5280"_s},
    };
    for (const auto &c : cases) {
        Sheet sheet;
        sheet.add(c.paragraph);
        EXPECT_EQ(pieces(PageLayout(sheet).pages().at(0)), c.pieces);
    }
}

TEST(RichLayout, PutsDirectionsInTheirPlaces)
{
    Sheet sheet;
    sheet.add(RichParagraph{.runs = {{u"a שלום "_s, sheet.plain}, {u"עולם"_s, sheet.bold}, {u" b"_s, sheet.plain}}});
    const PageLayout layout(sheet);
    std::vector<PlacedText> texts = layout.pages().at(0).texts;
    std::sort(texts.begin(), texts.end(), [](const auto &a, const auto &b) { return a.x < b.x; });
    QStringList order;
    float end = 0;
    for (const PlacedText &text : texts) {
        order << text.text.trimmed();
        EXPECT_GE(text.x, end - 15) << qPrintable(text.text) << " lies on the one before it";
        end = text.x + text.width;
    }
    order.removeAll(QString());
    EXPECT_EQ(order, (QStringList{u"a"_s, u"עולם"_s, u"שלום"_s, u"b"_s}));
}

TEST(RichLayout, LinesOfALongTextAreFull)
{
    Sheet sheet;
    const QString word(10'010, u'x');
    const QString words = (u"abcd "_s.repeated(9) + u"abc "_s).repeated(300);
    const struct {
        QString text;
        QStringList lines;
    } rows[] = {{word, QStringList(204, QString(49, u'x')) << QString(14, u'x')},
                {words, QStringList(300, words.left(48))},
                {words + u'\n' + words, QStringList(600, words.left(48))}};
    for (const auto &row : rows) {
        PrintDocument document = sheet;
        RichParagraph paragraph;
        for (qsizetype i = 0; i < row.text.size(); i += 7)
            paragraph.runs.push_back({row.text.mid(i, 7), i % 2 == 0 ? sheet.plain : sheet.bold});
        document.add(paragraph);
        const PageLayout layout(document);
        QStringList lines;
        for (const Page &page : layout.pages()) {
            float baseline = -1;
            for (const PlacedText &placed : page.texts) {
                if (placed.baseline != baseline)
                    lines << QString();
                lines.back() += placed.text;
                baseline = placed.baseline;
            }
        }
        EXPECT_TRUE(lines == row.lines) << lines.join('\n').left(3'000).toStdString();
    }
}

TEST(RichLayout, SpreadsJustifiedLinesButTheLast)
{
    Sheet sheet;
    sheet.add(RichParagraph{.runs = {{u"aaaa bbbb "_s.repeated(5), sheet.plain}, {u"tail end\nnext"_s, sheet.bold}},
                            .alignment = Alignment::Justified});
    const PageLayout layout(sheet);
    const auto &texts = layout.pages().at(0).texts;
    std::vector<float> ends;
    for (const PlacedText &text : texts) {
        if (ends.empty() || text.x == 0)
            ends.push_back(0);
        ends.back() = text.x + text.width;
    }
    ASSERT_EQ(ends.size(), 3u);
    EXPECT_NEAR(ends[0], 6000, 15) << "flush";
    EXPECT_NEAR(ends[1], 8 * 120, 15) << "a line end does not spread its line";
    EXPECT_NEAR(ends[2], 4 * 120, 15);
}

TEST(RichLayout, LineIsAsHighAsItsTallestRunAndGroundsLieBehindWords)
{
    Sheet sheet;
    sheet.add(RichParagraph{.runs = {{u"a "_s, sheet.plain},
                                     {u"B\n"_s, sheet.big},
                                     {u"c"_s, sheet.plain},
                                     {u"de"_s, sheet.ground},
                                     {u"\nf"_s, sheet.plain}}});
    const PageLayout layout(sheet);
    const Page &page = layout.pages().at(0);
    const TextFace &plain = layout.faces()[static_cast<std::size_t>(sheet.plain)];
    const TextFace &big = layout.faces()[static_cast<std::size_t>(sheet.big)];
    EXPECT_NEAR(page.texts[0].baseline, big.ascent(), 1);
    EXPECT_NEAR(page.texts[1].baseline, big.ascent(), 1) << "one baseline";
    EXPECT_NEAR(page.texts[2].baseline, big.lineHeight() + plain.ascent(), 1);
    EXPECT_NEAR(page.texts.back().baseline, big.lineHeight() + plain.lineHeight() + plain.ascent(), 1);
    ASSERT_EQ(page.grounds.size(), 1u);
    EXPECT_NEAR(page.grounds[0].area.left(), 120, 10);
    EXPECT_NEAR(page.grounds[0].area.width(), 240, 10);
}

TEST(PictureLayout, FitsPageAndLineAndKeepsItsShape)
{
    const struct {
        Twips width, height;
        Alignment alignment;
        QRectF area;
    } cases[] = {
        {600, 300, Alignment::Left, {0, 0, 600, 300}},
        {600, 300, Alignment::Right, {5400, 0, 600, 300}},
        {600, 300, Alignment::Centre, {2700, 0, 600, 300}},
        {12000, 3000, Alignment::Centre, {0, 0, 6000, 1500}}, // wider than the line
        {6000, 8000, Alignment::Left, {0, 0, 3000, 4000}},    // higher than the page
        {60000, 80000, Alignment::Right, {3000, 0, 3000, 4000}},
    };
    for (const auto &c : cases) {
        Sheet sheet;
        sheet.add(Picture{.image = image(4, 4), .width = c.width, .height = c.height, .alignment = c.alignment});
        const PageLayout layout(sheet);
        ASSERT_EQ(layout.pages().size(), 1u);
        EXPECT_EQ(layout.pages()[0].pictures.at(0).area, c.area) << c.width;
    }
    Sheet sheet;
    EXPECT_THROW(sheet.add(Picture{.width = 100, .height = 100}), basic::Error);
    EXPECT_THROW(sheet.add(Picture{.image = image(4, 4), .width = 100}), basic::Error);
}

TEST(PictureLayout, IsNeverCutAndKeepsItsHeading)
{
    Sheet sheet;
    sheet.add(Paragraph{.text = u"before"_s, .style = sheet.plain, .spaceAfter = 100});
    sheet.add(Paragraph{.text = u"Chart"_s, .style = sheet.big, .keepWithNext = true, .outlineLevel = 1});
    sheet.add(Picture{.image = image(4, 4), .width = 4000, .height = 4000});
    sheet.add(RichParagraph{.runs = {{u"a  "_s, sheet.plain}, {u"b"_s, sheet.bold}}, .outlineLevel = 2});
    const PageLayout layout(sheet);
    ASSERT_EQ(layout.pages().size(), 3u);
    const Page &second = layout.pages()[1];
    const double heading = layout.faces()[static_cast<std::size_t>(sheet.big)].lineHeight();
    EXPECT_EQ(second.texts.at(0).text, u"Chart"_s);
    EXPECT_NEAR(second.pictures.at(0).area.top(), heading, 1);
    EXPECT_NEAR(second.pictures.at(0).area.bottom(), 4000, 1) << "made smaller to stay with its heading";
    EXPECT_EQ(second.headings.at(0).title, u"Chart"_s);
    EXPECT_EQ(layout.pages()[2].headings.at(0).title, u"a b"_s);
    EXPECT_EQ(layout.pages()[2].headings.at(0).level, 2);
}

TEST(OutlineLayout, NamesRowsOnceAndTableHeadingsNever)
{
    Sheet sheet;
    sheet.add(TableStart{{{}}, {{{.text = u"H"_s, .outlineLevel = 1}}}});
    for (int i = 0; i < 40; ++i)
        sheet.add(TableRow{{{.text = u"row"_s, .outlineLevel = i == 30 ? 1 : 0}}});
    const PageLayout layout(sheet);
    std::vector<std::size_t> pagesWithHeading;
    for (std::size_t i = 0; i < layout.pages().size(); ++i)
        pagesWithHeading.insert(pagesWithHeading.end(), layout.pages()[i].headings.size(), i);
    EXPECT_EQ(pagesWithHeading, (std::vector<std::size_t>{1}));
    EXPECT_THROW(sheet.add(Paragraph{.outlineLevel = 9}), basic::Error);
}

TEST(RichTextBlocks, TakeOverWhatTheTextSays)
{
    PrintDocument document;
    QTextDocument text;
    text.setDefaultFont(QFont(u"Arial"_s, 10));
    text.setHtml(u"<p align=justify style='margin:0'>one <b>bold</b> <span style='font:italic 14pt Times New Roman;"
                 "color:#102030;background:#ffff00'>x</span><u><s>y</s></u><br>next</p>"
                 "<ul><li>dot</li></ul><ol><li>first</li></ol>"_s);
    QTextBlockFormat format;
    format.setAlignment(Qt::AlignRight);
    format.setLeftMargin(20);
    QTextCursor end(&text);
    end.movePosition(QTextCursor::End);
    end.insertBlock(format);
    const std::vector<Block> blocks = richTextBlocks(text, document);
    ASSERT_EQ(blocks.size(), 4u);
    const auto paragraph = [&](std::size_t i) {
        return std::get<RichParagraph>(blocks.at(i));
    };
    const StyleId plain = document.addStyle({});
    const StyleId mark = document.addStyle({.family = u"Times New Roman"_s,
                                            .pointSize = 14,
                                            .italic = true,
                                            .color = QColor(0x10, 0x20, 0x30),
                                            .background = QColor(0xFF, 0xFF, 0)});
    const StyleId lines = document.addStyle({.underline = true, .strikeOut = true});
    EXPECT_EQ(paragraph(0), (RichParagraph{.runs = {{u"one "_s, plain},
                                                    {u"bold"_s, document.addStyle({.bold = true})},
                                                    {u" "_s, plain},
                                                    {u"x"_s, mark},
                                                    {u"y"_s, lines},
                                                    {u"\nnext"_s, plain}},
                                           .alignment = Alignment::Justified}));
    EXPECT_EQ(paragraph(1).bullet, (TextRun{u"•"_s, plain}));
    EXPECT_GT(paragraph(1).hanging, 0);
    EXPECT_EQ(paragraph(2).bullet.text, u"1."_s);
    EXPECT_EQ(paragraph(3).alignment, Alignment::Right);
    EXPECT_EQ(paragraph(3).leftIndent, 300);
    EXPECT_EQ(paragraph(3).runs.size(), 1u) << "an empty line has a style";
}

} // namespace
} // namespace kalvenor::print
