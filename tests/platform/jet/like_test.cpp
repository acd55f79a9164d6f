// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/order/like.h"

#include "platform/basic/error.h"
#include <chrono>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {
namespace {

struct LikeCase {
    QStringView pattern;
    QStringView text;
    bool matches;
};

TEST(Like, matches)
{
    const LikeCase cases[] = {
        {u"", u"", true},
        {u"", u"a", false},
        {u"*", u"", true},
        {u"**", u"abc", true},
        {u"?", u"", false},
        {u"?", u"a", true},
        {u"a", u"ab", false},
        {u"Müller*", u"MÜLLER, Hans", true},
        {u"Muller*", u"Müller, Hans", false},
        {u"*hans*", u"Müller, Hans", true},
        {u"*hans", u"Müller, Hans ", false}, // a trailing blank of the text counts
        {u"*hans ", u"Müller, Hans ", true},
        {u"M?ller", u"Møller", true},
        {u"M??ller", u"Møller", false},
        {u"*19##", u"geboren 1912", true},
        {u"#", u"x", false},
        {u"#", u"²", false},
        {u"100%_", u"100%_", true},
        {u"_", u"x", false},
        {u"%", u"xyz", false},
        {u"*ana*nas", u"ananananas", true},
        {u"*aab", u"aaaab", true},
        {u"a*b?c*d", u"axxbxbxcyyd", true},
        {u"a*b?c*d", u"axxbxbxxyyd", false},
        {u"[abc]x", u"Bx", true},
        {u"[abc]x", u"dx", false},
        {u"[a-cx-z0-9]", u"Y", true},
        {u"[a-cx-z0-9]", u"5", true},
        {u"[a-cx-z0-9]", u"d", false},
        {u"[a-z]", u"Ä", true}, // ranges go by the sort order
        {u"[a-z]", u"ž", false},
        {u"[a]", u"ä", false},
        {u"[!a-c]*", u"Dora", true},
        {u"[!a-c]*", u"Berta", false},
        {u"[!a-c]", u"", false},
        {u"[*]", u"*", true},
        {u"[*]", u"x", false},
        {u"[?][#][[]", u"?#[", true},
        {u"]", u"]", true},
        {u"[ab]]", u"a]", true},
        {u"[a!]", u"!", true},
        {u"[-a]", u"-", true},
        {u"[!-a]", u"-", false},
        {u"[a-]", u"-", true},
        {u"[a-]", u"b", false},
        {u"[a-c-e]", u"-", true},
        {u"[a-c-e]", u"d", false},
        {u"[--a]", u"b", false},
        {u"[--a]", u"5", false}, // - begins no range
        {u"[]", u"", true},
        {u"a[]b", u"ab", true},
        {u"[]", u"x", false},
        {u"ΑΘ*", u"αθήνα", true},
        {u"ß", u"ss", false},
        {u"[0-9]", u"\u2019", false},
    };
    for (const LikeCase &row : cases) {
        EXPECT_EQ(LikePattern(row.pattern).matches(row.text), row.matches)
            << row.text.toString().toStdString() << " LIKE " << row.pattern.toString().toStdString();
    }
}

TEST(Like, refusesPatternsThatAreNone)
{
    const QStringView patterns[] = {u"[", u"a[b", u"*[a-", u"[z-a]", u"[!9-0]", u"x[ä-a]", u"[a-z"};
    for (const QStringView pattern : patterns) {
        try {
            const LikePattern made{pattern};
            ADD_FAILURE() << pattern.toString().toStdString();
        } catch (const basic::Error &error) {
            EXPECT_EQ(error.kind(), basic::ErrorKind::InvalidPattern);
            EXPECT_EQ(error.arguments().value(0), pattern) << error.what();
        }
    }
}

TEST(Like, staysPolynomialWithManyStars)
{
    QString pattern;
    for (int i = 0; i < 40; ++i)
        pattern += u"*a*?b"_s;
    const LikePattern like(QString(pattern + u'c'));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(like.matches(QString(20000, u'a')));
    EXPECT_FALSE(LikePattern(QString(2000, u'*') + QString(100, u'?') + u"*x"_s).matches(QString(20000, u'a')));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

} // namespace
} // namespace kalvenor::jet
