// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/codepage.h"

#include <gtest/gtest.h>

using namespace kalvenor::basic;

TEST(CodePage, SomeCharactersOfEach)
{
    const struct {
        int page;
        const char *bytes;
        const char16_t *text;
    } rows[] = {
        {1250, "\x8A\xE8\xF8", u"\u0160\u010D\u0159"}, {1251, "\xC6\xE8\xB8", u"\u0416\u0438\u0451"},
        {1252, "\x80\x9F\xFC", u"\u20AC\u0178\u00FC"}, {1253, "\xC1\xF9\x83", u"\u0391\u03C9\u0192"},
        {1254, "\xD0\xFD\xDE", u"\u011E\u0131\u015E"}, {1255, "\xE0\xFA\xA4", u"\u05D0\u05EA\u20AA"},
        {1256, "\xC7\xED\x81", u"\u0627\u064A\u067E"}, {1257, "\xC0\xF0\xFE", u"\u0104\u0161\u017E"},
        {1258, "\xD5\xFE\xD0", u"\u01A0\u20AB\u0110"}, {437, "\x80", u"\u20AC"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(decodeCodePage(row.bytes, row.page), QStringView(row.text)) << row.page;
        EXPECT_EQ(encodeCodePage(row.text, row.page), row.bytes) << row.page;
        EXPECT_EQ(isKnownCodePage(row.page), row.page != 437);
    }
}

TEST(CodePage, EveryByteComesBack)
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    for (int page = 1250; page <= 1258; ++page)
        EXPECT_EQ(encodeCodePage(decodeCodePage(all, page), page), all) << page;
}

TEST(CodePage, WhatThePageLacks)
{
    EXPECT_EQ(encodeAnsi(u"a\u0416b"), "a?b");
    EXPECT_EQ(encodeAnsi(u"\u0080\u0081"), "?\x81") << "0x80 is taken, 0x81 is undefined";
    EXPECT_EQ(encodeAnsi(u"\U0001F600"), "??") << "one for each UTF-16 unit";
}

TEST(CodePage, PathsComeBack)
{
    const struct {
        const char16_t *path;
        const char *bytes;
    } rows[] = {
        {u"\\a\\b.mdb", "\\a\\b.mdb"},
        {u"\\j\u00FCrgen", "\\j\xFCrgen"},
        {u"\\\u0141ukasz\\\u00FC", "\\\xC5\x81ukasz\\\xC3\xBC"},
        {u"\\\u00C3\u00BC", "\\\xC3\x83\xC2\xBC"}, // its Windows-1252 would read as UTF-8
        {u"\\\U0001F600?", "\\\xF0\x9F\x98\x80?"},
        {u"", ""},
    };
    for (const auto &row : rows) {
        const QString path = QString::fromUtf16(row.path);
        EXPECT_EQ(encodeAnsi(storedPath(path)), row.bytes);
        EXPECT_EQ(pathFromStored(decodeAnsi(row.bytes)), path) << row.bytes;
    }
    EXPECT_EQ(pathFromStored(decodeAnsi("\\j\xC3\xBCrgen")), u"\\j\u00FCrgen");
}
