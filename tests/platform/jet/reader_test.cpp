// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixtures.h"
#include "jet3fixture.h"
#include "platform/basic/date.h"
#include "platform/basic/error.h"
#include "platform/jet/reader/database.h"
#include <algorithm>
#include <cmath>
#include <QMap>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {
namespace {

using testing::sample;

/// The CRC-32 of zip and PNG.
quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ ((crc & 1) != 0 ? 0xedb88320 : 0);
    }
    return ~crc;
}

QString escaped(QString text)
{
    return text.replace(u'\\', u"\\\\"_s)
        .replace(u'\t', u"\\t"_s)
        .replace(u'\n', u"\\n"_s)
        .replace(u'\r', u"\\r"_s)
        .replace(QChar(u'\0'), u"\\0"_s);
}

/// The value as the dumps beside the samples write it; floating numbers with all digits, to be compared as numbers.
QString dumped(const Table &table, std::uint32_t row, int column)
{
    const QVariant value = table.value(row, column);
    EXPECT_EQ(value.isNull(), table.isNull(row, column));
    if (value.isNull())
        return u"\\N"_s;
    switch (table.columns()[static_cast<std::size_t>(column)].type) {
    case ColumnType::Boolean:
        return value.toBool() ? u"1"_s : u"0"_s;
    case ColumnType::DateTime:
        return basic::formatDate(value.toDouble(), u"yyyy-mm-dd hh:nn:ss");
    case ColumnType::Float:
        return QString::number(value.toDouble(), 'g', 9);
    case ColumnType::Double:
        return QString::number(value.toDouble(), 'g', 17);
    case ColumnType::Binary:
    case ColumnType::Ole:
        return u"<%1:%2>"_s.arg(value.toByteArray().size()).arg(crc32(value.toByteArray()), 8, 16, QChar(u'0'));
    case ColumnType::Guid:
        return value.toUuid().toString().toUpper();
    default:
        return escaped(value.toString());
    }
}

QList<QStringList> readTsv(const QString &file)
{
    QFile in(file);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << file.toStdString();
    QList<QStringList> lines;
    for (const QByteArray &line : in.readAll().split('\n'))
        lines.append(QString::fromUtf8(line).split(u'\t'));
    if (!lines.isEmpty() && lines.last() == QStringList(QString()))
        lines.removeLast();
    return lines;
}

QString typeName(ColumnType type)
{
    static const QMap<ColumnType, QString> names{{ColumnType::Boolean, u"BOOLEAN"_s},
                                                 {ColumnType::Byte, u"BYTE"_s},
                                                 {ColumnType::Integer, u"INT"_s},
                                                 {ColumnType::Long, u"LONG"_s},
                                                 {ColumnType::Money, u"MONEY"_s},
                                                 {ColumnType::Double, u"DOUBLE"_s},
                                                 {ColumnType::Text, u"TEXT"_s},
                                                 {ColumnType::Ole, u"OLE"_s},
                                                 {ColumnType::Memo, u"MEMO"_s},
                                                 {ColumnType::Guid, u"GUID"_s},
                                                 {ColumnType::DateTime, u"SHORT_DATE_TIME"_s}};
    return names.value(type, u"?"_s);
}

QStringList indexTexts(const Table &table)
{
    QStringList texts;
    for (const Index &index : table.indexes()) {
        QStringList columns;
        for (const IndexColumn &part : index.columns) {
            const auto found = std::ranges::find(table.columns(), part.columnNumber, &Column::number);
            columns.append(found == table.columns().end() ? u"?"_s : found->name);
        }
        texts.append(u"%1(%2)%3"_s.arg(index.name, columns.join(u", "_s), index.unique ? u" unique"_s : QString()));
    }
    texts.sort();
    return texts;
}

bool sameValue(ColumnType type, const QString &found, const QString &expected)
{
    return found == expected || (type == ColumnType::Float && found.toFloat() == expected.toFloat()) ||
           (type == ColumnType::Double && found.toDouble() == expected.toDouble());
}

TEST(Reader, SamplesEqualTheirDumps)
{
    SKIP_WITHOUT_SAMPLES();
    qsizetype fields = 0;
    for (const QString &file : testing::sampleDatabases()) {
        SCOPED_TRACE(file.toStdString());
        const auto database = Database::open(sample(file));
        const QString base = file.chopped(4);
        QStringList names, warnings;
        testing::readEverything(*database, &warnings);
        EXPECT_TRUE(warnings.isEmpty()) << warnings.join(u'\n').toStdString();
        for (const CatalogueEntry &entry : database->entries()) {
            if (!entry.system)
                names.append(entry.name);
        }
        QList<QStringList> tables = readTsv(sample(base + u".tables.tsv"_s));
        tables.removeFirst();
        ASSERT_EQ(names.size(), tables.size());
        for (const QStringList &line : std::as_const(tables)) {
            SCOPED_TRACE(line[0].toStdString());
            ASSERT_TRUE(names.contains(line[0]));
            const auto table = database->table(line[0]);
            EXPECT_EQ(table->rowCount(), line[1].toUInt());
            QStringList columns;
            for (const Column &column : table->columns())
                columns.append(column.name + u' ' + typeName(column.type));
            EXPECT_EQ(columns.join(u", "_s).toStdString(), line[2].toStdString());
            QStringList indexes = line.value(3).split(u"; "_s, Qt::SkipEmptyParts);
            indexes.sort();
            EXPECT_EQ(indexTexts(*table).join(u';').toStdString(), indexes.join(u';').toStdString());

            const QString dump = sample(base + u'.' + line[0].trimmed() + u".tsv"_s);
            if (!QFile::exists(dump))
                continue;
            const QList<QStringList> rows = readTsv(dump);
            ASSERT_EQ(rows.size(), static_cast<qsizetype>(table->rowCount()) + 1);
            for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
                ASSERT_EQ(rows[row + 1].size(), static_cast<qsizetype>(table->columns().size()));
                for (int column = 0; column < rows[0].size(); ++column, ++fields) {
                    const QString found = dumped(*table, row, column);
                    EXPECT_TRUE(sameValue(table->columns()[static_cast<std::size_t>(column)].type, found,
                                          rows[row + 1][column]))
                        << "row " << row << ", " << rows[0][column].toStdString() << ": " << found.toStdString()
                        << " instead of " << rows[row + 1][column].toStdString();
                }
            }
        }
    }
    EXPECT_GT(fields, 8000);
}

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
