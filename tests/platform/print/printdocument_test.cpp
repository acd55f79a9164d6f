// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/printdocument.h"

#include "platform/basic/error.h"

#include <gtest/gtest.h>
#include <limits>

namespace kalvenor {
namespace {

TEST(RunningText, SplitsAtBarsAndNumbersPages)
{
    const struct {
        QString text;
        QStringList parts;
    } cases[] = {
        {u""_qs, {u""_qs, u""_qs, u""_qs}},
        {u"left"_qs, {u"left"_qs, u""_qs, u""_qs}},
        {u"left|centre|right"_qs, {u"left"_qs, u"centre"_qs, u"right"_qs}},
        {u"||%d"_qs, {u""_qs, u""_qs, u"12"_qs}},
        {u"%d/%d|Seite %d"_qs, {u"12/12"_qs, u"Seite 12"_qs, u""_qs}},
        {u"a|b|c|d"_qs, {u"a"_qs, u"b"_qs, u"c|d"_qs}},
        {u"100 %|%D|%"_qs, {u"100 %"_qs, u"%D"_qs, u"%"_qs}},
    };
    for (const auto &c : cases) {
        const auto parts = runningTextParts(c.text, 12);
        EXPECT_EQ(QStringList(parts.begin(), parts.end()), c.parts) << qPrintable(c.text);
    }
}

TEST(ColumnFormat, ReadsSignsAndWidths)
{
    const std::vector<Column> expected{
        {Alignment::Left, 4000},   {Alignment::Centre, 1200}, {Alignment::Right, 900},
        {Alignment::Justified, 0}, {Alignment::Left, 5},
    };
    EXPECT_EQ(columnsFromFormat(u"<4000|^1200| >900 |=0|5"), expected);
    for (const QString &bad : {u""_qs, u"<"_qs, u"<12|"_qs, u"<x"_qs, u"<-5"_qs, u"<1.5"_qs, u"<99999999999"_qs})
        EXPECT_THROW(columnsFromFormat(bad), Error) << qPrintable(bad);
}

TEST(PrintDocument, SharesEqualStyles)
{
    PrintDocument document;
    EXPECT_EQ(document.addStyle({}), 0);
    const StyleId bold = document.addStyle({.bold = true});
    EXPECT_NE(bold, 0);
    EXPECT_EQ(document.addStyle({.bold = true}), bold);
    for (const double size : {0.0, -3.0, 801.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_THROW(document.addStyle({.pointSize = size}), Error) << size;
}

TEST(PrintDocument, RefusesBlocksThatCannotStand)
{
    const TableRow two{{{u"a"_qs}, {u"b"_qs}}};
    PrintDocument document;
    EXPECT_THROW(document.add(two), Error);
    document.add(TableStart{{{}, {}}});
    document.add(two);
    document.add(PageBreak{});
    document.add(two); // a page break does not end the table
    EXPECT_THROW(document.add(TableRow{{{}, {}, {}}}), Error);
    EXPECT_THROW(document.add(TableRow{{{u"a"_qs, 1}}}), Error);
    EXPECT_THROW(document.add(TableStart{}), Error);
    EXPECT_THROW(document.add((TableStart{{{Alignment::Left, -1}}})), Error);
    EXPECT_THROW(document.add((TableStart{{{}}, {{{}, {}}}})), Error);
    EXPECT_THROW(document.add((Paragraph{u"a"_qs, -1})), Error);
    EXPECT_THROW(document.add((Paragraph{.spaceBefore = -1})), Error);
    document.add(Paragraph{u"text"_qs});
    EXPECT_THROW(document.add(two), Error);
    EXPECT_EQ(document.blocks().size(), 5u) << "a refused block is not kept";
}

} // namespace
} // namespace kalvenor
