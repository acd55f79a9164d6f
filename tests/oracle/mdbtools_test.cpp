// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What mdb-export of mdbtools reads from a database equals what we read.
#include "demo/host/demohost.h"
#include "platform/jet/reader/database.h"
#include <cmath>
#include <gtest/gtest.h>
#include <QDirIterator>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUuid>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using jet::ColumnType;

namespace {

const QString NullText = u"\\N"_s;

/// What mdb-export writes of a table, a row of fields each; the first one are the names.
std::vector<QStringList> exported(const QString &file, const QString &table)
{
    const QChar fieldEnd(0x1f), rowEnd(0x1e);
    QProcess process;
    process.start("mdb-export", {"-Q", "-d", fieldEnd, "-R", rowEnd, "-0", NullText, "-b", "hex", "-D",
                                 "%Y-%m-%d %H:%M:%S", "-T", "%Y-%m-%d %H:%M:%S", file, table});
    process.waitForFinished(60'000);
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    std::vector<QStringList> rows;
    for (const QString &row : QString::fromUtf8(process.readAllStandardOutput()).split(rowEnd, Qt::SkipEmptyParts))
        rows.push_back(row.split(fieldEnd));
    return rows;
}

QString serialText(double serial)
{
    const qint64 seconds = std::llround(serial * 86400);
    return QDate(1899, 12, 30).startOfDay(Qt::UTC).addSecs(seconds).toString("yyyy-MM-dd HH:mm:ss");
}

/// True where the exported field shows our value.
bool isSame(const QString &theirs, const jet::Table &table, quint32 row, int column)
{
    const jet::Column &definition = table.columns()[static_cast<std::size_t>(column)];
    if (definition.type == ColumnType::Boolean)
        return theirs == (table.boolean(row, column) ? "1" : "0");
    if (table.isNull(row, column))
        return theirs == NullText;
    switch (definition.type) {
    case ColumnType::Text:
    case ColumnType::Memo:
        return theirs == table.text(row, column);
    case ColumnType::Binary:
    case ColumnType::Ole:
        return theirs.compare(QLatin1String(table.bytes(row, column).toHex()), Qt::CaseInsensitive) == 0;
    case ColumnType::DateTime:
        // mdb-export shows no date before day 0.
        return *table.number(row, column) < 0 || theirs == serialText(*table.number(row, column));
    case ColumnType::Guid:
        return theirs.contains(table.value(row, column).toUuid().toString(QUuid::WithoutBraces), Qt::CaseInsensitive);
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
        return theirs == QString::number(*table.integer(row, column));
    default:
        return std::abs(theirs.toDouble() - *table.number(row, column)) <= 1e-6 * std::abs(*table.number(row, column));
    }
}

/// Compares one table row by row; mdb-export writes columns in their display order.
void compareTable(jet::Database &database, const QString &name)
{
    const auto table = database.table(name);
    const auto theirs = exported(database.file(), name);
    ASSERT_FALSE(theirs.empty());
    ASSERT_EQ(theirs.front().size(), static_cast<qsizetype>(table->columns().size()));
    ASSERT_EQ(theirs.size() - 1, table->rowCount());
    int differences = 0;
    for (qsizetype field = 0; field < theirs.front().size(); ++field) {
        const int column = table->columnOf(theirs.front()[field]);
        ASSERT_GE(column, 0) << theirs.front()[field].toStdString();
        for (quint32 row = 0; row < table->rowCount() && differences < 5; ++row) {
            const QString &text = theirs[row + 1].value(field);
            if (!isSame(text, *table, row, column)) {
                ++differences;
                ADD_FAILURE() << name.toStdString() << " row " << row << ", column "
                              << theirs.front()[field].toStdString() << ": mdb-export has \"" << text.toStdString()
                              << "\", we have \"" << table->value(row, column).toString().toStdString() << '"';
            }
        }
    }
}

} // namespace

TEST(Mdbtools, ReadsTheDemonstrationHostAsWeDo)
{
    if (QStandardPaths::findExecutable("mdb-export").isEmpty())
        GTEST_SKIP() << "mdb-export is missing (apt-get install mdbtools)";
    const QTemporaryDir folder;
    const demo::DemoHost host = demo::makeDemoHost({.folder = folder.path(), .persons = 1500, .seed = 3});
    QDirIterator files(host.hostFolder, {"*.mdb", "*.MDB"}, QDir::Files, QDirIterator::Subdirectories);
    int compared = 0;
    for (; files.hasNext(); ++compared) {
        const auto database = jet::Database::open(files.next());
        for (const auto &entry : database->entries()) {
            SCOPED_TRACE((files.fileName() + ", table " + entry.name).toStdString());
            if (!entry.system)
                compareTable(*database, entry.name);
        }
    }
    EXPECT_EQ(compared, 7) << "family, four side databases, two language databases";
}
