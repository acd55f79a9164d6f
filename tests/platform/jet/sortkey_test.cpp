// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/order/sortkey.h"

#include "platform/basic/error.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {
namespace {

QByteArray hex(QStringView text)
{
    return generalKey(text).toHex();
}

struct KeyCase {
    QStringView text;
    const char *key;
};

TEST(GeneralKey, equalsTheKeysOfAccess)
{
    const KeyCase cases[] = {
        {u"", "0100"},
        {u"   ", "0100"},
        {u"ümlaut", "6f605e4a6f6d01"
                    "1300"},
        {u"ääkkösiä", "4a4a5c5c646b594a01"
                      "1313020213020213"
                      "00"},
        {u"only ascii chars", "64625e76074a6b4d5959074d574a696b0100"},
        {u"Ort_Bäume-Test", "64696d2b034c4a6f60516d516b6d01"
                            "020202020213"
                            "010101"
                            "802b0682"
                            "00"},
        {u"Weiß", "7351596b6b0100"},
        {u"WEISS  ", "7351596b6b0100"},
        {u"Œuf æ", "64516f53074a510100"},
        {u"ß-ä", "6b6b4a01"
                 "0213"
                 "010101"
                 "800b0682"
                 "00"}, // ß is two bytes but one character
        {u"'-", "01"
                "010101"
                "80070680"
                "80070682"
                "00"},
        {u"\t€–", "080335a101"
                  "010101"
                  "800f0689"
                  "00"},
        {u"aΩ", "4a7e03c90100"}, // outside the order: the folded unit
        {u"ŧ", "6e06011e00"},
    };
    for (const KeyCase &row : cases)
        EXPECT_EQ(hex(row.text), QByteArray(row.key)) << row.text.toString().toStdString();
}

TEST(GeneralKey, looksAt255CharactersOnly)
{
    const QString longText(255, u'a');
    EXPECT_EQ(hex(longText), hex(longText + u"bcd"_s));
    EXPECT_NE(hex(longText.left(254)), hex(longText));
    EXPECT_EQ(compareGeneral(longText + u'x', longText + u'y'), 0);
}

TEST(GeneralKey, refusesCharactersThatAnIndexCannotHold)
{
    const QStringView refused[] = {u"Ωmega", u"ș", u"ab\U0001F600", u"ẞ"};
    for (const QStringView text : refused)
        EXPECT_THROW(generalKey(text, Unlisted::Refused), basic::Error) << text.toString().toStdString();
    EXPECT_THROW(generalKey(QStringView(u"\0", 1), Unlisted::Refused), basic::Error);
    EXPECT_NO_THROW(generalKey(u"„Åse ‰ Žižek“ – ſ", Unlisted::Refused));
}

TEST(CompareGeneral, ordersNames)
{
    // Ascending; names in one row are equal.
    const std::vector<std::vector<QStringView>> order = {
        {u"", u"  "},     {u" a"},
        {u"_"},           {u"1", u"¹ "},
        {u"a"},           {u"ä"},
        {u"ab", u"AB "},  {u"ægir", u"AEGIR"},
        {u"coop"},        {u"co-op", u"CO-OP"},
        {u"coops"},       {u"Meyer"},
        {u"Meyerhof"},    {u"Meyer-Schulte", u"meyer-schulte"},
        {u"Muller"},      {u"Müller", u"MÜLLER"},
        {u"Mullera"},     {u"Weiß", u"Weiss", u"WEISS"},
        {u"z"},           {u"ž", u"Ž"},
        {u"ΑΒΓ", u"αβγ"}, {u"Жан", u"жан"},
    };
    for (std::size_t row = 0; row < order.size(); ++row) {
        for (QStringView left : order[row]) {
            for (QStringView equal : order[row])
                EXPECT_EQ(compareGeneral(left, equal), 0) << left.toString().toStdString();
            for (std::size_t later = row + 1; later < order.size(); ++later) {
                EXPECT_LT(compareGeneral(left, order[later][0]), 0)
                    << left.toString().toStdString() << " < " << order[later][0].toString().toStdString();
                EXPECT_GT(compareGeneral(order[later][0], left), 0);
            }
        }
    }
}

TEST(CompareGeneral, agreesWithTheKeys)
{
    std::mt19937 random(7);
    const QString alphabet = u"aAäsßS-' \u00e6e\u0101\u0301\u0100\u0000Ω1¹"_s;
    for (int round = 0; round < 20000; ++round) {
        QString texts[2];
        for (QString &text : texts) {
            for (auto length = random() % 7; length > 0; --length)
                text += alphabet[static_cast<qsizetype>(random() % static_cast<unsigned>(alphabet.size()))];
        }
        const QByteArray left = generalKey(texts[0]);
        const QByteArray right = generalKey(texts[1]);
        const int wanted = left < right ? -1 : left == right ? 0 : 1;
        const int got = compareGeneral(texts[0], texts[1]);
        ASSERT_EQ((got > 0) - (got < 0), wanted) << left.toHex().toStdString() << ' ' << right.toHex().toStdString();
    }
}

TEST(LikeIdentity, joinsNothingButTheCases)
{
    EXPECT_EQ(likeIdentity(u'Ä'), likeIdentity(u'ä'));
    EXPECT_EQ(likeIdentity(u'Ÿ'), likeIdentity(u'ÿ'));
    EXPECT_EQ(likeIdentity(u'Ω'), likeIdentity(u'ω'));
    EXPECT_EQ(likeIdentity(u'ẞ'), likeIdentity(u'ß'));
    std::vector<std::uint32_t> seen;
    for (char16_t unit = 0; unit < 0x180; ++unit) {
        if (QChar(unit).toUpper() == QChar(unit) || unit == u'ı' || unit == u'ſ' || unit == u'µ')
            seen.push_back(likeIdentity(unit));
    }
    std::sort(seen.begin(), seen.end());
    EXPECT_EQ(std::adjacent_find(seen.begin(), seen.end()), seen.end());
}

} // namespace
} // namespace kalvenor::jet
