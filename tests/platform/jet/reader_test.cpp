// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/date.h"
#include "platform/basic/error.h"
#include "platform/jet/database.h"
#include "samples.h"
#include <algorithm>
#include <cmath>
#include <QUuid>

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
    return text.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\t', QStringLiteral("\\t"))
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\r', QStringLiteral("\\r"))
        .replace(QChar(u'\0'), QStringLiteral("\\0"));
}

/// The value as the dumps beside the samples write it; floating numbers with all digits, to be compared as numbers.
QString dumped(const Table &table, std::uint32_t row, int column)
{
    const QVariant value = table.value(row, column);
    EXPECT_EQ(value.isNull(), table.isNull(row, column));
    if (value.isNull())
        return QStringLiteral("\\N");
    switch (table.columns()[static_cast<std::size_t>(column)].type) {
    case ColumnType::Boolean:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case ColumnType::DateTime:
        return formatDate(value.toDouble(), u"yyyy-mm-dd hh:nn:ss");
    case ColumnType::Float:
        return QString::number(value.toDouble(), 'g', 9);
    case ColumnType::Double:
        return QString::number(value.toDouble(), 'g', 17);
    case ColumnType::Binary:
    case ColumnType::Ole:
        return QStringLiteral("<%1:%2>")
            .arg(value.toByteArray().size())
            .arg(crc32(value.toByteArray()), 8, 16, QChar(u'0'));
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
    switch (type) {
    case ColumnType::Boolean:
        return QStringLiteral("BOOLEAN");
    case ColumnType::Byte:
        return QStringLiteral("BYTE");
    case ColumnType::Integer:
        return QStringLiteral("INT");
    case ColumnType::Long:
        return QStringLiteral("LONG");
    case ColumnType::Money:
        return QStringLiteral("MONEY");
    case ColumnType::Double:
        return QStringLiteral("DOUBLE");
    case ColumnType::DateTime:
        return QStringLiteral("SHORT_DATE_TIME");
    case ColumnType::Text:
        return QStringLiteral("TEXT");
    case ColumnType::Ole:
        return QStringLiteral("OLE");
    case ColumnType::Memo:
        return QStringLiteral("MEMO");
    case ColumnType::Guid:
        return QStringLiteral("GUID");
    default:
        return QStringLiteral("?");
    }
}

QStringList indexTexts(const Table &table)
{
    QStringList texts;
    for (const Index &index : table.indexes()) {
        QStringList columns;
        for (const IndexColumn &part : index.columns) {
            const auto found = std::ranges::find(table.columns(), part.columnNumber, &Column::number);
            columns.append(found == table.columns().end() ? QStringLiteral("?") : found->name);
        }
        texts.append(QStringLiteral("%1(%2)%3")
                         .arg(index.name, columns.join(QStringLiteral(", ")),
                              index.unique ? QStringLiteral(" unique") : QString()));
    }
    texts.sort();
    return texts;
}

bool sameValue(ColumnType type, const QString &found, const QString &expected)
{
    if (type == ColumnType::Float)
        return found == expected || found.toFloat() == expected.toFloat();
    if (type == ColumnType::Double)
        return found == expected || found.toDouble() == expected.toDouble();
    return found == expected;
}

TEST(Reader, SamplesEqualTheirDumps)
{
    SKIP_WITHOUT_SAMPLES();
    qsizetype fields = 0;
    for (const QString &file : testing::sampleDatabases()) {
        SCOPED_TRACE(file.toStdString());
        const auto database = Database::open(sample(file));
        EXPECT_TRUE(database->warnings().isEmpty()) << database->warnings().join(u'\n').toStdString();
        const QString base = file.chopped(4);
        QStringList names;
        for (const CatalogueEntry &entry : database->entries()) {
            const auto table = database->table(entry.name);
            EXPECT_TRUE(table->warnings().isEmpty()) << table->warnings().join(u'\n').toStdString();
            if (!entry.system)
                names.append(entry.name);
        }
        QList<QStringList> tables = readTsv(sample(base + QStringLiteral(".tables.tsv")));
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
            EXPECT_EQ(columns.join(QStringLiteral(", ")).toStdString(), line[2].toStdString());
            QStringList indexes = line.value(3).split(QStringLiteral("; "), Qt::SkipEmptyParts);
            indexes.sort();
            EXPECT_EQ(indexTexts(*table).join(u';').toStdString(), indexes.join(u';').toStdString());

            const QString dump = sample(base + u'.' + line[0].trimmed() + QStringLiteral(".tsv"));
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

TEST(Reader, TableNamesCountTrailingBlanksButNotCase)
{
    SKIP_WITHOUT_SAMPLES();
    const auto database = Database::open(sample(QStringLiteral("family300Jackcess.mdb")));
    EXPECT_EQ(database->table(QStringLiteral("ADRESSEN_ds "))->rowCount(), 25U);
    EXPECT_EQ(database->entry(QStringLiteral("Adressen_DS")), nullptr);
    try {
        database->table(QStringLiteral("Adressen_DS"));
        FAIL();
    } catch (const Error &error) {
        EXPECT_EQ(error.kind(), ErrorKind::TableNotFound);
    }
    const auto daten = database->table(QStringLiteral("daten"));
    EXPECT_EQ(daten->columnOf(u"COUNTER"), 0);
    EXPECT_EQ(daten->columnOf(u"Counter "), -1);
    EXPECT_TRUE(daten->isIndexed(daten->columns()[0].number));
}

} // namespace
} // namespace kalvenor::jet
