// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/printdocument.h"

#include "platform/basic/error.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

TEST(RunningText, SplitsAtBarsAndNumbersPages)
{
    const struct {
        QString text;
        QStringList parts;
    } cases[] = {
        {u""_s, {u""_s, u""_s, u""_s}},
        {u"left"_s, {u"left"_s, u""_s, u""_s}},
        {u"left|centre|right"_s, {u"left"_s, u"centre"_s, u"right"_s}},
        {u"||%d"_s, {u""_s, u""_s, u"12"_s}},
        {u"%d/%d|Seite %d"_s, {u"12/12"_s, u"Seite 12"_s, u""_s}},
        {u"a|b|c|d"_s, {u"a"_s, u"b"_s, u"c|d"_s}},
        {u"100 %|%D|%"_s, {u"100 %"_s, u"%D"_s, u"%"_s}},
    };
    for (const auto &c : cases) {
        const auto parts = runningTextParts(c.text, 12);
        EXPECT_EQ(QStringList(parts.begin(), parts.end()), c.parts) << qPrintable(c.text);
    }
}

TEST(PrintDocument, SharesEqualStyles)
{
    PrintDocument document;
    EXPECT_EQ(document.addStyle({}), 0);
    const StyleId bold = document.addStyle({.bold = true});
    EXPECT_NE(bold, 0);
    EXPECT_EQ(document.addStyle({.bold = true}), bold);
    for (const double size : {0.0, -3.0, 801.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_THROW(document.addStyle({.pointSize = size}), basic::Error) << size;
}

TEST(PrintDocument, RefusesBlocksThatCannotStand)
{
    const TableRow two{{{u"a"_s}, {u"b"_s}}};
    PrintDocument document;
    EXPECT_THROW(document.add(two), basic::Error);
    document.add(TableStart{{{}, {}}});
    document.add(two);
    document.add(PageBreak{});
    document.add(two); // a page break does not end the table
    EXPECT_THROW(document.add(TableRow{{{}, {}, {}}}), basic::Error);
    EXPECT_THROW(document.add(TableRow{{{u"a"_s, 1}}}), basic::Error);
    EXPECT_THROW(document.add(TableStart{}), basic::Error);
    EXPECT_THROW(document.add((TableStart{{{Alignment::Left, -1}}})), basic::Error);
    EXPECT_THROW(document.add((TableStart{{{}}, {{{}, {}}}})), basic::Error);
    EXPECT_THROW(document.add((Paragraph{u"a"_s, -1})), basic::Error);
    EXPECT_THROW(document.add((Paragraph{.spaceBefore = -1})), basic::Error);
    document.add(Paragraph{u"text"_s});
    EXPECT_THROW(document.add(two), basic::Error);
    EXPECT_EQ(document.blocks().size(), 5u) << "a refused block is not kept";
}

} // namespace
} // namespace kalvenor::print
