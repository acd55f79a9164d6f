// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/number.h"

#include <cmath>
#include <limits>
#include <optional>

#include <gtest/gtest.h>

#include "platform/basic/text.h"
#include "support/errors.h"

using namespace kalvenor::basic;

using kalvenor::test::kindOf;

TEST(Number, LeadingNumber)
{
    const struct {
        const char16_t *text;
        double value;
    } rows[] = {
        {u"", 0},
        {u"abc", 0},
        {u"24 and 57", 24},
        {u"1,5", 1},
        {u"1.5", 1.5},
        {u"1.5.7", 1.5},
        {u"1615 198th", 1615198},
        {u" 1", 1},
        {u"1\t2\r\n3", 123},
        {u"1\v2", 1},
        {u"1e", 1},
        {u"1e+", 1},
        {u"1e3", 1000},
        {u"1E 3", 1000},
        {u"1d-2", .01},
        {u"1D2x", 100},
        {u"- 5", -5},
        {u"+5", 5},
        {u"--5", 0},
        {u".5", .5},
        {u"-.5", -.5},
        {u"5.", 5},
        {u".", 0},
        {u"-", 0},
        {u".e5", 0},
        {u"e5", 0},
        {u"&HFFFF", -1},
        {u"&HFFFF&", 65535},
        {u"& h 1 0", 16},
        {u"&H8000", -32768},
        {u"&H10000", 65536},
        {u"&HFFFFFFFF", -1},
        {u"&H7FFF", 32767},
        {u"&O17", 15},
        {u"&o18", 1},
        {u"&O177777", -1},
        {u"&H", 0},
        {u"&17", 0},
        {u"1\u00A02", 1},
        {u"\u0661", 0},
        {u"\u0131", 0},
        {u"1e400", std::numeric_limits<double>::infinity()},
        {u"1e-400", 0},
    };
    for (const auto &row : rows)
        EXPECT_EQ(leadingNumber(row.text), row.value) << QStringView(row.text).toUtf8().constData();
}

TEST(Number, Text)
{
    const struct {
        double value;
        const char *text;
    } rows[] = {
        {0, " 0"},
        {-0.0, " 0"},
        {1, " 1"},
        {-1, "-1"},
        {12.3, " 12.3"},
        {.5, " .5"},
        {-.5, "-.5"},
        {.05, " .05"},
        {100, " 100"},
        {1.0 / 3, " .333333333333333"},
        {2.0 / 3, " .666666666666667"},
        {.1 + .2, " .3"},
        {1e-4, " .0001"},
        {9.9e-5, " 9.9E-05"},
        {1e-5, " 1E-05"},
        {123456789012345, " 123456789012345"},
        {999999999999999, " 999999999999999"},
        {999999999999999.9, " 1E+15"},
        {1e15, " 1E+15"},
        {-1.25e100, "-1.25E+100"},
        {123456789.987654321, " 123456789.987654"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(numberText(row.value).toStdString(), row.text);
        EXPECT_EQ(trimmedNumberText(row.value).toStdString(), QString(row.text).trimmed().toStdString());
    }
}

TEST(Number, Rounding)
{
    const struct {
        double value;
        std::optional<int> rounded;
    } rows[] = {
        {.5, 0},          {1.5, 2},      {2.5, 2},           {-.5, 0},     {-1.5, -2},
        {32767.4, 32767}, {32767.5, {}}, {-32768.5, -32768}, {-32769, {}}, {std::nan(""), {}},
    };
    for (const auto &row : rows) {
        if (row.rounded)
            EXPECT_EQ(toInteger16(row.value), *row.rounded) << row.value;
        else
            EXPECT_EQ(kindOf([&] { toInteger16(row.value); }), ErrorKind::Overflow) << row.value;
    }
    EXPECT_EQ(toLong32(2147483647.4), 2147483647);
    EXPECT_EQ(kindOf([] { toLong32(2147483647.5); }), ErrorKind::Overflow);
    EXPECT_EQ(toLong32(-2147483648.5), std::numeric_limits<qint32>::min());

    EXPECT_EQ(toCurrency(.03125), .0312);
    EXPECT_EQ(toCurrency(.09375), .0938);
    EXPECT_EQ(toCurrency(-2.71828), -2.7183);
    EXPECT_EQ(kindOf([] { toCurrency(922337203685478); }), ErrorKind::Overflow);
    EXPECT_EQ(kindOf([] { toCurrency(std::nan("")); }), ErrorKind::Overflow);
}

TEST(Number, WholeTextMustBeANumber)
{
    EXPECT_EQ(textToInteger16(u" 42 "), 42);
    EXPECT_EQ(textToInteger16(u"-2.5"), -2);
    EXPECT_EQ(textToInteger16(u"&H10"), 16);
    for (const char16_t *text : {u"", u" ", u"4 2", u"42x", u"x42", u"1e", u"&", u"&H", u"&17"})
        EXPECT_EQ(kindOf([&] { textToInteger16(text); }), ErrorKind::TypeMismatch)
            << QStringView(text).toUtf8().constData();
    EXPECT_EQ(kindOf([] { textToInteger16(u"40000"); }), ErrorKind::Overflow);
}

TEST(Text, Cutting)
{
    EXPECT_EQ(leftPart(u"abc", 2), u"ab");
    EXPECT_EQ(leftPart(u"abc", 9), u"abc");
    EXPECT_EQ(rightPart(u"abc", 2), u"bc");
    EXPECT_EQ(rightPart(u"abc", 0), u"");
    EXPECT_EQ(midPart(u"abc", 2), u"bc");
    EXPECT_EQ(midPart(u"abc", 2, 1), u"b");
    EXPECT_EQ(midPart(u"abc", 3, 9), u"c");
    EXPECT_EQ(midPart(u"abc", 4), u"");
    EXPECT_EQ(midPart(u"abc", 99, 1), u"");
    EXPECT_EQ(trimBlanks(u"  a b\t "), u"a b\t");
    EXPECT_EQ(trimBlanks(u"\u00A0  "), u"\u00A0");
    EXPECT_EQ(padRight(u"ab", 4), u"ab  ");
    EXPECT_EQ(padRight(u"abcde", 4), u"abcde");

    const auto refused = ErrorKind::InvalidProcedureCall;
    EXPECT_EQ(kindOf([] { leftPart(u"abc", -1); }), refused);
    EXPECT_EQ(kindOf([] { rightPart(u"abc", -1); }), refused);
    EXPECT_EQ(kindOf([] { midPart(u"abc", 0); }), refused);
    EXPECT_EQ(kindOf([] { midPart(u"abc", 1, -1); }), refused);
}
