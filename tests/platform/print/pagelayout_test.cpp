// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "../../support/columns.h"
#include "platform/print/pagelayout.h"

#include "platform/basic/error.h"
#include "support/errors.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

/// Ten lines of the default style fit on its page.
PrintDocument tenLinePage()
{
    PrintDocument document;
    document.page = {.left = 0, .top = 0, .right = 0, .bottom = 0};
    document.page.paperWidth = 5000;
    document.page.paperHeight = static_cast<int>(TextFace({}).lineHeight() * 10) + 20;
    return document;
}

QStringList texts(const Page &page)
{
    QStringList list;
    for (const PlacedText &text : page.texts)
        list << text.text;
    return list;
}

std::vector<QStringList> texts(const PrintDocument &document)
{
    std::vector<QStringList> list;
    const PageLayout layout(document);
    for (const Page &page : layout.pages())
        list.push_back(texts(page));
    return list;
}

QStringList numbers(int first, int last)
{
    QStringList list;
    for (int i = first; i <= last; ++i)
        list << QString::number(i);
    return list;
}

void addRows(PrintDocument &document, int first, int last)
{
    for (const QString &text : numbers(first, last))
        document.add(TableRow{{{text}}});
}

TEST(PageLayout, EmptyDocumentIsOnePageWithHeaderAndFooter)
{
    PrintDocument document;
    EXPECT_EQ(texts(document), std::vector<QStringList>{{}});
    document.header.text = u"a|%d|b"_s;
    document.footer.text = u"||%d"_s;
    document.add(PageBreak{});
    EXPECT_EQ(texts(document),
              (std::vector<QStringList>{{u"a"_s, u"1"_s, u"b"_s, u"1"_s}, {u"a"_s, u"2"_s, u"b"_s, u"2"_s}}));
}

TEST(PageLayout, HeadingStandsOnEachPageOfItsTable)
{
    PrintDocument document = tenLinePage();
    document.add(TableStart{{{}}, {{{u"H"_s}}}});
    addRows(document, 1, 20);
    document.add(Paragraph{u"end"_s});
    document.add(PageBreak{});
    document.add(Paragraph{u"after"_s});
    const QStringList h{u"H"_s};
    EXPECT_EQ(texts(document),
              (std::vector<QStringList>{
                  h + numbers(1, 9), h + numbers(10, 18), h + numbers(19, 20) + QStringList{u"end"_s}, {u"after"_s}}));
}

TEST(PageLayout, NothingIsOrphaned)
{
    const Paragraph heading{.text = u"H"_s, .keepWithNext = true};
    const auto document = [](int linesBefore) {
        PrintDocument d = tenLinePage();
        for (const QString &text : numbers(1, linesBefore))
            d.add(Paragraph{text});
        return d;
    };
    { // a heading with its text
        PrintDocument d = document(9);
        d.add(heading);
        d.add(Paragraph{u"text"_s});
        EXPECT_EQ(texts(d), (std::vector<QStringList>{numbers(1, 9), {u"H"_s, u"text"_s}}));
    }
    { // a heading above a table, its heading and its first row; the heading stands once on the new page
        PrintDocument d = document(8);
        d.add(heading);
        d.add(TableStart{{{}}, {{{u"T"_s}}}});
        addRows(d, 1, 2);
        EXPECT_EQ(texts(d), (std::vector<QStringList>{numbers(1, 8), {u"H"_s, u"T"_s, u"1"_s, u"2"_s}}));
    }
    { // first and last lines of paragraphs
        PrintDocument d = document(9);
        d.add(Paragraph{u"a\nb\nc\nd"_s});
        EXPECT_EQ(texts(d), (std::vector<QStringList>{numbers(1, 9), {u"a"_s, u"b"_s, u"c"_s, u"d"_s}}));
        d = document(7);
        d.add(Paragraph{u"a\nb\nc\nd"_s});
        EXPECT_EQ(texts(d), (std::vector<QStringList>{numbers(1, 7) + QStringList{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}}));
    }
    { // a row of several lines stays together, unless no page can hold it
        PrintDocument d = document(9);
        d.add(TableStart{{{}, {}}});
        d.add(TableRow{{{u"a\nb"_s}, {u"c"_s}}});
        EXPECT_EQ(texts(d), (std::vector<QStringList>{numbers(1, 9), {u"a"_s, u"c"_s, u"b"_s}}));
        d = document(1);
        d.add(TableStart{{{}}});
        d.add(TableRow{{{numbers(1, 25).join(u'\n')}}});
        EXPECT_EQ(texts(d),
                  (std::vector<QStringList>{numbers(1, 1), numbers(1, 10), numbers(11, 20), numbers(21, 25)}));
    }
    { // a heading that would fill the pages is not repeated
        PrintDocument d = tenLinePage();
        d.add(TableStart{{{}}, {{{numbers(1, 6).join(u'\n')}}}});
        addRows(d, 7, 12);
        EXPECT_EQ(texts(d), (std::vector<QStringList>{numbers(1, 10), numbers(11, 12)}));
    }
}

TEST(PageLayout, SpaceIsLeftOutAtTheTopOfAPage)
{
    PrintDocument document = tenLinePage();
    document.add(Paragraph{.text = u"a"_s, .spaceBefore = 1000, .spaceAfter = 300});
    document.add(Paragraph{.text = u"b"_s, .spaceBefore = 200});
    document.add(PageBreak{});
    document.add(Paragraph{.text = u"c"_s, .spaceBefore = 1000});
    const PageLayout layout(document);
    const auto baseline = [&](std::size_t page, std::size_t text) {
        return static_cast<double>(layout.pages().at(page).texts.at(text).baseline);
    };
    const TextFace &face = layout.faces()[0];
    EXPECT_NEAR(baseline(0, 0), face.ascent(), 0.1);
    EXPECT_NEAR(baseline(0, 1) - baseline(0, 0), face.lineHeight() + 500, 0.1);
    EXPECT_NEAR(baseline(1, 0), face.ascent(), 0.1);
}

TEST(PageLayout, TextsNeitherMeetNorLeaveTheirLine)
{
    const QString name = u"Freifrau von Hohenstaufen-Wittelsbach zu Oberunterbach, Anna Maria Theresia Katharina"_s;
    for (const char16_t *format :
         {u"<2000|^2000|>1000", u"<9000|^9000|>3000", u"=0|>0|0", u"<9000|0|>0", u"0|=2000|0"}) {
        for (const Overflow overflow : {Overflow::Wrap, Overflow::Elide}) {
            PrintDocument document;
            document.page.paperWidth = 8000;
            if (overflow == Overflow::Elide) {
                document.header.text = QStringList{name, name, name}.join(u'|');
                document.footer.text = QStringList{name, QString(), name}.join(u'|');
            }
            std::vector<Column> columns = test::columns(format);
            for (Column &column : columns)
                column.overflow = overflow;
            document.add(TableStart{columns});
            document.add(TableRow{{{name}, {name}, {name}}});
            const PageLayout layout(document);
            std::vector<PlacedText> line;
            QString all;
            for (const Page &page : layout.pages()) {
                line.insert(line.end(), page.texts.begin(), page.texts.end());
                for (const PlacedText &text : page.texts)
                    all += text.text;
            }
            for (const PlacedText &text : line) {
                EXPECT_GE(text.x, 1440 - 1);
                EXPECT_LE(text.x + text.width, 8000 - 1080 + 1) << qPrintable(text.text);
                for (const PlacedText &other : line) {
                    const bool sameLine = text.baseline == other.baseline && text.x < other.x;
                    EXPECT_FALSE(sameLine && text.x + text.width > other.x + 1)
                        << qPrintable(text.text) << " / " << qPrintable(other.text);
                }
            }
            if (overflow == Overflow::Wrap) {
                QString whole = name.repeated(3);
                EXPECT_EQ(all.remove(u' ').size(), whole.remove(u' ').size()) << "a wrapped text lost something";
            }
        }
    }
}

TEST(PageLayout, SaysWhatCannotBe)
{
    PrintDocument narrow;
    narrow.page.left = 11000;
    PrintDocument offPaper;
    offPaper.page.top = -1;
    PrintDocument huge;
    huge.add(Paragraph{u"A"_s, huge.addStyle({.pointSize = LargestPointSize})});
    for (const PrintDocument *document : {&narrow, &offPaper, &huge})
        EXPECT_THROW(PageLayout layout(*document), basic::Error);
}

TEST(PageLayout, CanBeStopped)
{
    PrintDocument document = tenLinePage();
    document.add(TableStart{{{}}});
    addRows(document, 1, 5000);
    qint64 last = 0;
    const auto watch = [&](qint64 done, qint64 total) {
        EXPECT_EQ(total, 5001);
        last = done;
        return done < 2000;
    };
    EXPECT_EQ(kalvenor::test::kindOf([&] { const PageLayout layout(document, watch); }), basic::ErrorKind::Cancelled);
    EXPECT_LT(last, 4000);
}

} // namespace
} // namespace kalvenor::print
