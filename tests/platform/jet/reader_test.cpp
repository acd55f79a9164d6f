// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixtures.h"
#include "jet3fixture.h"
#include "platform/jet/reader/database.h"

using namespace Qt::StringLiterals;

namespace kalvenor::jet {
namespace {

std::shared_ptr<Database> openBytes(const std::vector<std::uint8_t> &bytes)
{
    return Database::open(Image::fromBytes(u"bytes"_s, bytes));
}

TEST(Reader, Jet3TextIsInTheCodePageOfTheHeader)
{
    const struct {
        int codePage;
        const char *stored;
        QStringView expected;
    } cases[] = {
        {1251, "\xcc\xe8\xf0", u"Мир"},
        {1252, "K\xf6ln \x80\x81", u"Köln €\u0081"},
        {0, "\xe4", u"ä"},
    };
    for (const auto &[codePage, stored, expected] : cases) {
        SCOPED_TRACE(codePage);
        testing::Jet3File file(codePage);
        file.addRow({7, true, stored, "x"});
        const auto table = openBytes(file.bytes())->table(u"Daten"_s);
        ASSERT_EQ(table->rowCount(), 1U);
        EXPECT_EQ(table->text(0, table->columnOf(u"Name")), expected.toString());
    }
}

TEST(Reader, Jet3OffsetsBeyondOneByteTakeTheirHighPartFromTheJumpTable)
{
    for (const int name : {0, 1, 100, 235, 245, 250, 251, 255}) {
        for (const int place : {0, 1, 2, 5, 10, 250, 254, 255}) {
            SCOPED_TRACE(::testing::Message() << name << ", " << place);
            testing::Jet3File file(1252);
            file.addRow({name, name % 2 == 1, QByteArray(name, 'n'), QByteArray(place, 'o')});
            const auto table = openBytes(file.bytes())->table(u"Daten"_s);
            ASSERT_EQ(table->rowCount(), 1U) << testing::linesOf(table->damage()).join(u'\n').toStdString();
            EXPECT_EQ(table->integer(0, 0), name);
            EXPECT_EQ(table->boolean(0, 1), name % 2 == 1);
            EXPECT_EQ(table->text(0, 2), QString(name, u'n'));
            EXPECT_EQ(table->text(0, 3), QString(place, u'o'));
        }
    }
}

TEST(Reader, DecodesStoredText)
{
    const struct {
        QByteArray stored;
        QString expected;
    } cases[] = {
        {QByteArray("\xff\xfe"
                    "abc"),
         u"abc"_s},
        {QByteArray("\xff\xfe\xe4\x80"), u"ä\u0080"_s},
        {QByteArray("\xff\xfe"
                    "a\0\x1c\x04\0b",
                    8),
         u"a\u041cb"_s},
        {QByteArray("\xff\xfe"
                    "a\0\x1c\x04\x38",
                    7),
         u"a\u041c"_s},
        {QByteArray("a\0\0\0b\0c", 7), QString(QChar(u'a')) + QChar(u'\0') + QChar(u'b')},
        {QByteArray("\x3d\xd8\x00\xde", 4), u"\U0001f600"_s},
        {QByteArray("\x3d\xd8"
                    "a\0\x00\xde\xff\xff",
                    8),
         u"\ufffda\ufffd\ufffd"_s},
        {QByteArray("\xff\xfe"), QString()},
        {QByteArray(), QString()},
    };
    QString buffer;
    for (const auto &[stored, expected] : cases) {
        decodeText4({reinterpret_cast<const std::uint8_t *>(stored.data()), static_cast<std::size_t>(stored.size())},
                    buffer);
        EXPECT_EQ(buffer, expected) << stored.toHex(' ').toStdString();
    }
}

} // namespace
} // namespace kalvenor::jet
