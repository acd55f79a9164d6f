// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/order/likescan.h"

#include <gtest/gtest.h>
#include <numeric>
#include <random>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {
namespace {

using Bytes = std::vector<std::uint8_t>;

ByteCharacters latin1()
{
    ByteCharacters characters{};
    std::iota(characters.begin(), characters.end(), u'\0');
    return characters;
}

TEST(ByteLike, matchesAsThePatternDoesItself)
{
    const QStringView pieces[] = {u"*", u"?", u"#",     u"a",    u"Ä",     u"ß",  u"1",   u"’",  u"€",
                                  u"ж", u"]", u"[a-c]", u"[!ä]", u"[а-я]", u"[]", u"[[]", u"n, "};
    const Bytes bytes{'a', 'A', 'b', 'n', ',', ' ', '1', '[', ']', 0xe4, 0xc4, 0xdf, 0x80, 0x92, 0xe6, 0xff};
    std::mt19937 random(7);
    const auto upTo = [&random](std::size_t count) {
        return random() % count;
    };
    int matched = 0;
    for (const ByteCharacters &characters : {latin1(), charactersOf(1252), charactersOf(1251)}) {
        for (int i = 0; i < 3000; ++i) {
            QString text;
            for (std::size_t length = upTo(5); length > 0; --length)
                text += pieces[upTo(std::size(pieces))];
            const LikePattern pattern(text);
            const ByteLike quick(pattern, characters);
            for (int j = 0; j < 20; ++j) {
                Bytes stored;
                QString decoded;
                for (std::size_t length = upTo(7); length > 0; --length) {
                    stored.push_back(bytes[upTo(bytes.size())]);
                    decoded += QChar(characters[stored.back()]);
                }
                const bool expected = pattern.matches(decoded);
                matched += expected ? 1 : 0;
                ASSERT_EQ(quick.matches(stored), expected) << decoded.toStdString() << " LIKE " << text.toStdString();
            }
        }
    }
    EXPECT_GT(matched, 5000);
}

TEST(ByteLike, leavesToOthersWhatItCannotTell)
{
    const struct {
        QString pattern;
        Bytes text;
        std::optional<bool> matches;
    } cases[] = {
        {u"*b"_s, {'a', 0, 'b'}, std::nullopt},
        {u"*"_s, {0}, std::nullopt},
        {u"x*"_s, {'a', 0}, false}, // decided before
        {u"*"_s, {}, true},
        {QString(), {}, true},
        {QString(), {'a'}, false},
        {QString(63, u'?'), Bytes(63, 'a'), true},
        {QString(63, u'?'), Bytes(62, 'a'), false},
        {QString(63, u'?'), Bytes(64, 'a'), false},
        {u'*' + QString(63, u'?') + u'*', Bytes(200, 'a'), true},
        {QString(64, u'?'), Bytes(64, 'a'), std::nullopt},
    };
    for (const auto &row : cases)
        EXPECT_EQ(ByteLike(LikePattern(row.pattern), latin1()).matches(row.text), row.matches)
            << row.pattern.toStdString();
}

} // namespace
} // namespace kalvenor::jet
